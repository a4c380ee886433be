#include "shell/ModuleLoadCommon.h"

#include <stdexcept>

#include "platform/code_page.h"

namespace kestrelix {

const std::string kDbInstanceHeading =
    "               DBID           DB_NAME          VERSION    INSTANCE_NUMBER     INSTANCE_NAME         "
    "HOST_NAME       RAC";
const std::string kSnapIdHeading =
    "  START TIME             END TIME            START ID    END ID    STATUS";

namespace {

std::string padding(const std::string& text, std::size_t width) {
  const std::size_t length = characterCount(text);
  return length < width ? std::string(width - length, ' ') : std::string();
}

/// A text that is wider than its column is shown whole.
std::string right(const std::string& text, std::size_t width) { return padding(text, width) + text; }
std::string left(const std::string& text, std::size_t width) { return text + padding(text, width); }

std::string instanceLine(const clsDbInstance& instances, int i) {
  return right(instances.dbid(i), 18) + right(instances.DB_NAME(i), 18) + right(instances.VERSION(i), 18) +
         right(instances.INSTANCE_NUMBER(i), 18) + right(instances.INSTANCE_NAME(i), 18) +
         right(instances.HOST_NAME(i), 18) + right(instances.PARALLEL(i), 10);
}

/// Two ids out of their columns would run together into one, so a wider one fails.
std::string idColumn(const std::string& id) {
  constexpr std::size_t kWidth = 10;
  if (characterCount(id) > kWidth) throw std::length_error("the id " + id + " is wider than its column");
  return right(id, kWidth);
}

std::string pairLine(const clsSnapId& pairs, int i) {
  return right(pairs.START_SNAP_TIME(i), 20) + "   " + right(pairs.END_SNAP_TIME(i), 20) +
         idColumn(pairs.START_SNAP_ID(i)) + idColumn(pairs.END_SNAP_ID(i)) + "   " +
         left(pairs.REPORT_STATUS(i), 15);
}

/// Shows the boxes of a load; true without any.
bool loaded(Workspace& workspace, const Failures& failures) {
  showFailures(workspace.boxes, failures);
  return failures.empty();
}

}  // namespace

bool gDispDbInstance_Load(Workspace& workspace) {
  if (!loaded(workspace, workspace.repository.loadInstances())) return false;
  const clsDbInstance& instances = *workspace.repository.gDbInstance;
  ComboBox& combo = workspace.controls.ComboDbInstance;
  combo.Clear();
  for (int i = 0; i < instances.rownum(); ++i) combo.AddItem(instanceLine(instances, i), i);
  return true;
}

bool gDispSnapId_Load(Workspace& workspace, const std::string& dbid, const std::string& instanceNumber,
                      bool useRange) {
  if (!loaded(workspace, workspace.repository.loadPairs(dbid, instanceNumber, useRange))) return false;
  const clsSnapId& pairs = *workspace.repository.gSnapId;
  ListBox& list = workspace.controls.ListSnapId;
  list.Clear();
  for (int i = 0; i < pairs.rownum(); ++i) list.AddItem(pairLine(pairs, i), i);
  return true;
}

}  // namespace kestrelix

#include "navigation/ModuleLoadCommon.h"

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

bool fail(Workspace& workspace, const std::string& text) {
  workspace.boxes.show(BoxIcon::Critical, text);
  return false;
}

}  // namespace

bool gDispDbInstance_Load(Workspace& workspace) {
  workspace.gDbInstance = std::make_unique<clsDbInstance>();
  clsDbInstance& instances = *workspace.gDbInstance;
  instances.Initialize(*workspace.gOraDatabase, workspace.boxes);
  if (!instances.getDB_INSTANCE()) return fail(workspace, "DB_INSTANCEの取得に失敗しました");
  if (instances.rownum() == 0) return fail(workspace, "有効なDB_INSTANCE情報が存在しませんでした");

  ComboBox& combo = workspace.controls.ComboDbInstance;
  combo.Clear();
  for (int i = 0; i < instances.rownum(); ++i) combo.AddItem(instanceLine(instances, i), i);
  return true;
}

bool gDispSnapId_Load(Workspace& workspace, const std::string& dbid, const std::string& instanceNumber,
                      bool useRange) {
  // A rendering that failed has left its binds in place.
  workspace.gOraDatabase->parameters().clear();
  workspace.gSnapId = std::make_unique<clsSnapId>();
  clsSnapId& pairs = *workspace.gSnapId;
  pairs.Initialize(*workspace.gOraDatabase, workspace.boxes);
  const std::string startId = useRange ? workspace.gSnapRange->GET_START_ID() : std::string();
  const std::string endId = useRange ? workspace.gSnapRange->GET_END_ID() : std::string();
  pairs.setBAIND_VALUE(dbid, instanceNumber, startId, endId);
  if (!pairs.getSTART_END_SNAP_ID(useRange)) return fail(workspace, "SNAP_IDの取得に失敗しました");
  pairs.unsetBAIND_VALUE();
  if (pairs.rownum() == 0) return fail(workspace, "SNAP_IDが2件未満でした");

  ListBox& list = workspace.controls.ListSnapId;
  list.Clear();
  for (int i = 0; i < pairs.rownum(); ++i) list.AddItem(pairLine(pairs, i), i);
  return true;
}

}  // namespace kestrelix

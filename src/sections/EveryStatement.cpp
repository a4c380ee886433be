#include "sections/EveryStatement.h"

#include <algorithm>

#include "navigation/clsDbInstance.h"
#include "navigation/clsSnapId.h"
#include "sections/SectionList.h"
#include "sections/sql/clsSQLPlan.h"
#include "sections/sql/clsSQLText.h"

namespace kestrelix {
namespace {

const char* viewOf(Fetch fetch) {
  switch (fetch) {
    case Fetch::AllRows:
      return "All";
    case Fetch::FirstRow:
      return "Col";
    case Fetch::Metric:
      return "All and Col";
    case Fetch::Binds:
      break;
  }
  return "bind";
}

/// What an object sends when its Sections are listed for `listed`.
void append(std::vector<SentStatement>& sent, const SectionObject& object, Versions listed) {
  std::vector<std::string> bindMembers;
  for (const Bind& bind : object.binds()) {
    const bool known = std::find(bindMembers.begin(), bindMembers.end(), bind.member) != bindMembers.end();
    if (bind.text.empty() || known) continue;
    bindMembers.push_back(bind.member);
    sent.push_back({object.className(), bind.member, "bind", listed, bind.text, object.binds()});
  }
  for (const Statement& statement : object.statements())
    if ((statement.versions & listed) != 0)
      sent.push_back({object.className(), statement.member, viewOf(statement.fetch),
                      statement.versions & listed, statement.text, object.binds()});
}

/// The lists that a report starts from. The ids of a range are bound as texts.
std::vector<SentStatement> ofTheLists() {
  const std::vector<Bind> ids{argument("B3", ServerType::String), argument("B4", ServerType::String)};
  return {{"clsDbInstance", "getDB_INSTANCE", "list", kAllVersions, clsDbInstance::statement(), {}},
          {"clsSnapId", "getSNAP_ID", "list", kAllVersions, clsSnapId::statement(false), ids},
          {"clsSnapId", "getSNAP_ID", "list", kAllVersions, clsSnapId::statement(true), ids}};
}

}  // namespace

std::vector<SentStatement> everyStatement() {
  struct Class {
    std::unique_ptr<SectionObject> object;
    Versions listed;
  };
  std::vector<Class> classes;
  for (const Section& entry : sectionList())
    for (const ReleaseViews& views : entry.views) {
      auto object = views.make();
      const Versions listed = entry.versions & views.versions;
      const auto same = std::find_if(classes.begin(), classes.end(), [&](const Class& known) {
        return known.object->className() == object->className();
      });
      if (same == classes.end())
        classes.push_back({std::move(object), listed});
      else
        same->listed |= listed;
    }
  // The panels behind the SQL rankings are no Sections of their own.
  classes.push_back({make<clsSQLText>(), kAllVersions});
  classes.push_back({make<clsSQLPlan>(), kAllVersions});
  std::vector<SentStatement> sent = ofTheLists();
  for (const Class& known : classes) append(sent, *known.object, known.listed);
  return sent;
}

}  // namespace kestrelix

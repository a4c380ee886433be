#include "navigation/repository.h"

#include <stdexcept>

namespace kestrelix {

Failures Repository::open(const MakeSession& makeSession, const std::string& name,
                          const std::string& connect) {
  Failures failures;
  guarded(failures, "ModuleCommon", "OPEN_Conect", [&] {
    gOraDatabase.reset();
    gOraSession = makeSession();
    if (!gOraSession) throw std::runtime_error("the client library gave no session");
    gOraDatabase = gOraSession->OpenDatabase(name, connect, kDatabaseOptions);
  });
  return failures;
}

void Repository::close() {
  gOraDatabase.reset();
  gOraSession.reset();
}

Failures Repository::loadInstances() {
  Failures failures;
  gDbInstance = std::make_unique<clsDbInstance>();
  gDbInstance->Initialize(*gOraDatabase, failures);
  if (!gDbInstance->getDB_INSTANCE())
    failures.push_back({"DB_INSTANCEの取得に失敗しました"});
  else if (gDbInstance->rownum() == 0)
    failures.push_back({"有効なDB_INSTANCE情報が存在しませんでした"});
  return failures;
}

Failures Repository::loadPairs(const std::string& dbid, const std::string& instanceNumber, bool useRange) {
  Failures failures;
  // A reading that failed has left its binds in place.
  gOraDatabase->parameters().clear();
  gSnapId = std::make_unique<clsSnapId>();
  gSnapId->Initialize(*gOraDatabase, failures);
  const std::string startId = useRange ? gSnapRange.GET_START_ID() : std::string();
  const std::string endId = useRange ? gSnapRange.GET_END_ID() : std::string();
  gSnapId->setBAIND_VALUE(dbid, instanceNumber, startId, endId);
  if (!gSnapId->getSTART_END_SNAP_ID(useRange)) {
    failures.push_back({"SNAP_IDの取得に失敗しました"});
    return failures;
  }
  gSnapId->unsetBAIND_VALUE();
  if (gSnapId->rownum() == 0) failures.push_back({"SNAP_IDが2件未満でした"});
  return failures;
}

}  // namespace kestrelix

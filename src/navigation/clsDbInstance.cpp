#include "navigation/clsDbInstance.h"

namespace kestrelix {

const std::string& clsDbInstance::statement() {
  static const std::string text =
      "SELECT DISTINCT di.DBID, di.DB_NAME, di.VERSION, di.INSTANCE_NUMBER, di.INSTANCE_NAME, di.HOST_NAME, "
      "di.PARALLEL from stats$database_instance di order by di.DBID, di.INSTANCE_NUMBER ";
  return text;
}

void clsDbInstance::Initialize(Database& database, Failures& failures) {
  database_ = &database;
  failures_ = &failures;
  rows_.clear();
}

bool clsDbInstance::getDB_INSTANCE() {
  return guarded(*failures_, "clsDbInstance", "getDB_INSTANCE", [this] {
    const auto dynaset = database_->DbCreateDynaset(statement(), kDynasetOptions);
    for (; !dynaset->Eof(); dynaset->MoveNext())
      rows_.push_back({dynaset->Fields("DBID").value(), dynaset->Fields("DB_NAME").value(),
                       dynaset->Fields("VERSION").value(), dynaset->Fields("INSTANCE_NUMBER").value(),
                       dynaset->Fields("INSTANCE_NAME").value(), dynaset->Fields("HOST_NAME").value(),
                       dynaset->Fields("PARALLEL").value()});
    dynaset->Close();
  });
}

}  // namespace kestrelix

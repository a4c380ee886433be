#pragma once

#include <string>
#include <vector>

#include "platform/database.h"
#include "platform/failure.h"

namespace kestrelix {

/// The instances whose statistics the repository holds, from stats$database_instance, by DBID and number.
class clsDbInstance {
 public:
  /// Both are used while the store is filled, not later.
  void Initialize(Database& database, Failures& failures);
  /// Fills the store. False after a failure.
  bool getDB_INSTANCE();
  /// What getDB_INSTANCE sends.
  static const std::string& statement();

  long rownum() const { return static_cast<long>(rows_.size()); }
  const std::string& dbid(int i) const { return row(i).dbid; }
  const std::string& DB_NAME(int i) const { return row(i).dbName; }
  const std::string& VERSION(int i) const { return row(i).version; }
  const std::string& INSTANCE_NUMBER(int i) const { return row(i).instanceNumber; }
  const std::string& INSTANCE_NAME(int i) const { return row(i).instanceName; }
  const std::string& HOST_NAME(int i) const { return row(i).hostName; }
  /// "YES" for an instance of a cluster database.
  const std::string& PARALLEL(int i) const { return row(i).parallel; }

 private:
  struct Row {
    std::string dbid, dbName, version, instanceNumber, instanceName, hostName, parallel;
  };
  const Row& row(int i) const { return rows_.at(static_cast<std::size_t>(i)); }

  Database* database_ = nullptr;
  Failures* failures_ = nullptr;
  std::vector<Row> rows_;
};

}  // namespace kestrelix

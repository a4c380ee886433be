// The STATSPACK repository that a report is on: its connection, its instances, the snapshot pairs of one.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "navigation/clsDbInstance.h"
#include "navigation/clsSnapId.h"
#include "navigation/clsSnapRange.h"

namespace kestrelix {

/// One connection with the lists that were read over it. Every loader gives the boxes that tell what went
/// wrong, in their order: none when all went well.
struct Repository {
  /// Makes the client library's session; may throw.
  using MakeSession = std::function<std::unique_ptr<Session>()>;

  std::unique_ptr<Session> gOraSession;
  std::unique_ptr<Database> gOraDatabase;
  std::unique_ptr<clsDbInstance> gDbInstance;
  std::unique_ptr<clsSnapId> gSnapId;
  clsSnapRange gSnapRange;

  /// Opens the one connection, in place of a former one. After a failure there is none.
  Failures open(const MakeSession& makeSession, const std::string& name, const std::string& connect);
  void close();

  /// Reads the instances. No instance at all is a failure too.
  Failures loadInstances();
  /// Reads the pairs of an instance, between the ids of gSnapRange if `useRange`. Fewer than two snapshots
  /// are a failure too. Needs a connection.
  Failures loadPairs(const std::string& dbid, const std::string& instanceNumber, bool useRange);
};

}  // namespace kestrelix

#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/database.h"
#include "platform/failure.h"

namespace kestrelix {

/// What a section object binds of a pair.
struct PairKeys {
  std::string dbid;
  std::string instanceNumber;
  std::string startSnapId;
  std::string endSnapId;
  std::string startTime = {};  ///< YYYY-MM-DD HH24:MI:SS
  std::string endTime = {};
};

/// The figures of the pair can be reported.
inline constexpr const char* kStatusOk = "OK";
/// The two snapshots were taken at different levels; the pair is reported all the same.
inline constexpr const char* kStatusLevel = "SNAP_LEVEL NG";
/// The instance started between the two snapshots: counters began anew, differences mean nothing.
inline constexpr const char* kStatusRestart = "DB RESTART";

/// The snapshots of one instance as pairs of neighbours: N snapshots give N - 1 pairs, each pair's end being
/// the next one's start. Pairs count from 0, as the entries of the pair list do.
class clsSnapId {
 public:
  /// Both are used while the pairs are read, not later.
  void Initialize(Database& database, Failures& failures);

  /// Ids are empty when no range applies.
  bool setBAIND_VALUE(const std::string& dbid, const std::string& instanceNumber, const std::string& startId,
                      const std::string& endId);
  bool unsetBAIND_VALUE();
  /// Reads the snapshots (those between the two ids if `useRange`) and forms the pairs.
  bool getSTART_END_SNAP_ID(bool useRange);
  /// What getSNAP_ID sends for that.
  static const std::string& statement(bool useRange);

  long rownum() const { return static_cast<long>(pairs_.size()); }
  const std::string& REPORT_STATUS(int i) const { return pair(i).status; }
  const std::string& START_DBID(int i) const { return pair(i).start.dbid; }
  const std::string& START_INSTANCE_NUMBER(int i) const { return pair(i).start.instanceNumber; }
  const std::string& START_SNAP_ID(int i) const { return pair(i).start.snapId; }
  const std::string& START_SNAP_TIME(int i) const { return pair(i).start.snapTime; }
  const std::string& START_STARTUP_TIME(int i) const { return pair(i).start.startupTime; }
  const std::string& START_SNAP_LEVEL(int i) const { return pair(i).start.snapLevel; }
  const std::string& END_DBID(int i) const { return pair(i).end.dbid; }
  const std::string& END_INSTANCE_NUMBER(int i) const { return pair(i).end.instanceNumber; }
  const std::string& END_SNAP_ID(int i) const { return pair(i).end.snapId; }
  const std::string& END_SNAP_TIME(int i) const { return pair(i).end.snapTime; }
  const std::string& END_STARTUP_TIME(int i) const { return pair(i).end.startupTime; }
  const std::string& END_SNAP_LEVEL(int i) const { return pair(i).end.snapLevel; }

  PairKeys keys(int i) const {
    return {START_DBID(i),  START_INSTANCE_NUMBER(i), START_SNAP_ID(i),
            END_SNAP_ID(i), START_SNAP_TIME(i),       END_SNAP_TIME(i)};
  }
  bool restarted(int i) const { return REPORT_STATUS(i) == kStatusRestart; }

  /// The span from the start of pair `first` to the end of pair `last` as the one pair of a list of its own.
  /// Nothing where the instance started anew within it, since counters can't be told from each other then.
  /// Fails with std::out_of_range for a pair off the list.
  std::optional<clsSnapId> span(int first, int last) const;

 private:
  /// Times are texts of the form YYYY-MM-DD HH24:MI:SS, which sort in time order.
  struct Snapshot {
    std::string dbid, instanceNumber, snapId, snapTime, snapLevel, startupTime;
  };
  struct Pair {
    std::string status;
    Snapshot start, end;
  };
  const Pair& pair(int i) const { return pairs_.at(static_cast<std::size_t>(i)); }
  bool getSNAP_ID(bool useRange);
  static std::string classify(const Snapshot& start, const Snapshot& end);

  Database* database_ = nullptr;
  Failures* failures_ = nullptr;
  std::vector<Snapshot> snapshots_;
  std::vector<Pair> pairs_;
};

}  // namespace kestrelix

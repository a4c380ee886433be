// Instances and snapshots as a fake server answers them.
#pragma once

#include <string>
#include <vector>

#include "support/fake_database.h"

namespace kestrelix::testing_support {

inline constexpr const char* kInstances = "from stats$database_instance";
inline constexpr const char* kSnapshots =
    "from stats$snapshot st where st.DBID = :B1 and   st.INSTANCE_NUMBER = :B2 order";
inline constexpr const char* kRangeOfSnapshots = "st.SNAP_ID <= :B4";

struct SnapshotRow {
  std::string id;
  std::string time;
  std::string level = "7";
  std::string startup = "2000-01-01 00:00:00";
};

inline void laySnapshots(FakeServer& server, const std::vector<SnapshotRow>& snapshots,
                         const char* statement = kSnapshots) {
  Answer& answer = server.answer(statement);
  answer.columns = {"DBID", "INSTANCE_NUMBER", "SNAP_TIME", "SNAP_ID", "SNAP_LEVEL", "STARTUP_TIME"};
  answer.rows.clear();
  for (const SnapshotRow& s : snapshots)
    answer.rows.push_back({"1001", "1", s.time, s.id, s.level, s.startup});
}

inline void layInstance(FakeServer& server, const std::string& dbid, const std::string& version,
                        const std::string& number, const std::string& parallel = "NO",
                        const std::string& host = "dbhost") {
  Answer& answer = server.answer(kInstances);
  answer.columns = {"DBID",          "DB_NAME",   "VERSION", "INSTANCE_NUMBER",
                    "INSTANCE_NAME", "HOST_NAME", "PARALLEL"};
  answer.rows.push_back({dbid, "ORCL", version, number, "orcl" + number, host, parallel});
}

}  // namespace kestrelix::testing_support

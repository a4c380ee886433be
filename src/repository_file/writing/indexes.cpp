#include "repository_file/writing/indexes.h"

#include <algorithm>

#include "statspack/release.h"

namespace kestrelix::repository_file {

namespace {

using Names = std::vector<std::string>;

struct Extra {
  std::string_view table;
  Names columns;
};

// What the statements look up besides the keys.
const std::vector<Extra>& extras() {
  static const std::vector<Extra> list = {
      // by snapshot alone, as the gate on the snapshot level does
      {"stats$snapshot", {"snap_id"}},
      // without the database, as the keep pool's size is
      {"stats$parameter", {"snap_id", "instance_number", "name"}},
      // from the histogram to the event
      {"stats$system_event", {"dbid", "instance_number", "snap_id", "event_id"}},
      // by time
      {"stats$undostat", {"dbid", "instance_number", "begin_time"}},
      {"stats$memory_resize_ops", {"dbid", "instance_number", "start_time"}},
      // one statement through all snapshots
      {"stats$sql_summary", {"dbid", "instance_number", "old_hash_value", "snap_id"}},
      {"stats$sql_plan_usage", {"dbid", "instance_number", "old_hash_value", "snap_id"}},
      {"stats$sql_plan_usage", {"dbid", "instance_number", "hash_value", "snap_id"}},
      // without a key of its own
      {"stats$sgastat", {"dbid", "instance_number", "snap_id", "name"}},
      {"stats$temp_sqlstats", {"old_hash_value"}},
      // by name: unindexed, these few rows look like many and turn the joins around them into scans
      {"stats$osstatname", {"stat_name"}},
      {"stats$time_model_statname", {"stat_name"}},
      {"v$lock_type", {"type"}},
  };
  return list;
}

// The key of a table whose rows a release tells apart, with the columns that every look-up gives in front.
Names ordered(const Names& key) {
  Names result;
  for (const char* front : {"dbid", "instance_number", "snap_id"})
    if (std::find(key.begin(), key.end(), front) != key.end()) result.emplace_back(front);
  for (const std::string& name : key)
    if (std::find(result.begin(), result.end(), name) == result.end()) result.push_back(name);
  return result;
}

bool isBeginningOf(const Names& part, const Names& whole) {
  return part.size() <= whole.size() && std::equal(part.begin(), part.end(), whole.begin());
}

}  // namespace

std::vector<Names> indexesOf(std::string_view table, const Names& columns) {
  std::vector<Names> wanted;
  for (const char* major : {"11", "10", "9"})
    if (const statspack::Table* known = statspack::release(major).table(table))
      wanted.push_back(ordered(known->key()));
  for (const Extra& extra : extras())
    if (extra.table == table) wanted.push_back(extra.columns);
  wanted.push_back({"dbid", "instance_number", "snap_id"});

  // An index stops being of use at the first column that the table lacks, and a resize operation is told
  // apart by far more columns than are looked up.
  constexpr std::size_t kLongest = 8;
  for (Names& index : wanted) {
    const auto missing = std::find_if(index.begin(), index.end(), [&](const std::string& name) {
      return std::find(columns.begin(), columns.end(), name) == columns.end();
    });
    index.erase(missing, index.end());
    if (index.size() > kLongest) index.resize(kLongest);
  }
  std::vector<Names> result;
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    bool needed = !wanted[i].empty();
    for (std::size_t j = 0; j < wanted.size() && needed; ++j)
      if (j != i && isBeginningOf(wanted[i], wanted[j]) && (wanted[i] != wanted[j] || j < i)) needed = false;
    if (needed) result.push_back(wanted[i]);
  }
  return result;
}

}  // namespace kestrelix::repository_file

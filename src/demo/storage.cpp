#include "demo/storage.h"

namespace kestrelix::demo {

std::vector<Tablespace> tablespacesOf(const Instance& instance) {
  const Database& database = *instance.database;
  const std::string& owner = database.owner;
  std::vector<Tablespace> list;
  list.push_back({"SYSTEM", 0, 1, 18, 7, 12});
  for (int number = 1; number <= database.instances; ++number) {
    const bool own = number == instance.number;
    list.push_back(
        {"UNDOTBS" + std::to_string(number), number == 1 ? 1 : 4, 2, own ? 24 : 3, 0, own ? 190 : 0});
  }
  if (database.has(10)) list.push_back({"SYSAUX", 2, 1, 9, 4, 11});
  list.push_back({"USERS", 5, 1, 3, 2, 2});
  list.push_back({owner + "_DATA", kDataTablespace, 5, 560, 931, 430});
  list.push_back({owner + "_IDX", kIndexTablespace, 3, 330, 38, 310});
  list.push_back({owner + "_LOB", 8, 1, 38, 9, 26});
  list.push_back({"PERFSTAT", 9, 1, 0, 0, 0});
  // What is left of the thousand is the repository's own.
  int reads = 1000;
  int scans = 1000;
  int writes = 1000;
  for (const Tablespace& space : list) {
    reads -= space.readShare;
    scans -= space.scanShare;
    writes -= space.writeShare;
  }
  list.back().readShare = reads;
  list.back().scanShare = scans;
  list.back().writeShare = writes;
  return list;
}

}  // namespace kestrelix::demo

// When the snapshots of an instance are taken, and what happens to it between them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "demo/random.h"
#include "demo/scene.h"

namespace kestrelix::demo {

struct Snapshot {
  std::int64_t id = 0;
  std::int64_t dbid = 0;
  int instance = 1;
  std::int64_t time = 0;     // seconds since 1970 on the database's wall clock
  std::int64_t startup = 0;  // of the instance, likewise
  int level = 7;
  std::string comment;
  bool badHour = false;  // a bad statement ate the machine in the hour before
  int place = 0;         // in the instance's list, from 0
};

/// `count` hourly snapshots with a restart, a change of level, a purged snapshot, a comment and a bad hour,
/// all at fixed shares of the list. Ids are taken from `firstId` in steps of the database's instances, since
/// one sequence numbers them all; no two instances of the repository share an id.
std::vector<Snapshot> timelineOf(const Instance& instance, int count, std::int64_t firstId, Random random);

}  // namespace kestrelix::demo

#include "demo/memory_layout.h"

#include <array>

namespace kestrelix::demo {

namespace {

constexpr std::int64_t kMb = 1048576;
constexpr std::int64_t kDay = 86400;

/// A move of a granule at a second of the day.
struct DailyMove {
  std::int64_t second;
  bool cacheGrows;
};

constexpr std::array<DailyMove, 4> kMoves = {
    {{4200, true}, {30000, false}, {45300, false}, {67800, true}}};  // 01:10, 08:20, 12:35, 18:50

}  // namespace

MemoryLayout memoryAt(const Database& database, std::int64_t time) {
  MemoryLayout layout;
  layout.granule = (database.cacheMb >= 4096 ? 64 : 16) * kMb;
  layout.cache = database.cacheMb * kMb;
  layout.sharedPool = database.sharedPoolMb * kMb;
  layout.largePool = 4 * layout.granule;
  layout.javaPool = 2 * layout.granule;
  layout.streamsPool = database.has(10) ? layout.granule : 0;
  layout.fixed = database.has(11) ? 2257520 : database.has(10) ? 2113088 : 733688;
  layout.logBuffer = database.has(11) ? 15785984 : 14671872;
  layout.pgaTarget = database.pgaMb * kMb;
  if (!database.has(10)) return layout;
  for (const DailyMove& move : kMoves) {
    if (time % kDay < move.second) break;
    layout.cache += move.cacheGrows ? layout.granule : -layout.granule;
    layout.sharedPool -= move.cacheGrows ? layout.granule : -layout.granule;
  }
  return layout;
}

std::vector<MemoryMove> movesBetween(const Database& database, std::int64_t from, std::int64_t to) {
  std::vector<MemoryMove> moves;
  if (!database.has(10)) return moves;
  for (std::int64_t day = from / kDay * kDay; day <= to; day += kDay)
    for (const DailyMove& move : kMoves)
      if (day + move.second > from && day + move.second <= to)
        moves.push_back({day + move.second, move.cacheGrows});
  return moves;
}

}  // namespace kestrelix::demo

#include "platform/embedded/demo/memory_layout.h"

namespace kestrelix::embedded::demo {

namespace {

constexpr std::int64_t kMb = 1048576;
constexpr std::int64_t kDay = 86400;
constexpr std::int64_t kEvening = 4200;   // 01:10
constexpr std::int64_t kMorning = 30000;  // 08:20

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
  const std::int64_t second = time % kDay;
  if (database.has(10) && second >= kEvening && second < kMorning) {
    layout.cache += layout.granule;
    layout.sharedPool -= layout.granule;
  }
  return layout;
}

std::vector<MemoryMove> movesBetween(const Database& database, std::int64_t from, std::int64_t to) {
  std::vector<MemoryMove> moves;
  if (!database.has(10)) return moves;
  for (std::int64_t day = from / kDay * kDay; day <= to; day += kDay)
    for (const std::int64_t at : {day + kEvening, day + kMorning})
      if (at > from && at <= to) moves.push_back({at, at == day + kEvening});
  return moves;
}

}  // namespace kestrelix::embedded::demo

// How an instance's memory is divided at a moment. The cache takes a granule from the shared pool for the
// nightly batch and gives it back in the morning.
#pragma once

#include <cstdint>
#include <vector>

#include "demo/scene.h"

namespace kestrelix::demo {

/// Bytes.
struct MemoryLayout {
  std::int64_t cache = 0;
  std::int64_t sharedPool = 0;
  std::int64_t largePool = 0;
  std::int64_t javaPool = 0;
  std::int64_t streamsPool = 0;
  std::int64_t fixed = 0;
  std::int64_t logBuffer = 0;
  std::int64_t pgaTarget = 0;
  std::int64_t granule = 0;

  std::int64_t pools() const { return sharedPool + largePool + javaPool + streamsPool; }
  std::int64_t all() const { return cache + pools() + fixed + logBuffer; }
};

/// `time` is seconds since 1970 on the database's wall clock. Release 9 moves nothing by itself.
MemoryLayout memoryAt(const Database& database, std::int64_t time);

/// One move of a granule between the cache and the shared pool.
struct MemoryMove {
  std::int64_t time = 0;
  bool cacheGrows = false;
};

/// The moves after `from` up to `to`, in order.
std::vector<MemoryMove> movesBetween(const Database& database, std::int64_t from, std::int64_t to);

}  // namespace kestrelix::demo

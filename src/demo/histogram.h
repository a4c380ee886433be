// Counts by length: how waits and reads of an average length spread over buckets of doubling milliseconds.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>

#include "demo/random.h"

namespace kestrelix::demo {

/// Bucket i counts what took up to 2^i milliseconds and more than the bucket before; the last one all that is
/// longer.
using Histogram = std::array<std::int64_t, 13>;

/// The upper bound of a bucket in milliseconds.
constexpr std::int64_t bucketMillis(std::size_t bucket) { return std::int64_t{1} << bucket; }

/// Adds `count` events that took `micros` together: most at their average, a tail of longer ones. The buckets
/// grow by `count` in all.
inline void addSpread(Histogram& histogram, std::int64_t count, std::int64_t micros, Random& random) {
  if (count <= 0) return;
  const std::int64_t average = micros / count;
  std::size_t centre = 0;
  while (centre + 1 < histogram.size() && bucketMillis(centre) * 1000 < average) ++centre;
  std::int64_t left = count;
  const auto give = [&](std::size_t bucket, std::int64_t part) {
    part = std::min(part, left);
    histogram[std::min(bucket, histogram.size() - 1)] += part;
    left -= part;
  };
  // The longest are rare and not met every time.
  give(centre + 5, scaled(count, random.between(0, 3) / 2, 60000));
  give(centre + 4, scaled(count, random.between(0, 4), 20000));
  give(centre + 3, scaled(count, random.between(2, 7), 1000));
  give(centre + 2, scaled(count, random.between(15, 30), 1000));
  give(centre + 1, scaled(count, random.between(90, 140), 1000));
  if (centre > 0) give(centre - 1, scaled(count, random.between(280, 380), 1000));
  if (centre > 1) give(centre - 2, scaled(count, random.between(120, 200), 1000));
  give(centre, left);
}

}  // namespace kestrelix::demo

#pragma once

#include <string>

namespace kestrelix {

/// Whether the advice tells load times: release 9 had none.
enum class LoadTimes { Told, Missing };

/// What the library cache would hold and save with other sizes of a pool, as estimated at the end of the
/// pair, from stats$shared_pool_advice or stats$java_pool_advice; unsorted. `pool` is "shared" or "java",
/// `letters` begins the alias of the factor. Sizes are megabytes, times seconds.
std::string libraryCacheAdvice(const std::string& pool, const std::string& letters, LoadTimes times);

}  // namespace kestrelix

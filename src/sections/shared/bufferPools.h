// What the Sections on buffer pools share: the block size and cache sizes that they bind, and a pool's name.
#pragma once

#include <string>
#include <vector>

#include "report/statement.h"

namespace kestrelix {

/// bs: bytes of a block of the default size, from the pair's start (stats$parameter). -1 after a failure.
Bind blockSize();

/// k2_cache to rec_cache: bytes of each cache at the pair's end. They come from one run of getCACHE_SIZE, a
/// statement of the section object, and stay at 0 after a failure.
std::vector<Bind> cacheSizes();
/// The statement of getCACHE_SIZE (stats$parameter), which names `bs`. `defaultCache` is the parameter of the
/// default pool.
std::string cacheSizesStatement(const std::string& defaultCache);

/// Text: the first letter of the pool's name (D, K, R) for blocks of the default size, else the block size as
/// "2k" to "32k". `prefix` qualifies the columns, as "e.".
std::string poolName(const std::string& prefix = {});

}  // namespace kestrelix

// What STATSPACK's own package brings to the language.
#pragma once

#include <string_view>

#include "oracle_sql/functions/functions.h"

namespace kestrelix::statspack {

/// The function of that name, as in "STATSPACK.V1024" in any case, or null.
const oracle_sql::Function* packageFunction(std::string_view name);

}  // namespace kestrelix::statspack

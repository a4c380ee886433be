// The releases' facts in their compact written form, for release.cpp alone.
#pragma once

#include <string_view>

namespace kestrelix::statspack {

extern const std::string_view kTables;
extern const std::string_view kIdleEvents;

}  // namespace kestrelix::statspack

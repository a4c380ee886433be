#pragma once

#include <string>
#include <string_view>

#include "platform/failure.h"

namespace kestrelix {

/// The text ahead of the first point of an instance's version: "10" of "10.2.0.5.0". Empty without a point.
std::string majorVersion(std::string_view version);

/// Nothing for "9", "10" and "11"; for any other major version, of which there is no report, the box that
/// says so.
Failures versionGate(std::string_view major);

}  // namespace kestrelix

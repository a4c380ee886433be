#pragma once

#include <string>
#include <string_view>

#include "platform/message_box.h"

namespace kestrelix {

/// The text ahead of the first point of an instance's version: "10" of "10.2.0.5.0". Empty without a point.
std::string majorVersion(std::string_view version);

/// Is there a report for this major version? Shows the box for any but "9", "10" and "11".
bool passVersionGate(MessageBoxes& boxes, std::string_view major);

}  // namespace kestrelix

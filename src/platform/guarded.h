#pragma once

#include <exception>
#include <string>
#include <string_view>

#include "platform/message_box.h"

namespace kestrelix {

/// "(clsLoadProfile){getREDO_SIZE} Error": the text of the box that a failed member shows.
inline std::string failureText(std::string_view owner, std::string_view member) {
  return "(" + std::string(owner) + "){" + std::string(member) + "} Error";
}

/// The one handler over the body of a member that can fail: any exception becomes the member's box and false.
template <class Body>
bool guarded(MessageBoxes& boxes, std::string_view owner, std::string_view member, Body&& body) {
  try {
    body();
    return true;
  } catch (const std::exception& error) {
    boxes.show(BoxIcon::Critical, failureText(owner, member), error.what());
    return false;
  }
}

}  // namespace kestrelix

// What went wrong while something was read, kept until somebody shows it.
#pragma once

#include <exception>
#include <string>
#include <string_view>
#include <vector>

#include "platform/message_box.h"

namespace kestrelix {

/// One box that a failed member asks for, with the critical icon.
struct Failure {
  std::string box;              ///< its text
  std::string underlying = {};  ///< of the error behind it, if any; never part of the box

  bool operator==(const Failure&) const = default;
};

/// In the order in which they happened.
using Failures = std::vector<Failure>;

/// Shows a box for each.
void showFailures(MessageBoxes& boxes, const Failures& failures);

/// "(clsLoadProfile){getREDO_SIZE} Error": the text of the box of a failed member.
std::string failureText(std::string_view owner, std::string_view member);

/// The one handler over the body of a member that can fail: any exception becomes the member's failure and
/// false.
template <class Body>
bool guarded(Failures& failures, std::string_view owner, std::string_view member, Body&& body) {
  try {
    body();
    return true;
  } catch (const std::exception& error) {
    failures.push_back({failureText(owner, member), error.what()});
    return false;
  }
}

/// The same for a member of a window, whose box shows at once.
template <class Body>
bool guarded(MessageBoxes& boxes, std::string_view owner, std::string_view member, Body&& body) {
  Failures failures;
  const bool done = guarded(failures, owner, member, body);
  showFailures(boxes, failures);
  return done;
}

}  // namespace kestrelix

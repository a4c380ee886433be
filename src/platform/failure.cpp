#include "platform/failure.h"

namespace kestrelix {

void showFailures(MessageBoxes& boxes, const Failures& failures) {
  for (const Failure& failure : failures) boxes.show(BoxIcon::Critical, failure.box, failure.underlying);
}

std::string failureText(std::string_view owner, std::string_view member) {
  return "(" + std::string(owner) + "){" + std::string(member) + "} Error";
}

}  // namespace kestrelix

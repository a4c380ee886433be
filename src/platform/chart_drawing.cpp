#include "platform/chart_drawing.h"

namespace kestrelix {
namespace {

/// How many equal steps of a round value a digit falls into.
/// quarters.
int stepsOf(char digit) {
  switch (digit) {
    case '1':
      return 5;
    case '2':
    case '4':
    case '8':
      return 4;
    case '6':
      return 3;
    default:
      return digit - '0';
  }
}

}  // namespace

AxisSteps axisSteps(std::string_view maximum) {
  const std::size_t first = maximum.find_first_of("123456789");
  const char digit = first == std::string_view::npos ? '1' : maximum[first];
  const int count = stepsOf(digit);
  const std::size_t point = maximum.find('.');
  const bool zerosBehind = point == std::string_view::npos && maximum.size() > 1;
  const int own = point == std::string_view::npos ? 0 : static_cast<int>(maximum.size() - point - 1);
  return {count, (digit - '0') % count == 0 || zerosBehind ? own : own + 1};
}

std::vector<std::string> labelLines(const std::string& label) {
  const bool time = label.size() == 19 && label[4] == '-' && label[7] == '-' && label[10] == ' ' &&
                    label[13] == ':' && label[16] == ':';
  if (!time) return {label};
  return {label.substr(11, 5), label.substr(5, 5)};
}

}  // namespace kestrelix

// How a chart is drawn, as far as it is no matter of the screen.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kestrelix {

/// The lines of the value axis above its foot, and the digits behind the point that their values need.
struct AxisSteps {
  int count;
  int decimals;
};

/// Steps of an axis from 0 to `maximum`, a plain decimal text with one digit other than 0: seven of 0.01 for
/// 0.07, five of 20 for 100.
AxisSteps axisSteps(std::string_view maximum);

/// A point's label in the width of a bar: a time YYYY-MM-DD HH24:MI:SS as its hour over its day, without year
/// and seconds; any other text as it is.
std::vector<std::string> labelLines(const std::string& label);

}  // namespace kestrelix

#pragma once

#include <string_view>

namespace kestrelix {

std::string_view trimBlanks(std::string_view text);

/// Is the text a plain decimal number: an optional sign, digits with at most one point among, before or
/// behind them, and an optional exponent? Blanks are not part of a number.
bool isNumericText(std::string_view text);

}  // namespace kestrelix

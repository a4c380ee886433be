#pragma once

#include <string>
#include <string_view>

namespace kestrelix::odbc {

/// A driver's text of a number as plain decimal text: a digit before the point, no exponent, no zeros at the
/// end of the fraction, all its digits. A decimal comma, which a client's territory can bring, is taken as
/// the point. A text that is no number stays as it is.
std::string plainNumber(std::string_view text);

}  // namespace kestrelix::odbc

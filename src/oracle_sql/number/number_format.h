// Numbers to text and back by a format model.
#pragma once

#include <string>
#include <string_view>

#include "oracle_sql/number/number.h"

namespace oracle_sql {

/// TO_CHAR(number, model): 9 0 . , D G $ MI S PR B EEEE V RN rn X x FM TM9 TME. A value that doesn't fit
/// gives '#' over the whole width; rounding is on the decimal value. ORA-01481 for a model that is none; L, C
/// and U, which stand for a session's currencies, are refused as unsupported.
std::string formatNumber(const Number& number, std::string_view model);

/// TO_NUMBER(text, model). ORA-01722 for text that doesn't fit the model, ORA-01481 for a model that is none.
Number parseNumber(std::string_view text, std::string_view model);

}  // namespace oracle_sql

#pragma once

#include <string>
#include <string_view>

#include "oracle_sql/number.h"

namespace oracle_sql {

// What D, G, L, C and U stand for.
struct NumberSymbols {
  char point = '.';
  char group = ',';
  std::string local = "$";
  std::string iso = "USD";
  std::string dual = "$";
};

// TO_CHAR(number, model): 9 0 . , D G $ L C U MI S PR B EEEE V RN rn X x FM TM9 TME. A value that doesn't fit
// gives '#' over the whole width; rounding is on the decimal value. ORA-01481 for a model that is none.
std::string formatNumber(const Number& number, std::string_view model, const NumberSymbols& symbols = {});

// TO_NUMBER(text, model). ORA-01722 for text that doesn't fit the model, ORA-01481 for a model that is none.
Number parseNumber(std::string_view text, std::string_view model, const NumberSymbols& symbols = {});

}  // namespace oracle_sql

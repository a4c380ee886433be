#pragma once

#include <string_view>

#include "oracle_sql/number_format.h"

namespace oracle_sql::library {

// The third argument of TO_CHAR, TO_NUMBER and TO_DATE: "NLS_NUMERIC_CHARACTERS = ',.' NLS_CURRENCY = 'EUR'".
// The symbols of numbers can be chosen; of languages and calendars only the session's own (English,
// Gregorian) are known, another fails as unsupported. ORA-12702 for a text that names no parameter.
NumberSymbols numberSymbols(std::string_view settings);

// The second argument of NLS_UPPER and its like: "NLS_SORT = BINARY". Another sort fails as unsupported,
// another parameter by ORA-12702.
void requireBinarySort(std::string_view settings);

}  // namespace oracle_sql::library

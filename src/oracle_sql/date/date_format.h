// Dates to text and back by a format model.
#pragma once

#include <string>
#include <string_view>

#include "oracle_sql/date/date.h"

namespace oracle_sql {

inline constexpr std::string_view kDefaultDateModel = "DD-MON-RR";

/// TO_CHAR(date, model): English names, weeks of the territory AMERICA (Sunday is day 1).
/// ORA-01821 for an element that there is none of.
std::string formatDate(const Date& date, std::string_view model);

/// TO_DATE(text, model). What the model doesn't name is the first day of the current month (`context.now`),
/// midnight. The ORA-018xx errors of the server for text that doesn't fit.
Date parseDate(std::string_view text, std::string_view model, const Context& context);

/// The day that DATE 'YYYY-MM-DD' writes; the year may bear a sign. ORA-01861 for another form, else as
/// Date::fromFields.
Date dateOfLiteral(std::string_view text);

}  // namespace oracle_sql

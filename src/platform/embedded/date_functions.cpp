// A DATE and a length of time of the calendar.
#include "oracle_sql/date.h"
#include "oracle_sql/interval.h"
#include "platform/embedded/function_frame.h"
#include "platform/embedded/storage.h"

namespace kestrelix::embedded {
namespace {

/// date_interval(date, amount, whether the amount is months, place)
void dateInterval(sqlite3_context* context, int, Values arguments) {
  if (isNull(arguments[0])) return sqlite3_result_null(context);
  try {
    const values::Interval interval{sqlite3_value_int64(arguments[1]), sqlite3_value_int(arguments[2]) != 0};
    giveValue(context, values::Date{sqlite3_value_int64(arguments[0])} + interval);
  } catch (...) {
    giveFailure(context, evaluationOf(context), offsetOf(arguments[3]));
  }
}

}  // namespace

void registerDateFunctions(sqlite3* connection, Evaluation& evaluation) {
  checkRegistration(sqlite3_create_function_v2(connection, "date_interval", 4, kPure, &evaluation,
                                               dateInterval, nullptr, nullptr, nullptr),
                    "date_interval");
}

}  // namespace kestrelix::embedded

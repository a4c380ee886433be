// Aggregates and moving aggregates in NUMBER.
#include <memory>
#include <type_traits>

#include "oracle_sql/functions/aggregates.h"
#include "repository_file/function_frame.h"
#include "repository_file/storage.h"

namespace kestrelix::repository_file {
namespace {

/// An accumulator in SQLite's own memory, which begins as zeroes: an empty one. Null when `create` is false
/// and no row has come.
template <class Accumulator>
Accumulator* inPlace(sqlite3_context* context, bool create) {
  static_assert(std::is_trivially_destructible_v<Accumulator>);
  return static_cast<Accumulator*>(sqlite3_aggregate_context(context, create ? sizeof(Accumulator) : 0));
}

template <class Accumulator>
void step(sqlite3_context* context, int, Values arguments) {
  auto* accumulator = inPlace<Accumulator>(context, true);
  if (!accumulator) return sqlite3_result_error_nomem(context);
  if (isNull(arguments[0])) return;
  try {
    accumulator->step(numberOf(arguments[0]));
  } catch (...) {
    giveFailure(context, evaluationOf(context), 0);
  }
}

template <class Accumulator>
void inverse(sqlite3_context* context, int, Values arguments) {
  if (isNull(arguments[0])) return;
  try {
    inPlace<Accumulator>(context, true)->inverse(numberOf(arguments[0]));
  } catch (...) {
    giveFailure(context, evaluationOf(context), 0);
  }
}

template <class Accumulator, values::Value (Accumulator::*Result)() const>
void result(sqlite3_context* context) {
  const auto* accumulator = inPlace<Accumulator>(context, false);
  if (!accumulator) return sqlite3_result_null(context);
  try {
    giveValue(context, (accumulator->*Result)());
  } catch (...) {
    giveFailure(context, evaluationOf(context), 0);
  }
}

template <class Accumulator, values::Value (Accumulator::*Result)() const>
void addMoving(sqlite3* connection, const char* name, Evaluation& evaluation) {
  checkRegistration(sqlite3_create_window_function(connection, name, 1, kPure, &evaluation, step<Accumulator>,
                                                   result<Accumulator, Result>, result<Accumulator, Result>,
                                                   inverse<Accumulator>, nullptr),
                    name);
}

/// The sum of whole numbers, in place of SQLite's own, which tells only in words that it left 64 bits.
struct WholeSum {
  std::int64_t sum;
  std::int64_t count;
};

/// `Sign` 1 for a row that comes, -1 for one that leaves the window.
template <int Sign>
void wholeStep(sqlite3_context* context, int, Values arguments) {
  auto* whole = inPlace<WholeSum>(context, true);
  if (!whole) return sqlite3_result_error_nomem(context);
  if (isNull(arguments[0])) return;
  const std::int64_t value = sqlite3_value_int64(arguments[0]);
  whole->count += Sign;
  if (!(Sign > 0 ? __builtin_add_overflow(whole->sum, value, &whole->sum)
                 : __builtin_sub_overflow(whole->sum, value, &whole->sum)))
    return;
  evaluationOf(context).sumTooLarge = true;
  sqlite3_result_error(context, "a sum of whole numbers leaves 64 bits", -1);
}

void wholeResult(sqlite3_context* context) {
  const auto* whole = inPlace<WholeSum>(context, false);
  if (!whole || whole->count == 0) return sqlite3_result_null(context);
  sqlite3_result_int64(context, whole->sum);
}

/// The extreme of a group; `Sign` 1 for the greatest.
struct Extreme {
  bool any;
  values::Number number;
};

template <int Sign>
void extremeStep(sqlite3_context* context, int, Values arguments) {
  auto* extreme = inPlace<Extreme>(context, true);
  if (!extreme) return sqlite3_result_error_nomem(context);
  if (isNull(arguments[0])) return;
  try {
    const values::Number number = numberOf(arguments[0]);
    if (!extreme->any || compare(number, extreme->number) == Sign) *extreme = {true, number};
  } catch (...) {
    giveFailure(context, evaluationOf(context), 0);
  }
}

void extremeResult(sqlite3_context* context) {
  const auto* extreme = inPlace<Extreme>(context, false);
  if (!extreme || !extreme->any) return sqlite3_result_null(context);
  giveNumber(context, extreme->number);
}

/// An aggregate of a window that moves, in an object of its own.
template <class Moving>
Moving*& movingOf(sqlite3_context* context) {
  return *static_cast<Moving**>(sqlite3_aggregate_context(context, sizeof(Moving*)));
}

template <class Moving>
void movingStep(sqlite3_context* context, int, Values arguments) {
  try {
    Moving*& moving = movingOf<Moving>(context);
    if (!moving) moving = new Moving;
    if (!isNull(arguments[0])) moving->step(numberOf(arguments[0]));
  } catch (...) {
    giveFailure(context, evaluationOf(context), 0);
  }
}

template <class Moving>
void movingInverse(sqlite3_context* context, int, Values arguments) {
  try {
    Moving* moving = movingOf<Moving>(context);
    if (moving && !isNull(arguments[0])) moving->inverse(numberOf(arguments[0]));
  } catch (...) {
    giveFailure(context, evaluationOf(context), 0);
  }
}

template <class Moving, auto Result>
void movingValue(sqlite3_context* context) {
  Moving* moving = movingOf<Moving>(context);
  if (!moving) return sqlite3_result_null(context);
  try {
    giveValue(context, (moving->*Result)());
  } catch (...) {
    giveFailure(context, evaluationOf(context), 0);
  }
}

template <class Moving, auto Result>
void movingFinal(sqlite3_context* context) {
  const std::unique_ptr<Moving> moving(movingOf<Moving>(context));
  movingValue<Moving, Result>(context);
}

template <class Moving, auto Result>
void addMovingWindow(sqlite3* connection, const char* name, Evaluation& evaluation) {
  checkRegistration(
      sqlite3_create_window_function(connection, name, 1, kPure, &evaluation, movingStep<Moving>,
                                     movingFinal<Moving, Result>, movingValue<Moving, Result>,
                                     movingInverse<Moving>, nullptr),
      name);
}

/// A scalar subquery's value: the only row's, NULL without one.
void onlyRowStep(sqlite3_context* context, int, Values arguments) {
  auto** kept = static_cast<sqlite3_value**>(sqlite3_aggregate_context(context, sizeof(sqlite3_value*)));
  if (!kept) return sqlite3_result_error_nomem(context);
  if (!*kept) {
    *kept = sqlite3_value_dup(arguments[0]);
    return;
  }
  try {
    throw values::FunctionError(1427, "single-row subquery returns more than one row");
  } catch (...) {
    giveFailure(context, evaluationOf(context), offsetOf(arguments[1]));
  }
}

void onlyRowFinal(sqlite3_context* context) {
  auto** kept = static_cast<sqlite3_value**>(sqlite3_aggregate_context(context, 0));
  if (!kept || !*kept) return sqlite3_result_null(context);
  if (evaluationOf(context).failure)
    sqlite3_result_error(context, evaluationOf(context).failure->message.c_str(), -1);
  else
    sqlite3_result_value(context, *kept);
  sqlite3_value_free(*kept);
  *kept = nullptr;
}

}  // namespace

void registerAggregates(sqlite3* connection, Evaluation& evaluation) {
  using values::SumAccumulator;
  using values::VarianceAccumulator;
  checkRegistration(sqlite3_create_window_function(connection, "sum", 1, kPure, &evaluation, wholeStep<1>,
                                                   wholeResult, wholeResult, wholeStep<-1>, nullptr),
                    "sum");
  addMoving<SumAccumulator, &SumAccumulator::sum>(connection, "num_sum", evaluation);
  addMoving<SumAccumulator, &SumAccumulator::average>(connection, "num_avg", evaluation);
  addMoving<VarianceAccumulator, &VarianceAccumulator::variance>(connection, "num_variance", evaluation);
  addMoving<VarianceAccumulator, &VarianceAccumulator::standardDeviation>(connection, "num_stddev",
                                                                          evaluation);

  const auto addAggregate = [&](const char* name, int count, auto stepFunction, auto finalFunction) {
    checkRegistration(sqlite3_create_function_v2(connection, name, count, kPure, &evaluation, nullptr,
                                                 stepFunction, finalFunction, nullptr),
                      name);
  };
  addAggregate("num_min", 1, extremeStep<-1>, extremeResult);
  addAggregate("num_max", 1, extremeStep<1>, extremeResult);
  addAggregate("only_row", 2, onlyRowStep, onlyRowFinal);
  using values::MovingExtremeAccumulator;
  using values::MovingSumAccumulator;
  addMovingWindow<MovingExtremeAccumulator, &MovingExtremeAccumulator::minimum>(connection, "num_min_moving",
                                                                                evaluation);
  addMovingWindow<MovingExtremeAccumulator, &MovingExtremeAccumulator::maximum>(connection, "num_max_moving",
                                                                                evaluation);
  addMovingWindow<MovingSumAccumulator, &MovingSumAccumulator::sum>(connection, "num_sum_moving", evaluation);
  addMovingWindow<MovingSumAccumulator, &MovingSumAccumulator::average>(connection, "num_avg_moving",
                                                                        evaluation);
}

}  // namespace kestrelix::repository_file

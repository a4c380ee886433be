// Aggregates: over groups, over windows that move, and with KEEP (DENSE_RANK FIRST ...) over the rows that
// share the first place of an order.
#include "oracle_sql/functions/aggregates.h"

#include <optional>
#include <set>
#include <string>

#include "repository_file/sort_keys.h"
#include "repository_file/storage.h"

namespace kestrelix::repository_file {
namespace {

/// An accumulator of the language; numbers alone.
template <class Accumulator, auto Result>
struct Numbers {
  Accumulator accumulator;
  void take(sqlite3_value* value) { accumulator.step(numberOf(value)); }
  void takeBack(sqlite3_value* value) { accumulator.inverse(numberOf(value)); }
  void give(sqlite3_context* context) { giveValue(context, (accumulator.*Result)()); }
};

/// MIN and MAX of numbers that may be broken; `Sign` 1 for the greatest.
template <int Sign>
struct NumberExtreme {
  std::optional<values::Number> best;
  void take(sqlite3_value* value) {
    const values::Number number = numberOf(value);
    if (!best || compare(number, *best) == Sign) best = number;
  }
  void give(sqlite3_context* context) const {
    if (best) giveNumber(context, *best);
  }
};

/// The same of what compares as it is stored.
template <int Sign>
struct Extreme {
  KeptValue best;
  void take(sqlite3_value* value) {
    if (!best || compareStored(value, best.get()) * Sign > 0) best = kept(value);
  }
  void give(sqlite3_context* context) const {
    if (best) sqlite3_result_value(context, best.get());
  }
};

struct Count {
  long count = 0;
  void take(sqlite3_value*) { ++count; }
  void give(sqlite3_context* context) const { sqlite3_result_int64(context, count); }
};

/// Of all the rows whose value is there.
template <class Aggregate>
struct Plain : Aggregate {
  void take(int, Values arguments) {
    if (!isNull(arguments[0])) Aggregate::take(arguments[0]);
  }
  void takeBack(Values arguments) {
    if (!isNull(arguments[0])) Aggregate::takeBack(arguments[0]);
  }
};

/// Each value once.
template <class Aggregate>
struct Distinct {
  Aggregate aggregate;
  std::set<std::string> seen;

  void take(sqlite3_value* value) {
    if (seen.insert(identityOf(value)).second) aggregate.take(value);
  }
  void give(sqlite3_context* context) { aggregate.give(context); }
};

/// KEEP: arguments are the value and the sort keys; without keys all rows share the first place. The
/// aggregate begins anew with every row that comes before all others so far.
template <class Aggregate>
struct Keeping : WholePartition {
  static constexpr int kValues = 1;
  std::optional<SortKeys> first;
  Aggregate aggregate;

  void take(int count, Values arguments) {
    const int order = first ? first->compare(kValues, arguments) : 1;
    if (order < 0) return;
    if (order > 0) {
      first.emplace(kValues, count, arguments);
      aggregate = Aggregate();
    }
    if (!isNull(arguments[0])) aggregate.take(arguments[0]);
  }
  void give(sqlite3_context* context) { aggregate.give(context); }
};

/// The sum of whole numbers, in place of SQLite's own, which tells only in words that it left 64 bits.
struct WholeSum {
  std::int64_t sum;
  std::int64_t count;
  void give(sqlite3_context* context) const {
    if (count != 0) sqlite3_result_int64(context, sum);
  }
};

/// `Sign` 1 for a row that comes, -1 for one that leaves the window.
template <int Sign>
void wholeStep(sqlite3_context* context, int, Values arguments) {
  guarded(context, nullptr, [&] {
    auto* whole = stateOf<WholeSum>(context, true);
    if (isNull(arguments[0])) return;
    const std::int64_t value = sqlite3_value_int64(arguments[0]);
    whole->count += Sign;
    if (!(Sign > 0 ? __builtin_add_overflow(whole->sum, value, &whole->sum)
                   : __builtin_sub_overflow(whole->sum, value, &whole->sum)))
      return;
    evaluationOf(context).sumTooLarge = true;
    sqlite3_result_error(context, "a sum of whole numbers leaves 64 bits", -1);
  });
}

/// A scalar subquery's value: the only row's, NULL without one.
struct OnlyRow {
  KeptValue value;
  void give(sqlite3_context* context) const {
    if (value) sqlite3_result_value(context, value.get());
  }
};

void onlyRowStep(sqlite3_context* context, int, Values arguments) {
  guarded(context, arguments[1], [&] {
    if (stateOf<OnlyRow>(context, false))
      throw values::FunctionError(1427, "single-row subquery returns more than one row");
    stateOf<OnlyRow>(context, true)->value = kept(arguments[0]);
  });
}

void addAggregate(sqlite3* connection, const char* name, int count, SqliteFunction step,
                  void (*final)(sqlite3_context*), Evaluation& evaluation) {
  checkRegistration(
      sqlite3_create_function_v2(connection, name, count, kPure, &evaluation, nullptr, step, final, nullptr),
      name);
}

template <class Aggregate>
void addGroup(sqlite3* connection, const char* name, Evaluation& evaluation) {
  addAggregate(connection, name, 1, take<Plain<Aggregate>>, finish<Plain<Aggregate>>, evaluation);
}

template <class Aggregate>
void addWindow(sqlite3* connection, const char* name, Evaluation& evaluation) {
  addMoving<Plain<Aggregate>>(connection, name, 1, evaluation);
}

template <class Aggregate>
void addKeeping(sqlite3* connection, const std::string& name, Evaluation& evaluation) {
  addMoving<Keeping<Aggregate>>(connection, ("keep_" + name).c_str(), -1, evaluation);
  addMoving<Keeping<Distinct<Aggregate>>>(connection, ("keep_" + name + "_distinct").c_str(), -1, evaluation);
}

}  // namespace

void registerAggregates(sqlite3* connection, Evaluation& evaluation) {
  using values::MovingExtremeAccumulator;
  using values::MovingSumAccumulator;
  using values::SumAccumulator;
  using values::VarianceAccumulator;
  using Sum = Numbers<SumAccumulator, &SumAccumulator::sum>;
  using Average = Numbers<SumAccumulator, &SumAccumulator::average>;
  using Variance = Numbers<VarianceAccumulator, &VarianceAccumulator::variance>;
  using Deviation = Numbers<VarianceAccumulator, &VarianceAccumulator::standardDeviation>;
  using MovingMin = Numbers<MovingExtremeAccumulator, &MovingExtremeAccumulator::minimum>;
  using MovingMax = Numbers<MovingExtremeAccumulator, &MovingExtremeAccumulator::maximum>;
  using MovingSum = Numbers<MovingSumAccumulator, &MovingSumAccumulator::sum>;
  using MovingAverage = Numbers<MovingSumAccumulator, &MovingSumAccumulator::average>;

  checkRegistration(
      sqlite3_create_window_function(connection, "sum", 1, kPure, &evaluation, wholeStep<1>, finish<WholeSum>,
                                     current<WholeSum>, wholeStep<-1>, nullptr),
      "sum");
  addAggregate(connection, "only_row", 2, onlyRowStep, finish<OnlyRow>, evaluation);
  addGroup<NumberExtreme<-1>>(connection, "num_min", evaluation);
  addGroup<NumberExtreme<1>>(connection, "num_max", evaluation);
  addWindow<Sum>(connection, "num_sum", evaluation);
  addWindow<Average>(connection, "num_avg", evaluation);
  addWindow<Variance>(connection, "num_variance", evaluation);
  addWindow<Deviation>(connection, "num_stddev", evaluation);
  addWindow<MovingMin>(connection, "num_min_moving", evaluation);
  addWindow<MovingMax>(connection, "num_max_moving", evaluation);
  addWindow<MovingSum>(connection, "num_sum_moving", evaluation);
  addWindow<MovingAverage>(connection, "num_avg_moving", evaluation);

  addKeeping<Count>(connection, "count", evaluation);
  addKeeping<Extreme<-1>>(connection, "min", evaluation);
  addKeeping<Extreme<1>>(connection, "max", evaluation);
  addKeeping<NumberExtreme<-1>>(connection, "num_min", evaluation);
  addKeeping<NumberExtreme<1>>(connection, "num_max", evaluation);
  addKeeping<Sum>(connection, "num_sum", evaluation);
  addKeeping<Average>(connection, "num_avg", evaluation);
  addKeeping<Variance>(connection, "num_variance", evaluation);
  addKeeping<Deviation>(connection, "num_stddev", evaluation);
}

}  // namespace kestrelix::repository_file

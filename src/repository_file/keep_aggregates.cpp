// KEEP (DENSE_RANK FIRST ...): an aggregate over the rows that share the first place of an order. Arguments
// are the value and the sort keys; without keys all rows share it.
#include <optional>
#include <set>
#include <string>

#include "oracle_sql/functions/aggregates.h"
#include "repository_file/sort_keys.h"
#include "repository_file/storage.h"

namespace kestrelix::repository_file {
namespace {

struct Count {
  long count = 0;
  void take(sqlite3_value*) { ++count; }
  void give(sqlite3_context* context) const { sqlite3_result_int64(context, count); }
};

/// An accumulator of the language; numbers alone.
template <class Accumulator, values::Value (Accumulator::*Result)() const>
struct Numbers {
  Accumulator accumulator;
  void take(sqlite3_value* value) { accumulator.step(numberOf(value)); }
  void give(sqlite3_context* context) const { giveValue(context, (accumulator.*Result)()); }
};

/// MIN and MAX, `Sign` 1 for the greatest, of what compares as it is stored.
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

/// The same of numbers that may be broken.
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

/// Each value once.
template <class Aggregate>
struct Distinct {
  Aggregate aggregate;
  std::set<std::string> seen;

  void take(sqlite3_value* value) {
    if (seen.insert(identityOf(value)).second) aggregate.take(value);
  }
  void give(sqlite3_context* context) const { aggregate.give(context); }
};

/// The aggregate begins anew with every row that comes before all others so far.
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
  void give(sqlite3_context* context) const { aggregate.give(context); }
};

template <class Aggregate>
void add(sqlite3* connection, const std::string& name, Evaluation& evaluation) {
  addMoving<Keeping<Aggregate>>(connection, ("keep_" + name).c_str(), -1, evaluation);
  addMoving<Keeping<Distinct<Aggregate>>>(connection, ("keep_" + name + "_distinct").c_str(), -1, evaluation);
}

}  // namespace

void registerKeepAggregates(sqlite3* connection, Evaluation& evaluation) {
  using values::SumAccumulator;
  using values::VarianceAccumulator;
  add<Count>(connection, "count", evaluation);
  add<Extreme<-1>>(connection, "min", evaluation);
  add<Extreme<1>>(connection, "max", evaluation);
  add<NumberExtreme<-1>>(connection, "num_min", evaluation);
  add<NumberExtreme<1>>(connection, "num_max", evaluation);
  add<Numbers<SumAccumulator, &SumAccumulator::sum>>(connection, "num_sum", evaluation);
  add<Numbers<SumAccumulator, &SumAccumulator::average>>(connection, "num_avg", evaluation);
  add<Numbers<VarianceAccumulator, &VarianceAccumulator::variance>>(connection, "num_variance", evaluation);
  add<Numbers<VarianceAccumulator, &VarianceAccumulator::standardDeviation>>(connection, "num_stddev",
                                                                             evaluation);
}

}  // namespace kestrelix::repository_file

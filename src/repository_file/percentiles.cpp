// MEDIAN, PERCENTILE_CONT and PERCENTILE_DISC: what lies at a share of the way through the sorted values of a
// group. NULLs are passed over.
#include <algorithm>
#include <type_traits>
#include <vector>

#include "oracle_sql/date/date.h"
#include "repository_file/sort_keys.h"
#include "repository_file/storage.h"

namespace kestrelix::repository_file {
namespace {

using values::Number;

/// A number from 0 to 1.
Number shareOf(sqlite3_value* value) {
  const Number share = isNull(value) ? Number(-1) : numberOf(value);
  if (share.isNegative() || Number(1) < share)
    values::raiseArgumentOutOfRange(isNull(value) ? "" : share.toText());
  return share;
}

Number between(const Number& low, const Number& high, const Number& part) {
  return low * (Number(1) - part) + high * part;
}

values::Date between(const values::Date& low, const values::Date& high, const Number& part) {
  return low + (high - low) * part;
}

/// Between two values it takes in that part of their distance. Arguments are the value, and for a percentile
/// the share and 1 if the order is descending.
template <class Value>
struct Continuous : WholePartition {
  std::vector<Value> sorted;
  Number share = Number(1) / Number(2);
  bool descending = false;

  void take(int count, Values arguments) {
    if (count > 1) {
      share = shareOf(arguments[1]);
      descending = sqlite3_value_int(arguments[2]) != 0;
    }
    if (isNull(arguments[0])) return;
    if constexpr (std::is_same_v<Value, values::Date>)
      sorted.push_back({sqlite3_value_int64(arguments[0])});
    else
      sorted.push_back(numberOf(arguments[0]));
  }
  void give(sqlite3_context* context) {
    if (sorted.empty()) return;
    std::sort(sorted.begin(), sorted.end());
    if (descending) std::reverse(sorted.begin(), sorted.end());
    // From 1, as the server counts: so the rounding of a broken share goes the same way.
    const Number place = Number(1) + share * Number(static_cast<std::int64_t>(sorted.size() - 1));
    const Number below = place.floor();
    const auto at = static_cast<std::size_t>(below.clampToInt64());
    giveValue(context, place == below ? sorted[at - 1] : between(sorted[at - 1], sorted[at], place - below));
  }
};

/// The first value that as large a share of all comes up to. Arguments are the value, the share and the sort
/// key.
struct Discrete : WholePartition {
  static constexpr int kValues = 2;
  struct Row {
    KeptValue value;
    SortKeys key;
  };
  std::vector<Row> rows;
  Number share;

  void take(int count, Values arguments) {
    share = shareOf(arguments[1]);
    if (!isNull(arguments[0])) rows.push_back({kept(arguments[0]), SortKeys(kValues, count, arguments)});
  }
  void give(sqlite3_context* context) {
    if (rows.empty()) return;
    std::stable_sort(rows.begin(), rows.end(),
                     [](const Row& a, const Row& b) { return a.key.compare(b.key) < 0; });
    const Number count(static_cast<std::int64_t>(rows.size()));
    const auto place = static_cast<std::size_t>((share * count).ceil().clampToInt64());
    sqlite3_result_value(context, rows[std::max<std::size_t>(place, 1) - 1].value.get());
  }
};

}  // namespace

void registerPercentiles(sqlite3* connection, Evaluation& evaluation) {
  for (const int count : {1, 3}) {
    addMoving<Continuous<Number>>(connection, "num_percentile", count, evaluation);
    addMoving<Continuous<values::Date>>(connection, "date_percentile", count, evaluation);
  }
  addMoving<Discrete>(connection, "percentile_disc", -1, evaluation);
}

}  // namespace kestrelix::repository_file

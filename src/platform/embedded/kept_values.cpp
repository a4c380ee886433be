// Aggregates that must keep the values they are given: of a moving frame, or to sort them at the end.
#include <algorithm>
#include <deque>
#include <map>
#include <string>
#include <vector>

#include "oracle_sql/number.h"
#include "platform/embedded/sort_keys.h"
#include "platform/embedded/storage.h"

namespace kestrelix::embedded {
namespace {

/// FIRST_VALUE and LAST_VALUE that pass over NULL: the frame's values that are there, in its order.
template <bool Last>
struct KnownValues {
  std::deque<KeptValue> values;

  void take(int, Values arguments) {
    if (!isNull(arguments[0])) values.push_back(kept(arguments[0]));
  }
  void takeBack(Values arguments) {
    if (!isNull(arguments[0]) && !values.empty()) values.pop_front();
  }
  void give(sqlite3_context* context) const {
    if (!values.empty()) sqlite3_result_value(context, (Last ? values.back() : values.front()).get());
  }
};

/// COUNT(DISTINCT x) OVER: how often each value stands in the frame.
struct DistinctValues {
  std::map<std::string, long> counts;

  void take(int, Values arguments) {
    if (!isNull(arguments[0])) ++counts[identityOf(arguments[0])];
  }
  void takeBack(Values arguments) {
    if (isNull(arguments[0])) return;
    const auto found = counts.find(identityOf(arguments[0]));
    if (found != counts.end() && --found->second == 0) counts.erase(found);
  }
  void give(sqlite3_context* context) const {
    sqlite3_result_int64(context, static_cast<sqlite3_int64>(counts.size()));
  }
};

/// MEDIAN of numbers: the middle one, or the mean of the two in the middle.
struct Median {
  std::vector<values::Number> numbers;

  void take(int, Values arguments) {
    if (!isNull(arguments[0])) numbers.push_back(numberOf(arguments[0]));
  }
  void give(sqlite3_context* context) {
    if (numbers.empty()) return;
    std::sort(numbers.begin(), numbers.end());
    const std::size_t middle = numbers.size() / 2;
    if (numbers.size() % 2 == 1) return giveNumber(context, numbers[middle]);
    giveNumber(context, (numbers[middle - 1] + numbers[middle]) / values::Number(2));
  }
};

/// LISTAGG: arguments are the text, what stands between two, and the sort keys.
struct TextList {
  static constexpr int kValues = 2;
  struct Row {
    std::string text;
    SortKeys keys;
  };
  std::vector<Row> rows;
  std::string between;

  static std::string textOf(sqlite3_value* value) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return text ? std::string(text, static_cast<std::size_t>(sqlite3_value_bytes(value))) : std::string();
  }
  void take(int count, Values arguments) {
    if (isNull(arguments[0])) return;
    between = textOf(arguments[1]);
    rows.push_back({textOf(arguments[0]), SortKeys(kValues, count, arguments)});
  }
  void give(sqlite3_context* context) {
    std::stable_sort(rows.begin(), rows.end(),
                     [](const Row& a, const Row& b) { return a.keys.compare(b.keys) < 0; });
    std::string text;
    for (const Row& row : rows) text += (&row == rows.data() ? "" : between) + row.text;
    giveValue(context, values::Value::text(std::move(text)));
  }
};

}  // namespace

void registerKeptValues(sqlite3* connection, Evaluation& evaluation) {
  addMoving<KnownValues<false>>(connection, "first_known", 1, evaluation);
  addMoving<KnownValues<true>>(connection, "last_known", 1, evaluation);
  addMoving<DistinctValues>(connection, "count_distinct", 1, evaluation);
  addAggregate<Median>(connection, "num_median", 1, evaluation);
  addAggregate<TextList>(connection, "listagg", -1, evaluation);
}

}  // namespace kestrelix::embedded

// Aggregates that must keep the values they are given: of a moving frame, or to sort them at the end.
#include <algorithm>
#include <deque>
#include <string>
#include <vector>

#include "repository_file/sort_keys.h"
#include "repository_file/storage.h"

namespace kestrelix::repository_file {
namespace {

/// The longest VARCHAR2 of a statement, in bytes.
constexpr std::size_t kMaxText = 4000;

/// LAG, FIRST_VALUE and the like that pass over NULL: the frame's values that are there, in its order. A
/// second argument tells the how manieth of them is asked for, from 1.
template <bool Last>
struct KnownValues {
  std::deque<KeptValue> values;
  std::size_t which = 1;

  void take(int count, Values arguments) {
    if (count > 1) which = static_cast<std::size_t>(sqlite3_value_int64(arguments[1]));
    if (!isNull(arguments[0])) values.push_back(kept(arguments[0]));
  }
  void takeBack(Values arguments) {
    if (!isNull(arguments[0]) && !values.empty()) values.pop_front();
  }
  void give(sqlite3_context* context) const {
    if (which > values.size()) return;
    sqlite3_result_value(context, values[Last ? values.size() - which : which - 1].get());
  }
};

/// LISTAGG: arguments are the text, what stands between two, and the sort keys.
struct TextList : WholePartition {
  static constexpr int kValues = 2;
  struct Row {
    std::string text;
    SortKeys keys;
  };
  std::vector<Row> rows;
  std::string between;

  void take(int count, Values arguments) {
    if (isNull(arguments[0])) return;
    between = textOf(arguments[1]);
    rows.push_back({std::string(textOf(arguments[0])), SortKeys(kValues, count, arguments)});
  }
  void give(sqlite3_context* context) {
    std::stable_sort(rows.begin(), rows.end(),
                     [](const Row& a, const Row& b) { return a.keys.compare(b.keys) < 0; });
    std::string text;
    for (const Row& row : rows) text += (&row == rows.data() ? "" : between) + row.text;
    if (text.size() > kMaxText)
      throw values::FunctionError(1489, "result of string concatenation is too long");
    giveValue(context, values::Value::text(std::move(text)));
  }
};

}  // namespace

void registerKeptValues(sqlite3* connection, Evaluation& evaluation) {
  for (const int count : {1, 2}) {
    addMoving<KnownValues<false>>(connection, "first_known", count, evaluation);
    addMoving<KnownValues<true>>(connection, "last_known", count, evaluation);
  }
  addMoving<TextList>(connection, "listagg", -1, evaluation);
}

}  // namespace kestrelix::repository_file

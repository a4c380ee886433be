// Aggregates that must keep the values they are given: of a moving frame, or to sort them at the end.
#include <algorithm>
#include <deque>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "oracle_sql/number.h"
#include "platform/embedded/function_frame.h"
#include "platform/embedded/storage.h"

namespace kestrelix::embedded {
namespace {

struct FreeValue {
  void operator()(sqlite3_value* value) const { sqlite3_value_free(value); }
};
using KeptValue = std::unique_ptr<sqlite3_value, FreeValue>;

KeptValue kept(sqlite3_value* value) {
  KeptValue copy(sqlite3_value_dup(value));
  if (!copy) throw std::bad_alloc();
  return copy;
}

/// SQLite's memory of an aggregate holds no more than the pointer to ours.
template <class State>
State*& slot(sqlite3_context* context) {
  return *static_cast<State**>(sqlite3_aggregate_context(context, sizeof(State*)));
}

template <class State>
State& stateOf(sqlite3_context* context) {
  State*& state = slot<State>(context);
  if (!state) state = new State;
  return *state;
}

template <class State>
void finish(sqlite3_context* context) {
  const std::unique_ptr<State> state(slot<State>(context));
  try {
    if (state) state->give(context);
  } catch (...) {
    giveFailure(context, evaluationOf(context), 0);
  }
}

template <class State>
void current(sqlite3_context* context) {
  try {
    if (const State* state = slot<State>(context)) state->give(context);
  } catch (...) {
    giveFailure(context, evaluationOf(context), 0);
  }
}

template <class State>
void take(sqlite3_context* context, int count, Values arguments) {
  try {
    stateOf<State>(context).take(count, arguments);
  } catch (...) {
    giveFailure(context, evaluationOf(context), 0);
  }
}

template <class State>
void takeBack(sqlite3_context* context, int, Values arguments) {
  try {
    stateOf<State>(context).takeBack(arguments);
  } catch (...) {
    giveFailure(context, evaluationOf(context), 0);
  }
}

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

  static std::string nameOf(sqlite3_value* value) {
    std::string name(1, static_cast<char>('0' + sqlite3_value_type(value)));
    const auto* bytes = static_cast<const char*>(sqlite3_value_blob(value));
    return bytes ? name.append(bytes, static_cast<std::size_t>(sqlite3_value_bytes(value))) : name;
  }
  void take(int, Values arguments) {
    if (!isNull(arguments[0])) ++counts[nameOf(arguments[0])];
  }
  void takeBack(Values arguments) {
    if (isNull(arguments[0])) return;
    const auto found = counts.find(nameOf(arguments[0]));
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

/// LISTAGG: arguments are the text, what stands between two, and for each key of the order the value by which
/// SQLite sorts it and 1 if the order is descending, 2 if NULL comes first, 3 if both.
struct TextList {
  struct Row {
    std::string text;
    std::vector<KeptValue> keys;
  };
  std::vector<Row> rows;
  std::string between;
  std::vector<int> orders;

  static std::string textOf(sqlite3_value* value) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return text ? std::string(text, static_cast<std::size_t>(sqlite3_value_bytes(value))) : std::string();
  }
  void take(int count, Values arguments) {
    if (isNull(arguments[0])) return;
    between = textOf(arguments[1]);
    Row row{textOf(arguments[0]), {}};
    orders.clear();
    for (int i = 2; i + 1 < count; i += 2) {
      row.keys.push_back(kept(arguments[i]));
      orders.push_back(sqlite3_value_int(arguments[i + 1]));
    }
    rows.push_back(std::move(row));
  }
  static int compareBytes(sqlite3_value* a, sqlite3_value* b) {
    const std::string_view left(static_cast<const char*>(sqlite3_value_blob(a)),
                                static_cast<std::size_t>(sqlite3_value_bytes(a)));
    const std::string_view right(static_cast<const char*>(sqlite3_value_blob(b)),
                                 static_cast<std::size_t>(sqlite3_value_bytes(b)));
    return left.compare(right);
  }
  static int compareKeys(sqlite3_value* a, sqlite3_value* b, int order) {
    if (isNull(a) || isNull(b)) {
      const int nullIsGreater = (order & 2) != 0 ? -1 : 1;
      return isNull(a) == isNull(b) ? 0 : isNull(a) ? nullIsGreater : -nullIsGreater;
    }
    int result = 0;
    if (sqlite3_value_type(a) == SQLITE_INTEGER) {
      const auto left = sqlite3_value_int64(a);
      const auto right = sqlite3_value_int64(b);
      result = left < right ? -1 : left > right ? 1 : 0;
    } else {
      result = compareBytes(a, b);
    }
    return (order & 1) != 0 ? -result : result;
  }
  void give(sqlite3_context* context) {
    std::stable_sort(rows.begin(), rows.end(), [&](const Row& a, const Row& b) {
      for (std::size_t i = 0; i < orders.size(); ++i)
        if (const int order = compareKeys(a.keys[i].get(), b.keys[i].get(), orders[i])) return order < 0;
      return false;
    });
    std::string text;
    for (const Row& row : rows) text += (&row == rows.data() ? "" : between) + row.text;
    giveValue(context, values::Value::text(std::move(text)));
  }
};

template <class State>
void addMoving(sqlite3* connection, const char* name, Evaluation& evaluation) {
  checkRegistration(sqlite3_create_window_function(connection, name, 1, kPure, &evaluation, take<State>,
                                                   finish<State>, current<State>, takeBack<State>, nullptr),
                    name);
}

template <class State>
void addAggregate(sqlite3* connection, const char* name, int count, Evaluation& evaluation) {
  checkRegistration(sqlite3_create_function_v2(connection, name, count, kPure, &evaluation, nullptr,
                                               take<State>, finish<State>, nullptr),
                    name);
}

}  // namespace

void registerKeptValues(sqlite3* connection, Evaluation& evaluation) {
  addMoving<KnownValues<false>>(connection, "first_known", evaluation);
  addMoving<KnownValues<true>>(connection, "last_known", evaluation);
  addMoving<DistinctValues>(connection, "count_distinct", evaluation);
  addAggregate<Median>(connection, "num_median", 1, evaluation);
  addAggregate<TextList>(connection, "listagg", -1, evaluation);
}

}  // namespace kestrelix::embedded

// Aggregates whose state is an object of ours.
#pragma once

#include <memory>
#include <stdexcept>
#include <type_traits>

#include "repository_file/function_frame.h"

namespace kestrelix::repository_file {

struct FreeValue {
  void operator()(sqlite3_value* value) const { sqlite3_value_free(value); }
};
/// A value kept beyond the row that it came from.
using KeptValue = std::unique_ptr<sqlite3_value, FreeValue>;

inline KeptValue kept(sqlite3_value* value) {
  KeptValue copy(sqlite3_value_dup(value));
  if (!copy) throw std::bad_alloc();
  return copy;
}

template <class State>
inline constexpr bool kInPlace = std::is_trivially_destructible_v<State>;

/// The state of the aggregate: in SQLite's own memory if it needs no end (zeroes are an empty one), else what
/// the pointer there points to. Null when `create` is false and no row has come.
template <class State>
State* stateOf(sqlite3_context* context, bool create) {
  using Held = std::conditional_t<kInPlace<State>, State, State*>;
  auto* held = static_cast<Held*>(sqlite3_aggregate_context(context, create ? sizeof(Held) : 0));
  if (create && !held) throw std::bad_alloc();
  if constexpr (kInPlace<State>) {
    return held;
  } else {
    if (create && !*held) *held = new State;
    return held ? *held : nullptr;
  }
}

/// Base of states of functions that take no order in OVER: the frame is the partition and loses no row.
struct WholePartition {
  void takeBack(Values) { throw std::logic_error("a whole partition loses no row"); }
};

/// xStep: `State::take(count, arguments)`.
template <class State>
void take(sqlite3_context* context, int count, Values arguments) {
  guarded(context, nullptr, [&] { stateOf<State>(context, true)->take(count, arguments); });
}

/// xInverse: `State::takeBack(arguments)`.
template <class State>
void takeBack(sqlite3_context* context, int, Values arguments) {
  guarded(context, nullptr, [&] {
    if (State* state = stateOf<State>(context, false)) state->takeBack(arguments);
  });
}

/// xValue: `State::give(context)`, of a state without a row where none has come.
template <class State>
void current(sqlite3_context* context) {
  guarded(context, nullptr, [&] {
    if (State* state = stateOf<State>(context, false))
      state->give(context);
    else
      State().give(context);
  });
}

/// xFinal: the same, and the end of the state.
template <class State>
void finish(sqlite3_context* context) {
  current<State>(context);
  if constexpr (!kInPlace<State>) delete stateOf<State>(context, false);
}

/// An aggregate that is a window function too.
template <class State>
void addMoving(sqlite3* connection, const char* name, int count, Evaluation& evaluation) {
  checkRegistration(sqlite3_create_window_function(connection, name, count, kPure, &evaluation, take<State>,
                                                   finish<State>, current<State>, takeBack<State>, nullptr),
                    name);
}

}  // namespace kestrelix::repository_file

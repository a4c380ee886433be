// Aggregates whose state is an object of ours: SQLite's memory of the aggregate holds the pointer to it.
#pragma once

#include <memory>
#include <stdexcept>

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
State*& slot(sqlite3_context* context) {
  return *static_cast<State**>(sqlite3_aggregate_context(context, sizeof(State*)));
}

/// Base of states of functions that take no order in OVER: the frame is the partition and loses no row.
struct WholePartition {
  void takeBack(Values) { throw std::logic_error("a whole partition loses no row"); }
};

/// xStep: `State::take(count, arguments)`.
template <class State>
void take(sqlite3_context* context, int count, Values arguments) {
  try {
    State*& state = slot<State>(context);
    if (!state) state = new State;
    state->take(count, arguments);
  } catch (...) {
    giveFailure(context, evaluationOf(context), 0);
  }
}

/// xInverse: `State::takeBack(arguments)`.
template <class State>
void takeBack(sqlite3_context* context, int, Values arguments) {
  try {
    if (State* state = slot<State>(context)) state->takeBack(arguments);
  } catch (...) {
    giveFailure(context, evaluationOf(context), 0);
  }
}

/// xValue: `State::give(context)`, of a state without a row where none has come.
template <class State>
void current(sqlite3_context* context) {
  try {
    if (State* state = slot<State>(context))
      state->give(context);
    else
      State().give(context);
  } catch (...) {
    giveFailure(context, evaluationOf(context), 0);
  }
}

/// xFinal: the same, and the end of the state.
template <class State>
void finish(sqlite3_context* context) {
  current<State>(context);
  State*& state = slot<State>(context);
  delete state;
  state = nullptr;
}

/// An aggregate that is a window function too.
template <class State>
void addMoving(sqlite3* connection, const char* name, int count, Evaluation& evaluation) {
  checkRegistration(sqlite3_create_window_function(connection, name, count, kPure, &evaluation, take<State>,
                                                   finish<State>, current<State>, takeBack<State>, nullptr),
                    name);
}

}  // namespace kestrelix::repository_file

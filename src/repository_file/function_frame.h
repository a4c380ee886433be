// What every function called by SQLite does around its own work.
#pragma once

#include <sqlite3.h>

#include <exception>
#include <new>

#include "oracle_sql/function_error.h"
#include "repository_file/evaluation.h"

namespace kestrelix::repository_file {

using Values = sqlite3_value**;

/// Ends the statement with the failure that is being handled, told at `offset`.
inline void giveFailure(sqlite3_context* context, Evaluation& evaluation, std::uint32_t offset) {
  try {
    throw;
  } catch (const values::FunctionError& error) {
    evaluation.failure = {error.code(), error.what(), offset};
    sqlite3_result_error(context, error.what(), -1);
  } catch (const std::bad_alloc&) {
    sqlite3_result_error_nomem(context);
  } catch (const std::exception& error) {
    sqlite3_result_error(context, error.what(), -1);
  }
}

inline bool isNull(sqlite3_value* value) { return sqlite3_value_type(value) == SQLITE_NULL; }

inline bool anyNull(int count, Values arguments) {
  for (int i = 0; i < count; ++i)
    if (isNull(arguments[i])) return true;
  return false;
}

/// The user data of most functions.
inline Evaluation& evaluationOf(sqlite3_context* context) {
  return *static_cast<Evaluation*>(sqlite3_user_data(context));
}

/// Runs the body of a function; its failure is told at the offset that `place` holds, at 0 if it is null.
template <class Body>
void guarded(sqlite3_context* context, sqlite3_value* place, Body body) {
  try {
    body();
  } catch (...) {
    giveFailure(context, evaluationOf(context),
                place ? static_cast<std::uint32_t>(sqlite3_value_int64(place)) : 0);
  }
}

inline constexpr int kPure = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
inline constexpr int kStateful = SQLITE_UTF8 | SQLITE_INNOCUOUS;

using SqliteFunction = void (*)(sqlite3_context*, int, Values);

/// Throws DatabaseError if SQLite refuses the registration.
void checkRegistration(int result, const char* name);
void addFunction(sqlite3* connection, const char* name, int count, SqliteFunction call,
                 Evaluation& evaluation, int flags = kPure);

void registerNumberFunctions(sqlite3* connection, Evaluation& evaluation);
void registerTextFunctions(sqlite3* connection, Evaluation& evaluation);
void registerAggregates(sqlite3* connection, Evaluation& evaluation);
void registerKeptValues(sqlite3* connection, Evaluation& evaluation);
void registerPercentiles(sqlite3* connection, Evaluation& evaluation);

}  // namespace kestrelix::repository_file

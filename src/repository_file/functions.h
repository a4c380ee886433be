// The functions that lowered statements call, made known to SQLite.
#pragma once

#include <sqlite3.h>

#include <string_view>

#include "oracle_sql/functions/functions.h"
#include "repository_file/evaluation.h"
#include "repository_file/lowering/lowering.h"

namespace kestrelix::repository_file {

/// Registers the functions of NUMBER, of dates, of comparison and of ROWNUM, and the aggregates. `evaluation`
/// must live as long as the connection.
void registerFunctions(sqlite3* connection, Evaluation& evaluation);

/// Registers one function of the language for arguments of given types, under `use.name`.
void registerFunction(sqlite3* connection, const FunctionUse& use, Evaluation& evaluation);

/// The function of that name in the language or in STATSPACK's package, or null.
const values::Function* functionNamed(std::string_view name);

}  // namespace kestrelix::repository_file

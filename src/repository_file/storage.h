// How Oracle's values lie in SQLite: see README.md beside this file.
#pragma once

#include <sqlite3.h>

#include <string>
#include <string_view>

#include "oracle_sql/functions/value.h"
#include "oracle_sql/number/number.h"
#include "repository_file/names.h"

namespace kestrelix::repository_file {

/// The letter that tells a value's type where SQLite's own type does not: a date and a whole NUMBER are both
/// INTEGER, a RAW and any other NUMBER both BLOB.
enum class StoredKind : char { Null = '0', Number = 'n', Text = 't', Char = 'c', Date = 'd', Raw = 'r' };

/// Of a value's text or blob; SQLite's own memory.
std::string_view textOf(sqlite3_value* stored);
std::string_view bytesOf(sqlite3_value* stored);

/// A value that is not NULL. Bytes of text and RAW stay SQLite's.
values::Value valueOf(sqlite3_value* stored, StoredKind kind);
/// A NUMBER that is not NULL.
values::Number numberOf(sqlite3_value* stored);
values::Number numberOf(sqlite3_stmt* row, int column);

void giveNumber(sqlite3_context* context, const values::Number& number);
void giveValue(sqlite3_context* context, const values::Value& value);
void bindNumber(sqlite3_stmt* statement, int position, const values::Number& number);

}  // namespace kestrelix::repository_file

#include "repository_file/storage.h"

#include <array>
#include <cstdint>
#include <stdexcept>

namespace kestrelix::repository_file {
namespace {

using NumberBytes = std::array<std::uint8_t, values::Number::kMaxBytes>;

values::Number numberOfBytes(const void* data, int size) {
  const auto number =
      values::Number::fromBytes({static_cast<const std::uint8_t*>(data), static_cast<std::size_t>(size)});
  if (!number) throw std::runtime_error("the repository holds a number that is none");
  return *number;
}

}  // namespace

std::string_view bytesOf(sqlite3_value* stored) {
  const auto* data = static_cast<const char*>(sqlite3_value_blob(stored));
  return {data ? data : "", static_cast<std::size_t>(sqlite3_value_bytes(stored))};
}

std::string_view textOf(sqlite3_value* stored) {
  const auto* data = reinterpret_cast<const char*>(sqlite3_value_text(stored));
  return {data ? data : "", static_cast<std::size_t>(sqlite3_value_bytes(stored))};
}

values::Number numberOf(sqlite3_value* stored) {
  switch (sqlite3_value_type(stored)) {
    case SQLITE_INTEGER:
      return values::Number(static_cast<std::int64_t>(sqlite3_value_int64(stored)));
    case SQLITE_BLOB:
      return numberOfBytes(sqlite3_value_blob(stored), sqlite3_value_bytes(stored));
    default:
      throw std::runtime_error("the repository holds a number of a foreign form");
  }
}

values::Number numberOf(sqlite3_stmt* row, int column) {
  switch (sqlite3_column_type(row, column)) {
    case SQLITE_INTEGER:
      return values::Number(static_cast<std::int64_t>(sqlite3_column_int64(row, column)));
    case SQLITE_BLOB:
      return numberOfBytes(sqlite3_column_blob(row, column), sqlite3_column_bytes(row, column));
    default:
      throw std::runtime_error("the repository holds a number of a foreign form");
  }
}

values::Value valueOf(sqlite3_value* stored, StoredKind kind) {
  switch (kind) {
    case StoredKind::Number:
      return numberOf(stored);
    case StoredKind::Date:
      return values::Date{sqlite3_value_int64(stored)};
    case StoredKind::Raw:
      return values::Value::rawView(bytesOf(stored));
    case StoredKind::Text:
    case StoredKind::Char:
      return values::Value::textView(textOf(stored));
    case StoredKind::Null:
      break;
  }
  return {};
}

void giveNumber(sqlite3_context* context, const values::Number& number) {
  if (const auto whole = number.toInt64()) {
    sqlite3_result_int64(context, *whole);
    return;
  }
  NumberBytes bytes;
  const auto size = number.toBytes(bytes);
  sqlite3_result_blob(context, bytes.data(), static_cast<int>(size), SQLITE_TRANSIENT);
}

void giveValue(sqlite3_context* context, const values::Value& value) {
  switch (value.kind()) {
    case values::Value::Kind::Null:
      sqlite3_result_null(context);
      break;
    case values::Value::Kind::Number:
      giveNumber(context, value.number());
      break;
    case values::Value::Kind::Date:
      sqlite3_result_int64(context, value.date().seconds);
      break;
    case values::Value::Kind::Text: {
      const auto text = value.bytes();
      sqlite3_result_text(context, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
      break;
    }
    case values::Value::Kind::Raw: {
      const auto raw = value.bytes();
      sqlite3_result_blob(context, raw.data(), static_cast<int>(raw.size()), SQLITE_TRANSIENT);
      break;
    }
  }
}

void bindNumber(sqlite3_stmt* statement, int position, const values::Number& number) {
  if (const auto whole = number.toInt64()) {
    sqlite3_bind_int64(statement, position, *whole);
    return;
  }
  NumberBytes bytes;
  const auto size = number.toBytes(bytes);
  sqlite3_bind_blob(statement, position, bytes.data(), static_cast<int>(size), SQLITE_TRANSIENT);
}

}  // namespace kestrelix::repository_file

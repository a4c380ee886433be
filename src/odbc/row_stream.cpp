#include "odbc/row_stream.h"

#include <cstring>
#include <span>

#include "odbc/plain_number.h"
#include "odbc/utf16.h"
#include "platform/database.h"

namespace kestrelix::odbc {
namespace {

constexpr SQLULEN kRowsAtOnce = 256;
/// A text column that can be longer than this many characters is read piece by piece.
constexpr SQLULEN kLongestBound = 4000;
constexpr std::size_t kPiece = std::size_t{64} * 1024;
/// Room for a NUMBER of 40 digits with sign, point and exponent.
constexpr std::size_t kNumberWidth = 200;

std::string hex(const unsigned char* bytes, std::size_t length) {
  static const char* const digits = "0123456789ABCDEF";
  std::string text;
  for (std::size_t i = 0; i < length; ++i) {
    text += digits[bytes[i] >> 4];
    text += digits[bytes[i] & 15];
  }
  return text;
}

/// "2026-01-05 10:00:00.000" without its fraction.
std::string seconds(const std::string& time) {
  return time.substr(0, std::min(time.find('.'), std::size_t{19}));
}

}  // namespace

RowStream::RowStream(const Handle& statement, std::string text, RunningStatement& running)
    : statement_(statement), text_(std::move(text)), running_(running) {
  describe();
  bindBuffers();
}

RowStream::~RowStream() {
  SQLFreeStmt(statement_, SQL_CLOSE);
  SQLFreeStmt(statement_, SQL_UNBIND);
  SQLSetStmtAttr(statement_, SQL_ATTR_ROWS_FETCHED_PTR, nullptr, 0);
  SQLSetStmtAttr(statement_, SQL_ATTR_ROW_STATUS_PTR, nullptr, 0);
}

void RowStream::describe() {
  SQLSMALLINT count = 0;
  statement_.check(SQLNumResultCols(statement_, &count), text_);
  for (SQLUSMALLINT i = 1; i <= static_cast<SQLUSMALLINT>(count); ++i) {
    SQLWCHAR name[256] = {0};
    SQLSMALLINT nameLength = 0;
    SQLSMALLINT type = 0;
    SQLULEN size = 0;
    SQLSMALLINT digits = 0;
    SQLSMALLINT nullable = 0;
    statement_.check(SQLDescribeColW(statement_, i, name, 255, &nameLength, &type, &size, &digits, &nullable),
                     text_);
    names_.push_back(toUtf8(std::span(name, static_cast<std::size_t>(nameLength))));
    Column column;
    switch (type) {
      case SQL_NUMERIC:
      case SQL_DECIMAL:
      case SQL_FLOAT:
      case SQL_REAL:
      case SQL_DOUBLE:
      case SQL_SMALLINT:
      case SQL_INTEGER:
      case SQL_BIGINT:
      case SQL_TINYINT:
        column = {Kind::Number, SQL_C_CHAR, kNumberWidth, {}, {}};
        break;
      case SQL_TYPE_DATE:
      case SQL_TYPE_TIME:
      case SQL_TYPE_TIMESTAMP:
        column = {Kind::Time, SQL_C_CHAR, 40, {}, {}};
        break;
      case SQL_BINARY:
      case SQL_VARBINARY:
      case SQL_LONGVARBINARY:
        column = {Kind::Bytes, SQL_C_BINARY, size > 0 && size <= kLongestBound ? size : 0, {}, {}};
        break;
      default:
        column = {Kind::Text,
                  SQL_C_WCHAR,
                  size > 0 && size <= kLongestBound ? (size * 2 + 1) * sizeof(SQLWCHAR) : 0,
                  {},
                  {}};
        break;
    }
    inPieces_ = inPieces_ || column.width == 0;
    columns_.push_back(std::move(column));
  }
}

void RowStream::bindBuffers() {
  const SQLULEN rows = inPieces_ ? 1 : kRowsAtOnce;
  SQLSetStmtAttr(statement_, SQL_ATTR_ROW_ARRAY_SIZE, reinterpret_cast<SQLPOINTER>(rows), 0);
  SQLSetStmtAttr(statement_, SQL_ATTR_ROWS_FETCHED_PTR, &fetched_, 0);
  if (inPieces_) return;
  states_.assign(rows, SQL_ROW_SUCCESS);
  SQLSetStmtAttr(statement_, SQL_ATTR_ROW_STATUS_PTR, states_.data(), 0);
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    Column& column = columns_[i];
    column.values.resize(column.width * rows);
    column.lengths.resize(rows);
    statement_.check(
        SQLBindCol(statement_, static_cast<SQLUSMALLINT>(i + 1), column.cType, column.values.data(),
                   static_cast<SQLLEN>(column.width), column.lengths.data()),
        text_);
  }
}

bool RowStream::next(Row& row) {
  if (position_ >= fetched_) {
    fetched_ = 0;
    ++fetches_;
    const SQLRETURN result = statement_.wait(running_, text_, [&] { return SQLFetch(statement_); });
    if (result == SQL_NO_DATA) return false;
    if (inPieces_ || fetched_ == 0) fetched_ = 1;
    position_ = 0;
  }
  // The other rows of a block come even if one of them fails.
  if (!inPieces_ && states_[position_] == SQL_ROW_ERROR) statement_.check(SQL_ERROR, text_);
  row.resize(columns_.size());
  for (std::size_t i = 0; i < columns_.size(); ++i)
    row[i] =
        inPieces_ ? pieces(static_cast<SQLUSMALLINT>(i + 1), columns_[i]) : bound(columns_[i], position_);
  ++position_;
  return true;
}

std::string RowStream::textOf(const Column& column, const char* bytes, std::size_t length) {
  if (length == 0) return {};
  switch (column.kind) {
    case Kind::Number:
      return plainNumber(std::string_view(bytes, length));
    case Kind::Time:
      return seconds(std::string(bytes, length));
    case Kind::Bytes:
      return hex(reinterpret_cast<const unsigned char*>(bytes), length);
    case Kind::Text:
      break;
  }
  std::vector<SQLWCHAR> units(length / sizeof(SQLWCHAR));
  std::memcpy(units.data(), bytes, units.size() * sizeof(SQLWCHAR));
  return toUtf8(units);
}

std::optional<std::string> RowStream::bound(const Column& column, std::size_t row) const {
  const SQLLEN length = column.lengths[row];
  if (length == SQL_NULL_DATA) return std::nullopt;
  const std::size_t terminator = column.cType == SQL_C_WCHAR ? sizeof(SQLWCHAR) : column.cType == SQL_C_CHAR;
  if (length < 0 || static_cast<std::size_t>(length) > column.width - terminator)
    throw DatabaseError("22001", 0, "a value is longer than the driver said that its column can be", text_);
  std::string text =
      textOf(column, column.values.data() + column.width * row, static_cast<std::size_t>(length));
  // The empty text is NULL, as in Oracle.
  return text.empty() ? std::nullopt : std::optional(std::move(text));
}

std::optional<std::string> RowStream::pieces(SQLUSMALLINT number, const Column& column) {
  std::vector<char> value;
  std::vector<char> buffer(kPiece);
  const std::size_t terminator = column.cType == SQL_C_WCHAR  ? sizeof(SQLWCHAR)
                                 : column.cType == SQL_C_CHAR ? 1
                                                              : 0;
  for (;;) {
    SQLLEN length = 0;
    const SQLRETURN result = statement_.wait(running_, text_, [&] {
      return SQLGetData(statement_, number, column.cType, buffer.data(), static_cast<SQLLEN>(buffer.size()),
                        &length);
    });
    if (length == SQL_NULL_DATA) return std::nullopt;
    if (result == SQL_NO_DATA) break;
    const bool more =
        result == SQL_SUCCESS_WITH_INFO &&
        (length == SQL_NO_TOTAL || static_cast<std::size_t>(length) > buffer.size() - terminator);
    const std::size_t got = more ? buffer.size() - terminator : static_cast<std::size_t>(length);
    value.insert(value.end(), buffer.begin(), buffer.begin() + static_cast<std::ptrdiff_t>(got));
    if (!more) break;
  }
  if (value.empty()) return std::nullopt;
  return textOf(column, value.data(), value.size());
}

}  // namespace kestrelix::odbc

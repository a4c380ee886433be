#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "odbc/handles.h"
#include "platform/running_statement.h"

namespace kestrelix::odbc {

/// The rows of an executed statement, forward only, a few hundred fetched in one round trip.
class RowStream {
 public:
  using Row = std::vector<std::optional<std::string>>;

  /// The statement has been executed, as what `running` runs. It must outlive the stream, which closes its
  /// cursor.
  RowStream(const Handle& statement, std::string text, RunningStatement& running);
  ~RowStream();
  RowStream(const RowStream&) = delete;
  RowStream& operator=(const RowStream&) = delete;

  const std::vector<std::string>& columns() const { return names_; }
  /// The next row into `row`; false past the last. Texts are UTF-8, numbers plain decimal texts, dates
  /// "YYYY-MM-DD HH:MM:SS", bytes upper-case hex. Fails with DatabaseError,
  /// which is Cancelled from a cancel on.
  bool next(Row& row);

  /// Fetches that have gone to the server so far.
  long fetches() const { return fetches_; }

 private:
  enum class Kind { Text, Number, Time, Bytes };
  struct Column {
    Kind kind = Kind::Text;
    SQLSMALLINT cType = SQL_C_WCHAR;
    std::size_t width = 0;  ///< bytes of one value's buffer, 0 where values are read piece by piece
    std::vector<char> values;
    std::vector<SQLLEN> lengths;
  };

  void describe();
  void bindBuffers();
  std::optional<std::string> bound(const Column& column, std::size_t row) const;
  std::optional<std::string> pieces(SQLUSMALLINT number, const Column& column);
  static std::string textOf(const Column& column, const char* bytes, std::size_t length);

  const Handle& statement_;
  std::string text_;
  RunningStatement& running_;
  std::vector<std::string> names_;
  std::vector<Column> columns_;
  bool inPieces_ = false;             ///< a column has no bound on its length: rows come one by one
  std::vector<SQLUSMALLINT> states_;  ///< of the rows fetched together
  SQLULEN fetched_ = 0;
  std::size_t position_ = 0;
  long fetches_ = 0;
};

}  // namespace kestrelix::odbc

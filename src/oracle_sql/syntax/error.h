// The one failure of translating and checking a statement.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "oracle_sql/syntax/place.h"

namespace oracle_sql {

/// Whose fault a failure is.
enum class ErrorKind {
  Wrong,        ///< the statement is wrong: an Oracle server would refuse it too
  Unsupported,  ///< Oracle knows the construct and this program does not; the message names it
  Internal,     ///< a fault of this program
};

/// Bounds beyond which a statement is refused, so that no text can exhaust the stack or the memory.
inline constexpr std::size_t kMaxStatementBytes = std::size_t{512} * 1024;
inline constexpr std::size_t kMaxTokens = 100'000;
/// Brackets, subqueries, CASE, calls and prefix operators inside each other.
inline constexpr int kMaxNesting = 200;
/// Height of the tree of one expression, chains such as a + b + c included.
inline constexpr int kMaxHeight = 1500;
/// Oracle's bound on the values of one IN list up to release 21.
inline constexpr std::size_t kMaxListValues = 1000;
/// Oracle's bound on the bytes of a name up to release 12.1.
inline constexpr std::size_t kMaxNameBytes = 30;

/// A statement that cannot be run, with the place that tells why. `oraCode` is the number behind "ORA-" where
/// Oracle has one for the fault, otherwise 0.
class SqlError : public std::runtime_error {
 public:
  SqlError(ErrorKind kind, int oraCode, const std::string& message, Place place);

  static SqlError wrong(int oraCode, const std::string& message, Place place);
  static SqlError unsupported(const std::string& construct, Place place);
  static SqlError internal(const std::string& message, Place place = {});

  ErrorKind kind() const { return kind_; }
  int oraCode() const { return oraCode_; }
  Place place() const { return place_; }
  // what(): the message with its ORA code, as in: ORA-00942: table or view does not exist

  /// Message with line and column, the line of the statement, and a caret below the place; of a long line
  /// only a window around the place is shown. No line end at the end.
  std::string render(std::string_view statement) const;

 private:
  ErrorKind kind_;
  int oraCode_;
  Place place_;
};

}  // namespace oracle_sql

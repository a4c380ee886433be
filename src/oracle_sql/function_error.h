// The failure of computing a value.
#pragma once

#include <stdexcept>
#include <string>

namespace oracle_sql {

/// A failure while a value is computed, told by Oracle's own number and text. It knows no place: whoever
/// evaluates the expression adds the line and column.
class FunctionError : public std::runtime_error {
 public:
  /// What the server knows and this engine doesn't; the message names it.
  static constexpr int kUnsupported = 0;

  /// `code` is the number of the error, 1722 for ORA-01722; `message` is its text without that prefix.
  FunctionError(int code, const std::string& message);

  int code() const { return code_; }

 private:
  int code_;
};

[[noreturn]] void raiseInvalidNumber();                                  ///< ORA-01722
[[noreturn]] void raiseDivisionByZero();                                 ///< ORA-01476
[[noreturn]] void raiseNumericOverflow();                                ///< ORA-01426
[[noreturn]] void raiseArgumentOutOfRange(const std::string& argument);  ///< ORA-01428; the argument as text
[[noreturn]] void raiseEscape();                                         ///< ORA-01425
[[noreturn]] void raiseInconsistentTypes();                              ///< ORA-00932

}  // namespace oracle_sql

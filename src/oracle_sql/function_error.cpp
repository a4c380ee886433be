#include "oracle_sql/function_error.h"

namespace oracle_sql {

FunctionError::FunctionError(int code, const std::string& message)
    : std::runtime_error(message), code_(code) {}

void raiseInvalidNumber() { throw FunctionError(1722, "invalid number"); }

void raiseDivisionByZero() { throw FunctionError(1476, "divisor is equal to zero"); }

void raiseNumericOverflow() { throw FunctionError(1426, "numeric overflow"); }

void raiseArgumentOutOfRange(const std::string& argument) {
  throw FunctionError(1428, "argument '" + argument + "' is out of range");
}

void raiseEscape() { throw FunctionError(1425, "escape character must be character string of length 1"); }

void raiseInconsistentTypes() { throw FunctionError(932, "inconsistent datatypes"); }

}  // namespace oracle_sql

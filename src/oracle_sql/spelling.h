// How parts of a tree are written, for printing and for golden files.
#pragma once

#include <string>
#include <string_view>

#include "oracle_sql/tree.h"

namespace oracle_sql {

std::string_view spelling(ArithmeticOp op);
std::string_view spelling(CompareOp op);
std::string_view spelling(SetOp op);
std::string_view spelling(JoinKind kind);
/// Without the offset that stands before PRECEDING and FOLLOWING.
std::string_view spelling(BoundKind kind);
/// Empty for Keys.
std::string_view spelling(GroupingKind kind);
/// The type of a CAST, as in NUMBER(10,2).
// DAY(3) TO SECOND; the digits are written where they are not two.
std::string spelling(const IntervalFields& fields);
std::string castSpelling(const CastExpr& cast);

/// A text literal.
std::string quotedText(std::string_view value);
/// The name, in double quotes if it would not be read as that name without them.
std::string quotedIfNeeded(std::string_view name);
}  // namespace oracle_sql

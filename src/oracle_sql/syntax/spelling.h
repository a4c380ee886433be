// How the operators and words of a tree are written.
#pragma once

#include <string_view>

#include "oracle_sql/syntax/tree.h"

namespace oracle_sql {

std::string_view spelling(ArithmeticOp op);
std::string_view spelling(CompareOp op);
std::string_view spelling(SetOp op);
std::string_view spelling(JoinKind kind);
/// Without the offset that stands before PRECEDING and FOLLOWING.
std::string_view spelling(BoundKind kind);

}  // namespace oracle_sql

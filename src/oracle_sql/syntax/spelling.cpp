#include "oracle_sql/syntax/spelling.h"

namespace oracle_sql {

std::string_view spelling(ArithmeticOp op) {
  switch (op) {
    case ArithmeticOp::Add:
      return "+";
    case ArithmeticOp::Subtract:
      return "-";
    case ArithmeticOp::Multiply:
      return "*";
    case ArithmeticOp::Divide:
      return "/";
  }
  return {};
}

std::string_view spelling(CompareOp op) {
  switch (op) {
    case CompareOp::Equal:
      return "=";
    case CompareOp::NotEqual:
      return "<>";
    case CompareOp::Less:
      return "<";
    case CompareOp::LessEqual:
      return "<=";
    case CompareOp::Greater:
      return ">";
    case CompareOp::GreaterEqual:
      return ">=";
  }
  return {};
}

std::string_view spelling(SetOp op) {
  switch (op) {
    case SetOp::None:
      return {};
    case SetOp::Union:
      return "UNION";
    case SetOp::UnionAll:
      return "UNION ALL";
    case SetOp::Intersect:
      return "INTERSECT";
    case SetOp::Minus:
      return "MINUS";
  }
  return {};
}

std::string_view spelling(JoinKind kind) {
  switch (kind) {
    case JoinKind::Inner:
      return "INNER";
    case JoinKind::Left:
      return "LEFT";
    case JoinKind::Right:
      return "RIGHT";
    case JoinKind::Full:
      return "FULL";
    case JoinKind::Cross:
      return "CROSS";
  }
  return {};
}

std::string_view spelling(BoundKind kind) {
  switch (kind) {
    case BoundKind::UnboundedPreceding:
      return "UNBOUNDED PRECEDING";
    case BoundKind::Preceding:
      return "PRECEDING";
    case BoundKind::CurrentRow:
      return "CURRENT ROW";
    case BoundKind::Following:
      return "FOLLOWING";
    case BoundKind::UnboundedFollowing:
      return "UNBOUNDED FOLLOWING";
  }
  return {};
}

}  // namespace oracle_sql

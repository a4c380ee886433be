// Values compare in the type that Oracle brings both sides to. A NUMBER that may be broken is no INTEGER of
// SQLite: equal numbers are equal bytes all the same, but their order needs a function; only the bare column
// of whole numbers stays bare, since an index may stand on it.
#include <algorithm>

#include "platform/embedded/lowering/rules.h"

namespace kestrelix::embedded {
namespace {

using sql::CompareOp;
using sql::TypeKind;

const char* sign(CompareOp op) {
  switch (op) {
    case CompareOp::Equal:
      return " = ";
    case CompareOp::NotEqual:
      return " <> ";
    case CompareOp::Less:
      return " < ";
    case CompareOp::LessEqual:
      return " <= ";
    case CompareOp::Greater:
      return " > ";
    case CompareOp::GreaterEqual:
      break;
  }
  return " >= ";
}

CompareOp mirrored(CompareOp op) {
  switch (op) {
    case CompareOp::Less:
      return CompareOp::Greater;
    case CompareOp::LessEqual:
      return CompareOp::GreaterEqual;
    case CompareOp::Greater:
      return CompareOp::Less;
    case CompareOp::GreaterEqual:
      return CompareOp::LessEqual;
    default:
      return op;
  }
}

bool isEquality(CompareOp op) { return op == CompareOp::Equal || op == CompareOp::NotEqual; }

std::string plain(CompareOp op, const Piece& left, const Piece& right) {
  return bracketed(left) + sign(op) + bracketed(right);
}

/// Whole numbers against any number: the nearest whole number does as well.
std::string wholeAgainst(CompareOp op, const Piece& whole, const Piece& other) {
  const bool up = op == CompareOp::Less || op == CompareOp::GreaterEqual;
  return bracketed(whole) + sign(op) + (up ? "whole_up(" : "whole_down(") + other.text + ")";
}

std::string comparedNumbers(CompareOp op, const Piece& left, const Piece& right) {
  if (isEquality(op) || (left.number.integral && right.number.integral)) return plain(op, left, right);
  if (left.number.integral) return wholeAgainst(op, left, right);
  if (right.number.integral) return wholeAgainst(mirrored(op), right, left);
  return "num_cmp(" + left.text + ", " + right.text + ")" + sign(op) + "0";
}

/// Blanks at the end do not count. Literals, most often without any, stay as they are.
std::string withoutBlanks(const Piece& piece) {
  const bool literal = piece.text.size() > 2 && piece.text.front() == '\'' && piece.text.back() == '\'';
  if (literal && piece.text[piece.text.size() - 2] != ' ') return piece.text;
  return "rtrim(" + piece.text + ", ' ')";
}

TypeKind targetOf(sql::Comparison comparison) {
  switch (comparison) {
    case sql::Comparison::Number:
      return TypeKind::Number;
    case sql::Comparison::Date:
      return TypeKind::Date;
    case sql::Comparison::Raw:
      return TypeKind::Raw;
    default:
      return TypeKind::Varchar2;
  }
}

sql::Comparison comparisonOf(const Piece& left, const Piece& right) {
  return sql::comparisonOf(sql::Type{left.kind}, sql::Type{right.kind});
}

std::vector<Piece> rowOf(Emitter& emitter, const sql::Expr& expr) {
  std::vector<Piece> items;
  if (const auto* row = sql::as<sql::RowExpr>(&expr)) {
    for (const sql::Expr* item : row->items) items.push_back(emitter.expression(*item));
  } else {
    items.push_back(emitter.expression(expr));
  }
  return items;
}

std::string equalRows(Emitter& emitter, const std::vector<Piece>& left, const std::vector<Piece>& right,
                      sql::Place place) {
  std::string text;
  for (std::size_t i = 0; i < left.size(); ++i)
    text += (text.empty() ? "" : " AND ") + compared(emitter, CompareOp::Equal, left[i], right[i], place);
  return left.size() > 1 ? "(" + text + ")" : text;
}

/// A value or a row against another one.
std::string comparedRows(Emitter& emitter, CompareOp op, const std::vector<Piece>& left,
                         const std::vector<Piece>& right, sql::Place place) {
  if (left.size() == 1) return compared(emitter, op, left.front(), right.front(), place);
  std::string equal = equalRows(emitter, left, right, place);
  if (op == CompareOp::Equal) return equal;
  if (op == CompareOp::NotEqual) return "(NOT " + equal + ")";
  throw sql::SqlError::unsupported("an order between rows", place);
}

std::string quantified(Emitter& emitter, const sql::Compare& compare) {
  const bool any = compare.quantifier == sql::Quantifier::Any;
  if (compare.query) return lowerQuantifiedQuery(emitter, compare, rowOf(emitter, *compare.left));
  const auto left = rowOf(emitter, *compare.left);
  std::vector<std::string> terms;
  for (const sql::Expr* item : compare.list)
    terms.push_back(comparedRows(emitter, compare.op, left, rowOf(emitter, *item), compare.place));
  return "(" + chained(std::move(terms), any ? " OR " : " AND ") + ")";
}

}  // namespace

std::string compared(Emitter& emitter, CompareOp op, const Piece& left, const Piece& right,
                     sql::Place place) {
  const auto comparison = comparisonOf(left, right);
  if (comparison == sql::Comparison::PaddedText) {
    if (isEquality(op)) return withoutBlanks(left) + sign(op) + withoutBlanks(right);
    return "padded_cmp(" + left.text + ", " + right.text + ")" + sign(op) + "0";
  }
  const TypeKind target = targetOf(comparison);
  const Piece a = emitter.converted(left, target, place);
  const Piece b = emitter.converted(right, target, place);
  return target == TypeKind::Number ? comparedNumbers(op, a, b) : plain(op, a, b);
}

std::string lowerCompare(Emitter& emitter, const sql::Compare& compare) {
  if (compare.quantifier != sql::Quantifier::None) return quantified(emitter, compare);
  const auto left = rowOf(emitter, *compare.left);
  const auto* subquery = sql::as<sql::SubqueryExpr>(compare.right);
  if (subquery && left.size() > 1)
    return lowerRowAgainstQuery(emitter, left, compare.op == CompareOp::NotEqual, *subquery);
  const auto right = rowOf(emitter, *compare.right);
  std::string text = comparedRows(emitter, compare.op, left, right, compare.place);
  return left.size() == 1 ? "(" + text + ")" : text;
}

std::string lowerBetween(Emitter& emitter, const sql::Between& between) {
  const Piece operand = emitter.expression(*between.operand);
  const std::string text =
      "(" +
      compared(emitter, CompareOp::GreaterEqual, operand, emitter.expression(*between.low), between.place) +
      " AND " +
      compared(emitter, CompareOp::LessEqual, operand, emitter.expression(*between.high), between.place) +
      ")";
  return between.negated ? "(NOT " + text + ")" : text;
}

std::string lowerIn(Emitter& emitter, const sql::InExpr& in) {
  const auto operand = rowOf(emitter, *in.operand);
  if (in.query) {
    return lowerInQuery(emitter, operand, in.negated, *in.query, in.place);
  }
  std::vector<std::vector<Piece>> items;
  for (const sql::Expr* item : in.list) items.push_back(rowOf(emitter, *item));

  std::string text;
  const Piece& left = operand.front();
  const auto comparison = comparisonOf(left, items.front().front());
  const bool native = operand.size() == 1 && std::all_of(items.begin(), items.end(), [&](const auto& item) {
                        return comparisonOf(left, item.front()) == comparison;
                      });
  if (native) {
    const TypeKind target = targetOf(comparison);
    const bool padded = comparison == sql::Comparison::PaddedText;
    for (const auto& item : items) {
      const Piece value = emitter.converted(item.front(), target, in.place);
      text += (text.empty() ? "" : ", ") + (padded ? withoutBlanks(value) : value.text);
    }
    const Piece value = emitter.converted(left, target, in.place);
    return "(" + (padded ? withoutBlanks(value) : bracketed(value)) + (in.negated ? " NOT IN (" : " IN (") +
           text + "))";
  }
  std::vector<std::string> terms;
  terms.reserve(items.size());
  for (const auto& item : items) terms.push_back(equalRows(emitter, operand, item, in.place));
  text = chained(std::move(terms), " OR ");
  return in.negated ? "(NOT (" + text + "))" : "(" + text + ")";
}

}  // namespace kestrelix::embedded

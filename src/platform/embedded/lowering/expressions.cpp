// Which rule lowers which node.
#include <algorithm>

#include "platform/ascii.h"
#include "platform/embedded/lowering/rules.h"

namespace kestrelix::embedded {
namespace {

/// Far above what any statement of the reports becomes.
constexpr std::size_t kMaxExpressionBytes = 500'000;

struct CallRule {
  std::string_view name;
  Piece (*lower)(Emitter&, const sql::Call&);
};

/// The functions that need more than a plain call; every other one is lowerCall's.
constexpr CallRule kCallRules[] = {
    {"DECODE", lowerDecode}, {"NVL", lowerNvl},     {"NVL2", lowerNvl2},   {"COALESCE", lowerCoalesce},
    {"NULLIF", lowerNullif}, {"ROUND", lowerRound}, {"TRUNC", lowerRound}, {"TRANSLATE", lowerTranslate},
};

Piece lowerColumn(Emitter& emitter, const sql::ColumnRef& ref) {
  if (!ref.source && ref.output >= 0 && emitter.outputs())
    return emitter.outputs()->at(static_cast<std::size_t>(ref.output));
  if (!ref.source) throw sql::SqlError::internal("a column without a source", ref.place);
  return emitter.column(ref.source, ref.column);
}

Piece lowerRownumValue(Emitter& emitter, const sql::Expr& expr) {
  if (emitter.rownum().empty()) throw sql::SqlError::unsupported("ROWNUM in this place", expr.place);
  Piece piece;
  piece.text = emitter.rownum();
  piece.kind = sql::TypeKind::Number;
  piece.number = {true, 1e15};
  piece.atom = true;
  return piece;
}

Piece lowerAnyCall(Emitter& emitter, const sql::Call& call) {
  if (call.role == sql::CallRole::Aggregate) return lowerOwnAggregate(emitter, call);
  if (call.role == sql::CallRole::Window) return lowerWindow(emitter, call);
  if (call.package.empty())
    for (const auto& rule : kCallRules)
      if (rule.name == call.name) return rule.lower(emitter, call);
  return lowerCall(emitter, call);
}

/// The functions that give text or numbers from text by Oracle's implicit conversions.
std::string_view conversionName(sql::TypeKind target) {
  switch (target) {
    case sql::TypeKind::Number:
      return "TO_NUMBER";
    case sql::TypeKind::Date:
      return "TO_DATE";
    case sql::TypeKind::Raw:
      return "HEXTORAW";
    default:
      return "TO_CHAR";
  }
}

}  // namespace

Piece Emitter::expression(const sql::Expr& expr) {
  Piece piece = lowered(expr);
  // Some rules write an operand twice, and such operands inside each other would grow without bounds.
  if (piece.text.size() > kMaxExpressionBytes)
    throw sql::SqlError::unsupported("an expression of this size", expr.place);
  return piece;
}

Piece Emitter::lowered(const sql::Expr& expr) {
  if (const auto found = replacements_.find(&expr); found != replacements_.end()) return found->second;
  using sql::ExprKind;
  switch (expr.kind) {
    case ExprKind::Null:
    case ExprKind::Number:
    case ExprKind::String:
    case ExprKind::DateLiteral:
    case ExprKind::Bind:
      return lowerLiteral(*this, expr);
    case ExprKind::Column:
      return lowerColumn(*this, *sql::as<sql::ColumnRef>(&expr));
    case ExprKind::Rownum:
      return lowerRownumValue(*this, expr);
    case ExprKind::Negate:
      return lowerNegate(*this, *sql::as<sql::Negate>(&expr));
    case ExprKind::Arithmetic:
      return lowerArithmetic(*this, *sql::as<sql::Arithmetic>(&expr));
    case ExprKind::Concat:
      return lowerConcat(*this, *sql::as<sql::Concat>(&expr));
    case ExprKind::Case:
      return lowerCase(*this, *sql::as<sql::CaseExpr>(&expr));
    case ExprKind::Call:
      return lowerAnyCall(*this, *sql::as<sql::Call>(&expr));
    case ExprKind::Cast:
      return lowerCast(*this, *sql::as<sql::CastExpr>(&expr));
    case ExprKind::Subquery:
      return lowerScalarSubquery(*this, *sql::as<sql::SubqueryExpr>(&expr));
    default:
      throw sql::SqlError::unsupported("this construct as a value", expr.place);
  }
}

std::string Emitter::condition(const sql::Expr& expr) {
  std::string text = loweredCondition(expr);
  if (text.size() > kMaxExpressionBytes)
    throw sql::SqlError::unsupported("a condition of this size", expr.place);
  return text;
}

std::string Emitter::loweredCondition(const sql::Expr& expr) {
  using sql::ExprKind;
  switch (expr.kind) {
    case ExprKind::And:
    case ExprKind::Or: {
      const bool both = expr.kind == ExprKind::And;
      const auto& terms = both ? sql::as<sql::AndExpr>(&expr)->terms : sql::as<sql::OrExpr>(&expr)->terms;
      std::vector<std::string> texts;
      for (const sql::Expr* term : terms) texts.push_back(condition(*term));
      return "(" + chained(std::move(texts), both ? " AND " : " OR ") + ")";
    }
    case ExprKind::Not:
      return "(NOT " + condition(*sql::as<sql::NotExpr>(&expr)->operand) + ")";
    case ExprKind::Compare:
      return lowerCompare(*this, *sql::as<sql::Compare>(&expr));
    case ExprKind::Between:
      return lowerBetween(*this, *sql::as<sql::Between>(&expr));
    case ExprKind::In:
      return lowerIn(*this, *sql::as<sql::InExpr>(&expr));
    case ExprKind::Like:
      return lowerLike(*this, *sql::as<sql::LikeExpr>(&expr));
    case ExprKind::IsNull: {
      const auto& test = *sql::as<sql::IsNull>(&expr);
      return bracketed(expression(*test.operand)) + (test.negated ? " IS NOT NULL" : " IS NULL");
    }
    case ExprKind::Exists:
      return lowerExists(*this, *sql::as<sql::Exists>(&expr));
    case ExprKind::CallTest:
      return expression(*sql::as<sql::CallTest>(&expr)->call).text;
    case ExprKind::Lnnvl:
      return "(" + condition(*sql::as<sql::Lnnvl>(&expr)->operand) + " IS NOT TRUE)";
    default:
      throw sql::SqlError::unsupported("this construct as a condition", expr.place);
  }
}

Piece Emitter::call(std::string_view name, const std::vector<Piece>& arguments, sql::Type type,
                    sql::Place place) {
  FunctionUse use;
  use.function = name;
  for (const char c : name)
    use.name += c == '.' ? '_' : c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  std::string list;
  for (const Piece& argument : arguments) {
    use.signature += static_cast<char>(storedKind(argument.kind));
    list += argument.text + ", ";
  }
  use.name += "_" + use.signature;
  Piece piece;
  // The last argument is the place in the statement that an error is told at.
  piece.text = use.name + "(" + list + std::to_string(place.offset) + ")";
  piece.kind = type.kind;
  piece.atom = true;
  result_.functions.insert(std::move(use));
  return piece;
}

Piece Emitter::converted(Piece piece, sql::TypeKind target, sql::Place place) {
  const bool same = piece.kind == target || piece.kind == sql::TypeKind::Null ||
                    target == sql::TypeKind::Null ||
                    (sql::Type{piece.kind}.isText() && sql::Type{target}.isText());
  if (same) return piece;
  if (piece.kind == sql::TypeKind::Raw && sql::Type{target}.isText())
    return call("RAWTOHEX", {std::move(piece)}, {sql::TypeKind::Varchar2}, place);
  return call(conversionName(target), {std::move(piece)}, {target}, place);
}

}  // namespace kestrelix::embedded

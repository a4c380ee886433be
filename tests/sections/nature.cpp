#include "sections/nature.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "oracle_sql/meaning/catalogue.h"

namespace kestrelix::testing_support {
namespace {

using namespace oracle_sql;
using Exprs = std::vector<const Expr*>;

/// Counters that begin anew in each row: an interval of undo statistics, an operation of the memory manager.
const std::set<std::string_view> kCountersOfRows{"UNDOBLKS", "TXNCOUNT", "SSOLDERRCNT", "NOSPACEERRCNT",
                                                 "NUM_OPS"};

/// The values that a call chooses from, or the one that it works on.
Exprs valuesOf(const Call& call) {
  static const std::set<std::string_view> choices{"NVL", "NVL2", "COALESCE", "GREATEST", "LEAST"};
  Exprs values;
  if (call.name == "DECODE") {
    for (std::size_t i = 2; i < call.args.size(); i += 2) values.push_back(call.args[i]);
    if (call.args.size() % 2 == 0) values.push_back(call.args.back());
  } else if (choices.contains(call.name)) {
    values.assign(call.args.begin() + (call.name == "NVL2" ? 1 : 0), call.args.end());
  } else if (!call.args.empty()) {
    values.push_back(call.args.front());
  }
  return values;
}

Exprs valuesOf(const CaseExpr& choice) {
  Exprs values;
  for (const CaseWhen& when : choice.whens) values.push_back(when.then);
  if (choice.otherwise != nullptr) values.push_back(choice.otherwise);
  return values;
}

/// One expression for each branch of a UNION.
void appendColumn(const Query& query, std::size_t column, Exprs& found) {
  for (const SetTerm& term : query.terms)
    if (term.block != nullptr)
      found.push_back(term.block->columns.at(column).expr);
    else
      appendColumn(*term.query, column, found);
}

/// A column of something in FROM, followed to a table's or to what computes it.
struct Origin {
  const CatalogueColumn* column = nullptr;
  std::string name;  ///< of the table and the column
  Exprs computed;
};

Origin originOf(const FromItem* source, std::size_t column) {
  Origin origin;
  if (const auto* derived = as<DerivedItem>(source)) {
    appendColumn(*derived->query, column, origin.computed);
  } else if (const auto* pivot = as<PivotItem>(source)) {
    if (column < pivot->groupColumns.size())
      return originOf(pivot->source, static_cast<std::size_t>(pivot->groupColumns[column]));
    const std::size_t aggregate = (column - pivot->groupColumns.size()) % pivot->aggregates.size();
    origin.computed.push_back(pivot->aggregates[aggregate].call);
  } else if (const auto* table = as<TableItem>(source)) {
    if (table->with != nullptr) appendColumn(*table->with->query, column, origin.computed);
    if (table->table != nullptr) {
      origin.column = &table->table->columns.at(column);
      origin.name = table->table->name + "." + origin.column->name;
    }
  }
  return origin;
}

Origin originOf(const ColumnRef& ref) { return originOf(ref.source, static_cast<std::size_t>(ref.column)); }

bool isSum(const Expr& e) {
  const auto* sum = as<Arithmetic>(&e);
  return sum != nullptr && (sum->op == ArithmeticOp::Add || sum->op == ArithmeticOp::Subtract);
}

/// The terms of a chain of additions and subtractions, with their signs.
void appendTerms(const Expr& e, bool plus, std::vector<std::pair<const Expr*, bool>>& terms) {
  if (!isSum(e)) {
    terms.emplace_back(&e, plus);
    return;
  }
  const auto& sum = *as<Arithmetic>(&e);
  appendTerms(*sum.left, plus, terms);
  appendTerms(*sum.right, plus != (sum.op == ArithmeticOp::Subtract), terms);
}

/// The table columns that an expression is made of.
void collect(const Expr& e, std::set<std::string>& columns) {
  const auto all = [&](const Exprs& values) {
    for (const Expr* value : values) collect(*value, columns);
  };
  if (const auto* ref = as<ColumnRef>(&e)) {
    const Origin origin = originOf(*ref);
    if (origin.column != nullptr) columns.insert(origin.name);
    all(origin.computed);
  } else if (const auto* arithmetic = as<Arithmetic>(&e)) {
    all({arithmetic->left, arithmetic->right});
  } else if (const auto* call = as<Call>(&e)) {
    all(valuesOf(*call));
  } else if (const auto* choice = as<CaseExpr>(&e)) {
    all(valuesOf(*choice));
  }
}

/// The nature of a choice of both.
Nature joined(Nature a, Nature b) {
  const auto are = [&](Nature one, Nature other) {
    return (a == one && b == other) || (a == other && b == one);
  };
  if (a == b || b == Nature::Constant) return a;
  if (a == Nature::Constant) return b;
  // A counter that began anew has grown by all that it holds.
  if (are(Nature::State, Nature::Growth)) return Nature::Growth;
  if (are(Nature::State, Nature::OfStates)) return Nature::State;
  return Nature::Mixed;
}

/// A nature, and whether a factor of 100 has come on the way.
struct Figure {
  Nature nature = Nature::Constant;
  bool hundredfold = false;
};

class Reader {
 public:
  explicit Reader(const BindNatures& binds) : binds_(binds) {}

  Figure joinedOf(const Exprs& values) const {
    Figure all;
    for (const Expr* value : values) {
      const Figure one = of(*value);
      all = {joined(all.nature, one.nature), all.hundredfold || one.hundredfold};
    }
    return all;
  }

 private:
  Figure of(const Expr& e) const {
    if (const auto* ref = as<ColumnRef>(&e)) return ofColumn(*ref);
    if (const auto* bind = as<BindExpr>(&e)) return {binds_(bind->name)};
    if (const auto* choice = as<CaseExpr>(&e)) return joinedOf(valuesOf(*choice));
    if (const auto* call = as<Call>(&e)) return ofCall(*call);
    if (isSum(e)) return ofSum(e);
    if (const auto* product = as<Arithmetic>(&e)) return ofProduct(*product);
    if (e.kind == ExprKind::Concat) return {Nature::Text};
    if (const auto* text = as<StringLiteral>(&e)) return ofLiteral(text->value);
    if (const auto* inner = as<SubqueryExpr>(&e)) {
      Exprs found;
      appendColumn(*inner->query, 0, found);
      return joinedOf(found);
    }
    return {};
  }

  /// A blank or a zero stands for a figure that isn't there.
  static Figure ofLiteral(std::string_view text) {
    return {text.find_first_not_of(" 0") == std::string_view::npos ? Nature::Constant : Nature::Text};
  }

  Figure ofColumn(const ColumnRef& ref) const {
    const Origin origin = originOf(ref);
    if (origin.column == nullptr) return joinedOf(origin.computed);
    const std::string& name = origin.column->name;
    if (origin.column->type.kind == TypeKind::Date) return {Nature::Moment};
    if (origin.column->type.kind != TypeKind::Number) return {Nature::Text};
    if (kCountersOfRows.contains(name)) return {Nature::Growth};
    const bool percentage = name.find("_PCT") != name.npos || name.find("PERCENTAGE") != name.npos;
    return {percentage ? Nature::Percentage : Nature::State};
  }

  Figure ofCall(const Call& call) const {
    if (call.name == "COUNT") return {Nature::State};
    return call.name == "RATIO_TO_REPORT" ? Figure{Nature::Quotient} : joinedOf(valuesOf(call));
  }

  /// Columns that are taken away as often as they are added give a growth: they are the end's row and the
  /// start's.
  Figure ofSum(const Expr& e) const {
    std::vector<std::pair<const Expr*, bool>> terms;
    appendTerms(e, true, terms);
    std::map<std::string, int> added;  // less those taken away
    Figure all;
    for (const auto& [term, plus] : terms) {
      Figure one = of(*term);
      if (one.nature == Nature::Moment && !plus) return {Nature::Duration};
      if (one.nature == Nature::Text) one.nature = Nature::State;  // a parameter's value
      all = {joined(all.nature, one.nature), all.hundredfold || one.hundredfold};
      if (one.nature != Nature::State) continue;
      std::set<std::string> columns;
      collect(*term, columns);
      for (const std::string& column : columns) added[column] += plus ? 1 : -1;
    }
    if (all.nature != Nature::State && all.nature != Nature::Growth) return all;
    const bool balanced =
        std::all_of(added.begin(), added.end(), [](const auto& of) { return of.second == 0; });
    // Nothing added but growths is balanced too; a figure of one snapshot and a growth are a state.
    all.nature = balanced ? Nature::Growth : Nature::State;
    return all;
  }

  Figure ofProduct(const Arithmetic& e) const {
    Figure left = of(*e.left), right = of(*e.right);
    for (Figure* side : {&left, &right})
      if (side->nature == Nature::Text) side->nature = Nature::State;  // a parameter's value
    if (e.op == ArithmeticOp::Divide) return quotient(left, right);

    const auto isHundred = [](const Expr* factor) {
      const auto* number = as<NumberLiteral>(factor);
      return number != nullptr && number->text == "100";
    };
    // A constant scales the other factor, and so does a state: the size of a block, the number of processors.
    const bool leftScales =
        left.nature == Nature::Constant || (left.nature == Nature::State && right.nature != Nature::Constant);
    const Nature of = leftScales ? right.nature : left.nature;
    const bool hundredfold = left.hundredfold || right.hundredfold || isHundred(e.left) || isHundred(e.right);
    const bool ofWhole = of == Nature::Quotient || of == Nature::OfStates;
    return {hundredfold && ofWhole ? Nature::Percentage : of, hundredfold};
  }

  static Figure quotient(Figure left, Figure right) {
    if (right.nature == Nature::Constant || left.nature == Nature::PerSecond) return left;
    if (left.hundredfold) return {Nature::Percentage};
    if (right.nature == Nature::Duration && left.nature != Nature::Duration) return {Nature::PerSecond};
    const bool states = left.nature == Nature::State || right.nature == Nature::State;
    return {states ? Nature::OfStates : Nature::Quotient};
  }

  const BindNatures& binds_;
};

}  // namespace

const char* nameOf(Nature nature) {
  switch (nature) {
    case Nature::Constant:
      return "a constant";
    case Nature::Text:
      return "a text";
    case Nature::Moment:
      return "a moment";
    case Nature::State:
      return "a state";
    case Nature::Growth:
      return "a growth";
    case Nature::Duration:
      return "a duration";
    case Nature::PerSecond:
      return "divided by a duration";
    case Nature::Quotient:
      return "a quotient of growths";
    case Nature::OfStates:
      return "a quotient with a state";
    case Nature::Percentage:
      return "a percentage";
    case Nature::Mixed:
      break;
  }
  return "of several natures";
}

Nature natureOf(const oracle_sql::Query& query, std::size_t column, const BindNatures& binds) {
  Exprs found;
  appendColumn(query, column, found);
  return Reader(binds).joinedOf(found).nature;
}

}  // namespace kestrelix::testing_support

#include "repository_file/lowering/sqlite_printer.h"

#include <algorithm>
#include <utility>

#include "oracle_sql/syntax/error.h"
#include "repository_file/names.h"

namespace kestrelix::repository_file::lite {
namespace {

/// By Operator.
constexpr std::string_view kWords[] = {
    "NOT ", "-",   " IS NULL", " IS NOT NULL", " IS NOT TRUE", " OR ", " AND ", " IS ", " = ",
    " <> ", " < ", " <= ",     " > ",          " >= ",         " + ",  " - ",   " * ",  " || "};

std::string_view wordOf(Operator op) { return kWords[static_cast<std::size_t>(op)]; }

/// Whether it stands behind its operand.
bool isTest(Operator op) { return op >= Operator::IsNull && op <= Operator::IsNotTrue; }

bool joinsConditions(Operator op) { return op == Operator::And || op == Operator::Or || op == Operator::Not; }

/// Far above what any expression of the reports becomes. Some rules write an operand twice, and such operands
/// inside each other would grow without bounds.
constexpr std::size_t kMostBytes = 500'000;
/// SQLite allows an expression a depth of 1,000: a longer chain is written as brackets of so many terms.
constexpr std::size_t kTermsOfBracket = 100;
/// Of the 500 terms of a compound query.
constexpr std::size_t kMostBranches = 400;
/// SQLite's parser keeps a hundred open rules, of which a query inside another one takes up to eight and an
/// expression up to six.
constexpr int kMostRules = 80;
constexpr int kRulesOfQuery = 8;
constexpr int kRulesOfExpression = 6;
/// Of queries inside each other; those below stand in front of the statement.
constexpr int kMostLevels = 5;
/// Well below the 2,000 columns of a query and the 64 tables of a join.
constexpr std::size_t kManyColumns = 1000;
constexpr int kManyTables = 60;

class Printer {
 public:
  Printed statement(const Query& query) {
    for (const Named& named : query.with) {
      body(*named.query);
      moveToFront(named.name, 0);
    }
    levels_ = 0;
    body(query);
    const int rules = std::max(mostRules_, rules_);
    if (!front_.empty()) text_ = "WITH " + front_ + " " + text_;
    return {std::move(text_), rules > kMostRules || columns_ > kManyColumns || tables_ > kManyTables};
  }

 private:
  /// What was written from `begin` on becomes a query in front of the statement.
  void moveToFront(std::string_view name, std::size_t begin) {
    front_ += (front_.empty() ? "" : ", ") + quoted(name) + " AS (" + text_.substr(begin) + ")";
    text_.resize(begin);
    mostRules_ = std::max(mostRules_, std::exchange(rules_, 0));
  }

  template <class Items, class Write>
  void commas(const Items& items, Write&& write) {
    bool first = true;
    for (const auto& item : items) {
      if (!std::exchange(first, false)) text_ += ", ";
      write(item);
    }
  }
  /// `before` and the expressions, if there are any.
  void part(std::string_view before, std::span<const Expr* const> exprs) {
    if (exprs.empty()) return;
    text_ += before;
    commas(exprs, [&](const Expr* e) { expr(*e); });
  }
  void part(std::string_view before, const Expr* e) {
    if (e) part(before, std::span(&e, 1));
  }

  // ---- expressions ----

  void expr(const Expr& e) {
    const std::size_t begin = text_.size();
    const int rulesAround = std::exchange(rules_, 0);
    write(e);
    rules_ = std::max(rules_ + kRulesOfExpression, rulesAround);
    if (text_.size() > begin + kMostBytes) throw sql::SqlError::unsupported("an expression of this size", {});
  }

  void write(const Expr& e) {
    switch (e.kind) {
      case Kind::Null:
        text_ += "NULL";
        break;
      case Kind::Star:
        text_ += '*';
        break;
      case Kind::Integer:
        integer(static_cast<const Integer&>(e).value);
        break;
      case Kind::Blob:
        blob(static_cast<const Literal&>(e).value);
        break;
      case Kind::Text:
        text(static_cast<const Literal&>(e).value);
        break;
      case Kind::Parameter:
        text_ += parameterOf(static_cast<const Literal&>(e).value);
        break;
      case Kind::Column:
        column(static_cast<const Column&>(e));
        break;
      case Kind::Operation:
        operation(static_cast<const Operation&>(e));
        break;
      case Kind::Call:
        call(static_cast<const Call&>(e));
        break;
      case Kind::Coalesce:
        coalesce(static_cast<const Values&>(e).values);
        break;
      case Kind::Row:
        arguments(static_cast<const Values&>(e).values);
        break;
      case Kind::Case:
        choice(static_cast<const Case&>(e));
        break;
      case Kind::In:
        in(static_cast<const In&>(e));
        break;
      case Kind::Exists:
        text_ += "EXISTS ";
        [[fallthrough]];
      case Kind::Subquery:
        bracketed(*static_cast<const Subquery&>(e).query);
        break;
    }
  }

  void integer(std::int64_t value) {
    // SQLite reads the digits of the smallest integer, without its sign, as a floating point number.
    text_ += value == INT64_MIN ? "(-9223372036854775807 - 1)" : std::to_string(value);
  }

  void column(const Column& column) {
    if (!column.source.empty()) text_ += quoted(column.source) + '.';
    text_ += quoted(column.name);
  }

  void blob(std::string_view bytes) {
    static constexpr char kHex[] = "0123456789ABCDEF";
    text_ += "x'";
    for (const char c : bytes) {
      const auto byte = static_cast<unsigned char>(c);
      (text_ += kHex[byte >> 4]) += kHex[byte & 15];
    }
    text_ += '\'';
  }

  void text(std::string_view value) {
    if (value.find('\0') != std::string_view::npos) {
      // SQLite's parser takes a zero byte for the end of the statement.
      text_ += "CAST(";
      blob(value);
      text_ += " AS TEXT)";
      return;
    }
    text_ += '\'';
    for (const char c : value) {
      if (c == '\'') text_ += '\'';
      text_ += c;
    }
    text_ += '\'';
  }

  /// An operator inside another one stands in brackets, whichever of them binds closer. Only a test behind
  /// its operand is clear without between conditions.
  void operand(Operator op, const Expr& e) {
    const auto* inner = as<Operation>(&e);
    const auto* number = as<Integer>(&e);
    const bool brackets = inner    ? !(joinsConditions(op) && isTest(inner->op))
                          : number ? number->value < 0
                                   : e.kind == Kind::In;
    if (brackets) text_ += '(';
    expr(e);
    if (brackets) text_ += ')';
  }

  void operation(const Operation& operation) {
    if (operation.operands.size() > 1) return chain(operation.op, operation.operands);
    if (!isTest(operation.op)) text_ += wordOf(operation.op);
    operand(operation.op, *operation.operands.front());
    if (isTest(operation.op)) text_ += wordOf(operation.op);
  }

  void chain(Operator op, std::span<const Expr* const> terms) {
    std::size_t inBracket = 1;
    while (terms.size() > inBracket * kTermsOfBracket) inBracket *= kTermsOfBracket;
    for (std::size_t i = 0; i < terms.size(); i += inBracket) {
      if (i > 0) text_ += wordOf(op);
      if (inBracket == 1) {
        operand(op, *terms[i]);
        continue;
      }
      text_ += '(';
      chain(op, terms.subspan(i, std::min(inBracket, terms.size() - i)));
      text_ += ')';
    }
  }

  void arguments(std::span<const Expr* const> exprs) {
    text_ += '(';
    part({}, exprs);
    text_ += ')';
  }

  void call(const Call& call) {
    (text_ += call.name) += call.distinct ? "(DISTINCT " : "(";
    part({}, call.args);
    text_ += ')';
    part(" FILTER (WHERE ", call.filter);
    if (call.filter) text_ += ')';
    if (call.over) window(*call.over);
  }

  /// SQLite's takes two arguments at least.
  void coalesce(std::span<const Expr* const> values) {
    const bool fits = values.size() <= kMostArguments;
    text_ += "coalesce(";
    part({}, fits ? values : values.first(kMostArguments - 1));
    for (std::size_t i = values.size(); i < 2; ++i) text_ += i == 0 ? "NULL" : ", NULL";
    if (!fits) {
      text_ += ", ";
      coalesce(values.subspan(kMostArguments - 1));
    }
    text_ += ')';
  }

  void choice(const Case& choice) {
    text_ += "CASE";
    part(" ", choice.operand);
    for (const Arm& arm : choice.arms) {
      part(" WHEN ", arm.when);
      part(" THEN ", arm.then);
    }
    part(" ELSE ", choice.otherwise);
    text_ += " END";
  }

  void in(const In& in) {
    operand(Operator::Equal, *in.operand);
    text_ += in.negated ? " NOT IN " : " IN ";
    if (in.query) return bracketed(*in.query);
    arguments(in.values);
  }

  void window(const Window& window) {
    const std::size_t begin = (text_ += " OVER (").size();
    part(" PARTITION BY ", window.partitionBy);
    order(window.orderBy);
    if (!window.unit.empty()) {
      const bool between = !window.end.words.empty();
      ((text_ += ' ') += window.unit) += between ? " BETWEEN" : "";
      bound(window.start);
      if (between) text_ += " AND";
      bound(window.end);
    }
    if (text_.size() > begin) text_.erase(begin, 1);
    text_ += ')';
  }

  void bound(const Bound& bound) {
    part(" ", bound.offset);
    if (!bound.words.empty()) (text_ += ' ') += bound.words;
  }

  void order(const List<Order>& keys) {
    if (!keys.empty()) text_ += " ORDER BY ";
    commas(keys, [&](const Order& key) {
      expr(*key.key);
      (text_ += key.descending ? " DESC" : "") += key.nullsFirst ? " NULLS FIRST" : " NULLS LAST";
    });
  }

  // ---- queries ----

  void bracketed(const Query& query) {
    text_ += '(';
    const std::size_t begin = text_.size();
    const int levelsAround = std::exchange(levels_, 0);
    const int rulesAround = std::exchange(rules_, 0);
    if (!query.with.empty()) text_ += "WITH ";
    commas(query.with, [&](const Named& named) {
      text_ += quoted(named.name) + " AS ";
      bracketed(*named.query);
    });
    if (!query.with.empty()) text_ += ' ';
    body(query);
    if (++levels_ > kMostLevels && query.standsAlone) {
      const std::string name = "view " + std::to_string(++views_);
      moveToFront(name, begin);
      text_ += "SELECT * FROM " + quoted(name);
      levels_ = 1;
    }
    levels_ = std::max(levels_, levelsAround);
    rules_ = std::max(rules_ + kRulesOfQuery, rulesAround);
    text_ += ')';
  }

  /// Without the queries that it names in front.
  void body(const Query& query) {
    const std::size_t begin = text_.size();
    std::size_t branches = 0;
    for (const Branch& branch : query.branches) {
      if (branches++ == kMostBranches) {
        text_.insert(begin, "SELECT * FROM (");
        text_ += ')';
        branches = 1;
      }
      if (!branch.joinedBy.empty()) ((text_ += ' ') += branch.joinedBy) += ' ';
      select(*branch.select);
    }
    order(query.orderBy);
    part(" LIMIT ", query.limit);
  }

  void select(const Select& select) {
    text_ += select.distinct ? "SELECT DISTINCT " : "SELECT ";
    columns_ = std::max(columns_, select.items.size());
    commas(select.items, [&](const Item& item) {
      expr(*item.expr);
      if (!item.name.empty()) text_ += " AS " + quoted(item.name);
    });
    if (!select.from.empty()) text_ += " FROM ";
    from(select.from);
    conditions(" WHERE ", select.where);
    part(" GROUP BY ", select.groupBy);
    part(" HAVING ", select.having);
  }

  void conditions(std::string_view before, const Exprs& all) {
    if (!all.empty()) text_ += before;
    chain(Operator::And, all);
  }

  void from(const From& sources) {
    for (const Source& source : sources) {
      if (&source != &sources.front())
        text_ += source.joinedBy.empty() ? ", " : " " + std::string(source.joinedBy) + " ";
      ++tables_;
      if (source.query) {
        bracketed(*source.query);
      } else if (!source.joins.empty()) {
        text_ += '(';
        from(source.joins);
        text_ += ')';
      } else {
        text_ += quoted(source.table);
      }
      if (!source.alias.empty()) text_ += " AS " + quoted(source.alias);
      conditions(" ON ", source.on);
    }
  }

  std::string text_;
  std::string front_;  ///< the queries in front of the statement
  int levels_ = 0;     ///< queries inside each other in what has been written of the current one
  int views_ = 0;
  int rules_ = 0;  ///< of the parser, open at once in it
  int mostRules_ = 0;
  int tables_ = 0;
  std::size_t columns_ = 0;
};

}  // namespace

Printed print(const Query& statement) { return Printer().statement(statement); }

std::string quoted(std::string_view name) {
  std::string text = "\"";
  for (const char c : name) {
    if (c == '"') text += '"';
    text += c;
  }
  return text + '"';
}

// A '#' may stand in Oracle's names and not in SQLite's parameters.
std::string parameterOf(std::string_view bind) {
  std::string parameter = ":";
  for (const char c : bind) parameter += c == '#' ? "$$" : std::string(1, c);
  return parameter;
}

std::string bindOf(std::string_view parameter) {
  std::string bind(parameter.substr(1));
  for (std::size_t at; (at = bind.find("$$")) != std::string::npos;) bind.replace(at, 2, "#");
  return bind;
}

}  // namespace kestrelix::repository_file::lite

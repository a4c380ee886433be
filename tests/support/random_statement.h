// Statements made at random from the grammar, mostly right ones: equal seeds give equal statements
// everywhere.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <random>
#include <string>
#include <vector>

#include "oracle_sql/types.h"

namespace testing_support {

struct RandomColumn {
  std::string name;
  oracle_sql::TypeKind type;  ///< Number, Varchar2, Date or Raw
};

struct RandomTable {
  std::string name;
  std::vector<RandomColumn> columns;
};

class RandomStatement {
 public:
  /// The statements read `tables` and DUAL, and name the binds :B1 to :B4 (numbers) and :ENAME (text).
  RandomStatement(std::uint64_t seed, std::vector<RandomTable> tables)
      : random_(seed), tables_(std::move(tables)) {}

  /// A statement that is right, apart from a few that go against a rule of types on purpose.
  std::string next() {
    aliases_ = 0;
    views_.clear();
    std::string text;
    if (chance(10)) {
      const int width = 1 + below(3);
      std::vector<RandomColumn> columns;
      const std::string view = blocks(2, types(width), columns);
      const std::string name = "w" + std::to_string(below(3));
      text = "with " + name + " as (" + view + ") ";
      views_.push_back({name, columns});
    }
    std::vector<RandomColumn> columns;
    return text + query(3, types(1 + below(4)), columns, true);
  }

  /// A statement with one of its words or characters taken out, doubled or replaced.
  std::string nextBroken() {
    std::string text = next();
    if (text.empty()) return text;
    const std::size_t at = static_cast<std::size_t>(below(static_cast<int>(text.size())));
    static constexpr const char* kWords[] = {" ",      "(",        ")",      ",",    "'",
                                             "(+)",    " select ", " from ", " or ", " null",
                                             " case ", " over (",  " end ",  "\"",   " group by ",
                                             " 1",     ".",        ":x",     "||",   " date '2020-02-30'",
                                             "--",     "/*"};
    switch (below(4)) {
      case 0:
        return text.erase(at, 1 + static_cast<std::size_t>(below(8)));
      case 1:
        return text.insert(at, kWords[below(static_cast<int>(std::size(kWords)))]);
      case 2:
        return text.substr(0, at) + text.substr(at / 2);
      default:
        return text.replace(at, 1, kWords[below(static_cast<int>(std::size(kWords)))]);
    }
  }

 private:
  using Kind = oracle_sql::TypeKind;

  // What the names of a block may mean: "alias.column".
  using Scope = std::vector<RandomColumn>;

  int below(int n) { return static_cast<int>(random_() % static_cast<std::uint64_t>(n)); }
  bool chance(int percent) { return below(100) < percent; }
  std::string pick(std::initializer_list<const char*> list) {
    return list.begin()[below(static_cast<int>(list.size()))];
  }

  Kind type() {
    const int n = below(10);
    return n < 5 ? Kind::Number : n < 8 ? Kind::Varchar2 : Kind::Date;
  }
  std::vector<Kind> types(int n) {
    std::vector<Kind> list;
    while (n-- > 0) list.push_back(type());
    return list;
  }

  std::string query(int depth, const std::vector<Kind>& wanted, std::vector<RandomColumn>& columns,
                    bool sorted) {
    std::string text = blocks(depth, wanted, columns);
    if (!sorted || !chance(60)) return text;
    text += " order by " + std::to_string(1 + below(static_cast<int>(wanted.size())));
    if (chance(50)) text += " desc";
    if (chance(20)) text += chance(50) ? " nulls first" : " nulls last";
    return text;
  }

  std::string blocks(int depth, const std::vector<Kind>& wanted, std::vector<RandomColumn>& columns) {
    std::string text = block(depth, wanted, columns);
    while (chance(12)) {
      std::vector<RandomColumn> others;
      const std::string op = pick({" union all ", " union ", " minus ", " intersect "});
      text += op + block(depth - 1, wanted, others);
    }
    return text;
  }

  std::string block(int depth, const std::vector<Kind>& wanted, std::vector<RandomColumn>& columns) {
    Scope scope;
    std::string marks;
    const std::string from = fromClause(depth, scope, marks);
    std::string where;
    if (chance(60)) where = condition(2, scope, depth);
    if (!marks.empty()) where = where.empty() ? marks : "(" + where + ") and " + marks;
    if (chance(8))
      where = (where.empty() ? "" : "(" + where + ") and ") + std::string("rownum <= ") +
              std::to_string(1 + below(9));
    const bool grouped = chance(25);
    std::string keys;
    Scope keyScope;
    if (grouped && chance(70)) {
      for (int n = 1 + below(2); n > 0; --n) {
        const RandomColumn& c = scope[static_cast<std::size_t>(below(static_cast<int>(scope.size())))];
        keys += (keys.empty() ? "" : ", ") + c.name;
        keyScope.push_back(c);
      }
    }
    std::string items;
    columns.clear();
    for (std::size_t i = 0; i < wanted.size(); ++i) {
      std::string item;
      if (!grouped)
        item = chance(12) ? window(wanted[i], scope) : expression(wanted[i], 3, scope, depth);
      else
        item = groupedItem(wanted[i], scope, keyScope);
      const std::string name = "c" + std::to_string(i + 1);
      items += (i == 0 ? "" : ", ") + item + (chance(50) ? " as " : " ") + name;
      columns.push_back({name, wanted[i]});
    }
    std::string text = "select ";
    if (chance(5)) text += "/*+ ordered */ ";
    if (!grouped && chance(8)) text += "distinct ";
    text += items + " from " + from;
    if (!where.empty()) text += " where " + where;
    if (!keys.empty()) text += " group by " + grouping(keys);
    if (grouped && chance(30))
      text += " having " + pick({"count(*) > 0", "count(*) between 1 and 100", "max(1) is not null"});
    return text;
  }

  // One FROM item; its columns come under a fresh alias.
  std::string fromItem(int depth, Scope& scope) {
    const std::string alias = "t" + std::to_string(++aliases_);
    if (depth > 1 && chance(30)) {
      std::vector<RandomColumn> columns;
      const std::string view = query(depth - 1, types(1 + below(3)), columns, chance(30));
      for (const RandomColumn& c : columns) scope.push_back({alias + "." + c.name, c.type});
      return "(" + view + ") " + alias;
    }
    if (depth > 1 && chance(4)) {
      for (const char* name : {"one", "two"}) scope.push_back({alias + "." + name, Kind::Number});
      return "(select n, k from (select 1 n, 'a' k from dual union all select 2, 'b' from dual)) pivot "
             "(sum(n) for k in ('a' as one, 'b' two)) " +
             alias;
    }
    const std::size_t all = tables_.size() + views_.size();
    const std::size_t n = static_cast<std::size_t>(below(static_cast<int>(all)));
    const RandomTable& table = n < tables_.size() ? tables_[n] : views_[n - tables_.size()];
    for (const RandomColumn& c : table.columns) scope.push_back({alias + "." + c.name, c.type});
    return table.name + " " + alias;
  }

  std::string fromClause(int depth, Scope& scope, std::string& marks) {
    std::string text = fromItem(depth, scope);
    if (!chance(40)) return text;
    Scope other;
    const std::string second = fromItem(depth, other);
    const std::string left = column(Kind::Number, scope);
    const std::string right = column(Kind::Number, other);
    if (chance(50)) {
      text += ", " + second;
      // A marked side must be a column of the second item.
      if (!right.empty() && !left.empty()) marks = right + (chance(60) ? "(+) = " : " = ") + left;
    } else {
      text += pick({" join ", " left join ", " right outer join ", " full outer join "}) + second + " on ";
      text += left.empty() || right.empty() ? "1 = 1" : left + " = " + right;
    }
    scope.insert(scope.end(), other.begin(), other.end());
    return text;
  }

  // A column of that type, or nothing.
  std::string column(Kind kind, const Scope& scope) {
    std::vector<const std::string*> fit;
    for (const RandomColumn& c : scope)
      if (c.type == kind) fit.push_back(&c.name);
    return fit.empty() ? std::string() : *fit[static_cast<std::size_t>(below(static_cast<int>(fit.size())))];
  }

  std::string literal(Kind kind) {
    switch (kind) {
      case Kind::Number:
        return pick({"0", "1", "2", "10", ".5", "2.75", "1000000", "-1", "1e3", ":b1", ":B2", "null",
                     "99999999999999999999"});
      case Kind::Date:
        return pick({"date '2020-02-29'", "sysdate", "to_date('2001-02-03', 'YYYY-MM-DD')"});
      default:
        return pick({"'a'", "'abc'", "''", "' '", "'10'", "'it''s'", "q'[x]'", ":ename", "null", "'あ'"});
    }
  }

  std::string expression(Kind kind, int depth, const Scope& scope, int queries) {
    if (kind == Kind::Raw) return "hextoraw('0F')";
    if (depth <= 0 || chance(30)) {
      const std::string c = chance(75) ? column(kind, scope) : std::string();
      return c.empty() ? literal(kind) : c;
    }
    const auto sub = [&](Kind k) { return expression(k, depth - 1, scope, queries); };
    if (chance(6))
      return "decode(" + sub(Kind::Number) + ", 1, " + sub(kind) + ", null, " + sub(kind) + ", " + sub(kind) +
             ")";
    if (chance(6))
      return "case when " + condition(depth - 1, scope, queries) + " then " + sub(kind) + " else " +
             sub(kind) + " end";
    if (chance(5)) return "nvl(" + sub(kind) + ", " + sub(kind) + ")";
    if (chance(4)) return "coalesce(" + sub(kind) + ", " + sub(kind) + ", " + sub(kind) + ")";
    if (queries > 1 && chance(4)) {
      std::vector<RandomColumn> columns;
      Scope inner;
      std::string none;
      const std::string from = fromItem(1, inner);
      return "(select max(" + expression(kind, 1, inner, 0) + ") from " + from + " where " +
             condition(1, scope, 0) + ")";
    }
    switch (kind) {
      case Kind::Number:
        switch (below(12)) {
          case 0:
            return "round(" + sub(Kind::Number) + ", " + std::to_string(below(4)) + ")";
          case 1:
            return "trunc(" + sub(Kind::Number) + ")";
          case 2:
            return "(" + sub(Kind::Date) + " - " + sub(Kind::Date) + ") * 1440";
          case 3:
            return "length(" + sub(Kind::Varchar2) + ")";
          case 4:
            return "instr(" + sub(Kind::Varchar2) + ", 'a')";
          case 5:
            return "greatest(" + sub(Kind::Number) + ", " + sub(Kind::Number) + ")";
          case 6:
            return "sign(" + sub(Kind::Number) + ")";
          case 7:
            return "-(" + sub(Kind::Number) + ")";
          case 8:
            return "mod(" + sub(Kind::Number) + ", 7)";
          default:
            return "(" + sub(Kind::Number) + pick({" + ", " - ", " * ", " / "}) + sub(Kind::Number) + ")";
        }
      case Kind::Date:
        switch (below(4)) {
          case 0:
            return "trunc(" + sub(Kind::Date) + ")";
          case 1:
            return "add_months(" + sub(Kind::Date) + ", 1)";
          default:
            return "(" + sub(Kind::Date) + pick({" + ", " - "}) + std::to_string(below(30)) + ")";
        }
      default:
        switch (below(9)) {
          case 0:
            return "to_char(" + sub(Kind::Number) + ")";
          case 1:
            return "to_char(" + sub(Kind::Date) + ", 'YYYY-MM-DD HH24:MI:SS')";
          case 2:
            return "substr(" + sub(Kind::Varchar2) + ", 1, 3)";
          case 3:
            return "upper(" + sub(Kind::Varchar2) + ")";
          case 4:
            return "replace(" + sub(Kind::Varchar2) + ", 'a', 'b')";
          case 5:
            return "lpad(" + sub(Kind::Varchar2) + ", 8, '*')";
          case 6:
            return "trim(" + sub(Kind::Varchar2) + ")";
          default:
            return sub(Kind::Varchar2) + " || " + sub(chance(70) ? Kind::Varchar2 : Kind::Number);
        }
    }
  }

  std::string condition(int depth, const Scope& scope, int queries) {
    if (depth > 0 && chance(35))
      return "(" + condition(depth - 1, scope, queries) + pick({" and ", " or "}) +
             condition(depth - 1, scope, queries) + ")";
    if (depth > 0 && chance(8)) return "not " + condition(depth - 1, scope, queries);
    const Kind kind = type();
    const auto side = [&](Kind k) { return expression(k, depth, scope, 0); };
    switch (below(10)) {
      case 0:
        return side(kind) + pick({" is null", " is not null"});
      case 1:
        return side(kind) + pick({" between ", " not between "}) + side(kind) + " and " + side(kind);
      case 2:
        return side(kind) + pick({" in (", " not in ("}) + side(kind) + ", " + side(kind) + ")";
      case 3:
        return side(Kind::Varchar2) + pick({" like 'a%'", " not like '_b%'", " like '%x\\%' escape '\\'"});
      case 4: {
        if (queries < 2) break;
        Scope inner;
        const std::string from = fromItem(1, inner);
        const std::string c = column(kind, inner);
        if (c.empty()) break;
        if (chance(50)) return side(kind) + " in (select " + c + " from " + from + ")";
        return pick({"exists", "not exists"}) + " (select 1 from " + from + " where " + c + " = " +
               side(kind) + ")";
      }
      // Text against a number converts at run time, against a date it may be refused.
      case 5:
        return side(Kind::Number) + " = " + side(chance(80) ? Kind::Number : Kind::Varchar2);
      default:
        break;
    }
    return side(kind) + pick({" = ", " <> ", " < ", " <= ", " > ", " >= "}) + side(kind);
  }

  std::string grouping(const std::string& keys) {
    if (chance(75)) return keys;
    return "rollup(" + keys + ")";
  }

  std::string groupedItem(Kind kind, const Scope& scope, const Scope& keys) {
    const std::string key = column(kind, keys);
    if (!key.empty() && chance(50)) return key;
    const std::string argument = expression(kind, 1, scope, 0);
    const RandomColumn& sort = scope[static_cast<std::size_t>(below(static_cast<int>(scope.size())))];
    const std::string keep =
        chance(20) ? " keep (dense_rank " + pick({"first", "last"}) + " order by " + sort.name + ")" : "";
    if (kind != Kind::Number) return pick({"max(", "min("}) + argument + ")" + keep;
    if (chance(10)) return "sum(sum(" + argument + ")) over ()";
    if (chance(20)) return "count(*)";
    return pick({"sum(", "avg(", "max(", "min(", "count(", "count(distinct ", "stddev("}) + argument + ")" +
           keep;
  }

  std::string window(Kind kind, const Scope& scope) {
    const std::string argument = expression(kind, 1, scope, 0);
    const RandomColumn& sort = scope[static_cast<std::size_t>(below(static_cast<int>(scope.size())))];
    const RandomColumn& part = scope[static_cast<std::size_t>(below(static_cast<int>(scope.size())))];
    const std::string order = "order by " + sort.name + pick({"", " desc", " nulls first"});
    const std::string partition = chance(50) ? "partition by " + part.name + " " : "";
    if (kind == Kind::Number && chance(50)) {
      if (chance(20)) return "ratio_to_report(" + argument + ") over (" + partition + ")";
      return pick({"row_number()", "rank()", "dense_rank()"}) + " over (" + partition + order + ")";
    }
    if (chance(40)) return pick({"lag(", "lead("}) + argument + ", 1) over (" + partition + order + ")";
    if (chance(30))
      return pick({"first_value(", "last_value("}) + argument + ") over (" + partition + order + ")";
    return pick({"max(", "min("}) + argument + ") over (" + partition + (chance(50) ? order : "") + ")";
  }

  std::mt19937_64 random_;
  std::vector<RandomTable> tables_;
  std::vector<RandomTable> views_;  // of WITH
  int aliases_ = 0;
};

}  // namespace testing_support

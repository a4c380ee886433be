// "(+)" behind the columns of a table makes it the optional side of a join: every condition that bears the
// mark goes to the join, the others filter behind it.
#include <algorithm>
#include <iterator>

#include "repository_file/lowering/block.h"
#include "repository_file/lowering/walk.h"

namespace kestrelix::repository_file {
namespace {

struct OptionalTable {
  std::vector<const sql::Expr*> conditions;
  std::unordered_set<const sql::FromItem*> needs;  ///< the tables that its conditions name besides it
};

bool needsBrackets(const sql::FromItem* item) {
  const auto* join = sql::as<sql::JoinItem>(item);
  return join && (join->join == sql::JoinKind::Right || join->join == sql::JoinKind::Full ||
                  needsBrackets(join->left) || needsBrackets(join->right));
}

}  // namespace

lite::From lowerFrom(Lowerer& to, const sql::SelectBlock& block, std::vector<const sql::Expr*>& conjuncts) {
  std::unordered_map<const sql::FromItem*, lite::From> lowered;
  for (const sql::FromItem* item : block.from) {
    lite::From sources = to.lower(*item);
    if (block.from.size() > 1 && needsBrackets(item)) {
      lite::Source brackets = to.bracketed(std::move(sources));
      sources = lite::From(to.memory());
      sources.push_back(std::move(brackets));
    }
    lowered.emplace(item, std::move(sources));
  }

  std::unordered_map<const sql::FromItem*, OptionalTable> optional;
  std::unordered_map<const sql::Expr*, const sql::FromItem*> owner;
  if (block.outerMarks) {
    for (const sql::Expr* term : conjuncts) {
      const sql::FromItem* marked = nullptr;
      std::unordered_set<const sql::FromItem*> named;
      walkExpressions(*term, [&](const sql::Expr& expr) {
        const auto* column = sql::as<sql::ColumnRef>(&expr);
        if (!column || !column->source || column->levelsOut != 0) return;
        if (!column->outerMark) {
          named.insert(column->source);
        } else if (marked && marked != column->source) {
          throw sql::SqlError::wrong(1468, "a predicate may reference only one outer-joined table",
                                     column->place);
        } else {
          marked = column->source;
        }
      });
      if (!marked) continue;
      owner[term] = marked;
      auto& table = optional[marked];
      table.conditions.push_back(term);
      named.erase(marked);
      table.needs.merge(named);
    }
    // Marks against constants alone join with nothing: such conditions only filter.
    std::erase_if(optional, [](const auto& entry) { return entry.second.needs.empty(); });
    std::erase_if(conjuncts, [&](const sql::Expr* term) {
      const auto found = owner.find(term);
      return found != owner.end() && optional.count(found->second);
    });
  }

  lite::From from(to.memory());
  std::unordered_set<const sql::FromItem*> placed;
  const auto place = [&](const sql::FromItem* item) -> lite::Source& {
    auto& sources = lowered.at(item);
    std::move(sources.begin(), sources.end(), std::back_inserter(from));
    placed.insert(item);
    return from.back();
  };
  for (const sql::FromItem* item : block.from)
    if (!optional.count(item)) place(item);
  for (std::size_t left = optional.size(); left > 0; --left) {
    const auto next = std::find_if(block.from.begin(), block.from.end(), [&](const sql::FromItem* item) {
      if (placed.count(item)) return false;
      const auto& needs = optional.at(item).needs;
      return std::all_of(needs.begin(), needs.end(), [&](const auto* need) { return placed.count(need); });
    });
    if (next == block.from.end())
      throw sql::SqlError::wrong(1416, "two tables cannot be outer-joined to each other", block.place);
    lite::Source& joined = place(*next);
    joined.joinedBy = "LEFT JOIN";
    for (const sql::Expr* term : optional.at(*next).conditions) joined.on.push_back(to.condition(*term));
  }
  return from;
}

}  // namespace kestrelix::repository_file

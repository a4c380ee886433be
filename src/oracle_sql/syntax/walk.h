// Going through a tree.
#pragma once

#include "oracle_sql/syntax/tree.h"

namespace oracle_sql {

/// Calls `visit(Expr&)` for each direct operand of an expression, those of its windows and sort lists
/// included; a subquery is no operand.
template <class E, class Visit>
void forEachOperand(E& e, Visit&& visit) {
  const auto one = [&](auto* p) {
    if (p) visit(*p);
  };
  const auto all = [&](auto& list) {
    for (auto* p : list) visit(*p);
  };
  const auto sorts = [&](auto& list) {
    for (auto& item : list) visit(*item.expr);
  };
  switch (e.kind) {
    case ExprKind::Null:
    case ExprKind::Number:
    case ExprKind::String:
    case ExprKind::DateLiteral:
    case ExprKind::Column:
    case ExprKind::Rownum:
    case ExprKind::Bind:
    case ExprKind::Subquery:
    case ExprKind::Exists:
      break;
    case ExprKind::Negate:
      one(as<Negate>(&e)->operand);
      break;
    case ExprKind::Arithmetic:
      one(as<Arithmetic>(&e)->left);
      one(as<Arithmetic>(&e)->right);
      break;
    case ExprKind::Concat:
      one(as<Concat>(&e)->left);
      one(as<Concat>(&e)->right);
      break;
    case ExprKind::Case: {
      auto& c = *as<CaseExpr>(&e);
      one(c.operand);
      for (auto& w : c.whens) {
        one(w.when);
        one(w.then);
      }
      one(c.otherwise);
      break;
    }
    case ExprKind::Call: {
      auto& c = *as<Call>(&e);
      all(c.args);
      sorts(c.withinGroup);
      if (c.keep) sorts(c.keep->orderBy);
      if (c.over) {
        all(c.over->partitionBy);
        sorts(c.over->orderBy);
        one(c.over->start.offset);
        one(c.over->end.offset);
      }
      break;
    }
    case ExprKind::Cast:
      one(as<CastExpr>(&e)->operand);
      break;
    case ExprKind::Row:
      all(as<RowExpr>(&e)->items);
      break;
    case ExprKind::Compare:
      one(as<Compare>(&e)->left);
      one(as<Compare>(&e)->right);
      break;
    case ExprKind::And:
      all(as<AndExpr>(&e)->terms);
      break;
    case ExprKind::Or:
      all(as<OrExpr>(&e)->terms);
      break;
    case ExprKind::Not:
      one(as<NotExpr>(&e)->operand);
      break;
    case ExprKind::Lnnvl:
      one(as<Lnnvl>(&e)->operand);
      break;
    case ExprKind::Between: {
      auto& b = *as<Between>(&e);
      one(b.operand);
      one(b.low);
      one(b.high);
      break;
    }
    case ExprKind::In:
      one(as<InExpr>(&e)->operand);
      all(as<InExpr>(&e)->list);
      break;
    case ExprKind::Like: {
      auto& l = *as<LikeExpr>(&e);
      one(l.operand);
      one(l.pattern);
      one(l.escape);
      break;
    }
    case ExprKind::IsNull:
      one(as<IsNull>(&e)->operand);
      break;
  }
}

/// The query inside an expression of kind Subquery, Exists or In, or null.
inline Query* queryOf(const Expr& e) {
  switch (e.kind) {
    case ExprKind::Subquery:
      return as<SubqueryExpr>(&e)->query;
    case ExprKind::Exists:
      return as<Exists>(&e)->query;
    case ExprKind::In:
      return as<InExpr>(&e)->query;
    default:
      return nullptr;
  }
}

/// Calls `visit(Expr&)` for the expressions that stand in a block itself: ON, select list, WHERE, GROUP BY
/// and HAVING. ORDER BY belongs to the query.
template <class Visit>
void forEachExpr(const SelectBlock& b, Visit&& visit) {
  const auto conditionsOf = [&](const auto& self, const FromItem& f) -> void {
    const auto* join = as<JoinItem>(&f);
    if (!join) return;
    self(self, *join->left);
    self(self, *join->right);
    if (join->on) visit(*join->on);
  };
  for (const FromItem* f : b.from) conditionsOf(conditionsOf, *f);
  for (const SelectItem& s : b.items)
    if (s.expr) visit(*s.expr);
  if (b.where) visit(*b.where);
  for (Expr* g : b.groupBy) visit(*g);
  if (b.having) visit(*b.having);
}

}  // namespace oracle_sql

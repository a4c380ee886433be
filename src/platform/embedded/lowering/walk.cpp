#include "platform/embedded/lowering/walk.h"

namespace kestrelix::embedded {
namespace {

using Visit = std::function<void(const sql::Expr&)>;

class Walker {
 public:
  Walker(const Visit& visit, bool intoSubqueries) : visit_(visit), intoSubqueries_(intoSubqueries) {}

  void one(const sql::Expr* expr) {
    if (!expr) return;
    visit_(*expr);
    children(*expr);
  }
  void all(const sql::ExprList& list) {
    for (const sql::Expr* expr : list) one(expr);
  }
  void order(const sql::List<sql::OrderItem>& items) {
    for (const auto& item : items) one(item.expr);
  }
  void subquery(const sql::Query* query) {
    if (query && intoSubqueries_) whole(*query);
  }
  void whole(const sql::Query& query) {
    for (const auto* item : query.with) whole(*item->query);
    for (const auto& term : query.terms) {
      if (term.query) whole(*term.query);
      if (term.block) block(*term.block);
    }
    order(query.orderBy);
  }

 private:
  void block(const sql::SelectBlock& block) {
    for (const auto* item : block.from) from(item);
    for (const auto& column : block.columns) one(column.expr);
    one(block.where);
    all(block.groupBy);
    one(block.having);
  }
  void from(const sql::FromItem* item) {
    if (const auto* derived = sql::as<sql::DerivedItem>(item)) whole(*derived->query);
    if (const auto* pivot = sql::as<sql::PivotItem>(item)) {
      from(pivot->source);
      for (const auto& aggregate : pivot->aggregates) one(aggregate.call);
    }
    if (const auto* join = sql::as<sql::JoinItem>(item)) {
      from(join->left);
      from(join->right);
      one(join->on);
    }
  }
  void call(const sql::Call& call) {
    all(call.args);
    order(call.withinGroup);
    if (call.keep) order(call.keep->orderBy);
    if (call.over) {
      all(call.over->partitionBy);
      order(call.over->orderBy);
      one(call.over->start.offset);
      one(call.over->end.offset);
    }
  }

  void children(const sql::Expr& expr) {
    using sql::ExprKind;
    switch (expr.kind) {
      case ExprKind::Negate:
        one(sql::as<sql::Negate>(&expr)->operand);
        break;
      case ExprKind::Arithmetic:
        one(sql::as<sql::Arithmetic>(&expr)->left);
        one(sql::as<sql::Arithmetic>(&expr)->right);
        break;
      case ExprKind::Concat:
        one(sql::as<sql::Concat>(&expr)->left);
        one(sql::as<sql::Concat>(&expr)->right);
        break;
      case ExprKind::Case: {
        const auto& node = *sql::as<sql::CaseExpr>(&expr);
        one(node.operand);
        for (const auto& arm : node.whens) {
          one(arm.when);
          one(arm.then);
        }
        one(node.otherwise);
        break;
      }
      case ExprKind::Call:
        call(*sql::as<sql::Call>(&expr));
        break;
      case ExprKind::Cast:
        one(sql::as<sql::CastExpr>(&expr)->operand);
        break;
      case ExprKind::Subquery:
        subquery(sql::as<sql::SubqueryExpr>(&expr)->query);
        break;
      case ExprKind::Row:
        all(sql::as<sql::RowExpr>(&expr)->items);
        break;
      case ExprKind::Compare: {
        const auto& node = *sql::as<sql::Compare>(&expr);
        one(node.left);
        one(node.right);
        all(node.list);
        subquery(node.query);
        break;
      }
      case ExprKind::And:
        all(sql::as<sql::AndExpr>(&expr)->terms);
        break;
      case ExprKind::Or:
        all(sql::as<sql::OrExpr>(&expr)->terms);
        break;
      case ExprKind::Not:
        one(sql::as<sql::NotExpr>(&expr)->operand);
        break;
      case ExprKind::Between: {
        const auto& node = *sql::as<sql::Between>(&expr);
        one(node.operand);
        one(node.low);
        one(node.high);
        break;
      }
      case ExprKind::In: {
        const auto& node = *sql::as<sql::InExpr>(&expr);
        one(node.operand);
        all(node.list);
        subquery(node.query);
        break;
      }
      case ExprKind::Like: {
        const auto& node = *sql::as<sql::LikeExpr>(&expr);
        one(node.operand);
        one(node.pattern);
        one(node.escape);
        break;
      }
      case ExprKind::IsNull:
        one(sql::as<sql::IsNull>(&expr)->operand);
        break;
      case ExprKind::Exists:
        subquery(sql::as<sql::Exists>(&expr)->query);
        break;
      default:
        break;
    }
  }

  const Visit& visit_;
  bool intoSubqueries_;
};

}  // namespace

void walkExpressions(const sql::Expr& expr, const Visit& visit, bool intoSubqueries) {
  Walker(visit, intoSubqueries).one(&expr);
}

void walkExpressions(const sql::Query& query, const Visit& visit) { Walker(visit, true).whole(query); }

bool namesRownum(const sql::Expr& expr) {
  bool found = false;
  walkExpressions(expr, [&](const sql::Expr& e) { found = found || e.kind == sql::ExprKind::Rownum; });
  return found;
}

bool isRowFree(const sql::Expr& expr) {
  bool free = true;
  walkExpressions(expr, [&](const sql::Expr& e) {
    const auto* call = sql::as<sql::Call>(&e);
    if (e.kind == sql::ExprKind::Column || e.kind == sql::ExprKind::Rownum ||
        e.kind == sql::ExprKind::Subquery || e.kind == sql::ExprKind::Exists || e.kind == sql::ExprKind::In ||
        (call && call->role != sql::CallRole::Scalar))
      free = false;
  });
  return free;
}

}  // namespace kestrelix::embedded

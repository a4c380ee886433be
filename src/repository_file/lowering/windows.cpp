// Window functions that rank rows or take their share.
#include "platform/ascii.h"
#include "repository_file/lowering/builders.h"
#include "repository_file/lowering/rules.h"
#include "repository_file/lowering/walk.h"

namespace kestrelix::repository_file {
namespace {

using sql::TypeKind;

Value rank(const lite::Expr* node) { return {node, TypeKind::Number, {true, 1e15}, false, true}; }

lite::Call* overPartition(Lowerer& to, const sql::Call& call, std::string_view name, const lite::Expr* arg) {
  lite::Call* lowered = to.call(name, {arg});
  lowered->over = lowerPartition(to, *call.over);
  return lowered;
}

}  // namespace

Lowered lowerRank(Lowerer& to, const sql::Call& call) {
  return rank(setCall(to, call, to.keep(asciiLower(call.name)), {}));
}

Lowered lowerRatioToReport(Lowerer& to, const sql::Call& call) {
  const Value value = to.lowerAs(*call.args[0], TypeKind::Number);
  // The share in a total of zero is NULL, no error.
  const auto* total = to.call("nullif", {overPartition(to, call, "num_sum", value.node), to.integer(0)});
  return divided(to, value, {total, TypeKind::Number}, call.place);
}

/// The share of the rows of the partition in front of the row (PERCENT_RANK) or up to its peers (CUME_DIST).
Lowered lowerRankShare(Lowerer& to, const sql::Call& call) {
  const auto* all = overPartition(to, call, "count", to.star());
  if (call.name == "CUME_DIST")
    return divided(to, rank(setCall(to, call, "count", {to.star()})), rank(all), call.place);
  const auto lessOne = [&](const lite::Expr* count) {
    return to.operation(lite::Operator::Subtract, {count, to.integer(1)});
  };
  return divided(to, rank(lessOne(setCall(to, call, "rank", {}))),
                 rank(to.call("max", {lessOne(all), to.integer(1)})), call.place);
}

Lowered lowerNtile(Lowerer& to, const sql::Call& call) {
  const sql::Expr& buckets = *call.args[0];
  if (!isRowFree(buckets)) throw sql::SqlError::unsupported("NTILE with a count of each row", buckets.place);
  return rank(setCall(to, call, "ntile", {rowOffset(to, buckets, 1)}));
}

}  // namespace kestrelix::repository_file

#include "demo/plans.h"

#include <algorithm>

#include "demo/random.h"

namespace kestrelix::demo {

namespace {

std::vector<std::string> objectsOf(std::string_view text) {
  std::vector<std::string> names;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find(' ', at), text.size());
    names.emplace_back(text.substr(at, end - at));
    at = end + 1;
  }
  names.resize(std::max<std::size_t>(names.size(), 4));
  return names;
}

class Builder {
 public:
  Builder(std::int64_t rows, std::int64_t cost) : rows_(std::max<std::int64_t>(rows, 1)), cost_(cost) {}

  std::vector<PlanLine> lines;

  void add(int depth, const char* operation, const char* options = "", const std::string& object = "",
           int percentOfRows = 100, int width = 42) {
    PlanLine line;
    line.depth = depth;
    for (std::size_t i = lines.size(); i-- > 0 && line.parent < 0;)
      if (lines[i].depth < depth) line.parent = static_cast<int>(i);
    line.operation = operation;
    line.options = options;
    line.object = object;
    if (percentOfRows >= 0) {
      line.rows = std::max<std::int64_t>(1, rows_ * percentOfRows / 100);
      line.bytes = line.rows * width;
      line.cost = std::max<std::int64_t>(1, cost_ * (10 - std::min(depth, 9)) / 10);
    }
    lines.push_back(std::move(line));
  }
  void head(const char* statement) {
    add(0, statement);
    lines[0].rows = lines[0].bytes = -1;
    lines[0].cost = cost_;
  }

 private:
  std::int64_t rows_;
  std::int64_t cost_;
};

void scan(Builder& plan, int depth, PlanShape shape, const std::vector<std::string>& names) {
  switch (shape) {
    case PlanShape::UniqueLookup:
      plan.add(depth, "TABLE ACCESS", "BY INDEX ROWID", names[0]);
      plan.add(depth + 1, "INDEX", "UNIQUE SCAN", names[1]);
      break;
    case PlanShape::RangeScan:
      plan.add(depth, "SORT", "ORDER BY");
      plan.add(depth + 1, "TABLE ACCESS", "BY INDEX ROWID", names[0]);
      plan.add(depth + 2, "INDEX", "RANGE SCAN", names[1], 140);
      break;
    case PlanShape::NestedLoops:
      plan.add(depth, "SORT", "GROUP BY");
      plan.add(depth + 1, "NESTED LOOPS", "", "", 300);
      plan.add(depth + 2, "TABLE ACCESS", "BY INDEX ROWID", names[0], 100, 28);
      plan.add(depth + 3, "INDEX", "RANGE SCAN", names[1], 120);
      plan.add(depth + 2, "TABLE ACCESS", "BY INDEX ROWID", names[2], 300, 31);
      plan.add(depth + 3, "INDEX", "RANGE SCAN", names[3], 300);
      break;
    case PlanShape::HashJoin:
      plan.add(depth, "SORT", "GROUP BY");
      plan.add(depth + 1, "HASH JOIN", "", "", 9000, 76);
      plan.add(depth + 2, "TABLE ACCESS", "FULL", names[0], 4000, 33);
      plan.add(depth + 2, "TABLE ACCESS", "FULL", names[2], 18000, 40);
      break;
    case PlanShape::Partitions:
      plan.add(depth, "SORT", "GROUP BY");
      plan.add(depth + 1, "PARTITION RANGE", "ITERATOR", "", 12000);
      plan.add(depth + 2, "TABLE ACCESS", "FULL", names[0], 12000, 29);
      break;
    default:
      plan.add(depth, "TABLE ACCESS", "FULL", names[0], 400);
      break;
  }
}

}  // namespace

Plan planOf(const Statement& statement, bool other) {
  Plan plan;
  if (statement.plan == PlanShape::None || (other && !statement.twoPlans)) return plan;
  const auto names = objectsOf(statement.objects);
  // The optimizer's cost is near the blocks; the largest reach into the millions.
  const std::int64_t cost = std::max<std::int64_t>(1, std::int64_t{statement.gets} / (other ? 1 : 3) * 4);
  Builder builder(statement.rows, cost);
  switch (statement.plan) {
    case PlanShape::Insert:
      builder.head("INSERT STATEMENT");
      builder.add(1, "LOAD TABLE CONVENTIONAL", "", names[0], -1);
      builder.add(1, "SEQUENCE", "", names[0] + "_SEQ", -1);
      break;
    case PlanShape::Update:
      builder.head("UPDATE STATEMENT");
      builder.add(1, "UPDATE", "", names[0], -1);
      builder.add(2, "INDEX", "UNIQUE SCAN", names[1]);
      break;
    case PlanShape::Delete:
      builder.head("DELETE STATEMENT");
      builder.add(1, "DELETE", "", names[0], -1);
      builder.add(2, "INDEX", "RANGE SCAN", names[1]);
      break;
    default:
      builder.head("SELECT STATEMENT");
      if (!other) {
        scan(builder, 1, statement.plan, names);
      } else if (statement.plan == PlanShape::NestedLoops) {
        scan(builder, 1, PlanShape::HashJoin, names);
      } else {
        // An intermediate result of the server's own bears a generated name.
        builder.add(1, "TEMP TABLE TRANSFORMATION", "", "", -1);
        builder.add(2, "LOAD AS SELECT", "", "", -1);
        builder.add(3, "TABLE ACCESS", "FULL", names[0], 4000, 33);
        builder.add(2, "VIEW", "", "SYS_LE_2_0", 4000);
        builder.add(3, "TABLE ACCESS", "FULL", "SYS_TEMP_0FD9D6603_1A2B3C", 4000);
        scan(builder, 2, PlanShape::NestedLoops, names);
      }
      break;
  }
  plan.lines = std::move(builder.lines);
  std::string key(statement.text);
  for (const PlanLine& line : plan.lines) key += line.operation + line.options + line.object;
  plan.hash = static_cast<std::int64_t>(textHash(key) & 0xFFFFFFFFu);
  return plan;
}

}  // namespace kestrelix::demo

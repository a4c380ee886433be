// PIVOT groups by every column of its source that it does not name; each value of its list is an aggregate
// over the rows that bear it.
#include "repository_file/lowering/builders.h"

namespace kestrelix::repository_file {

lite::Source lowerPivot(Lowerer& to, const sql::PivotItem& pivot) {
  lite::Select& select = *to.select();
  select.from = to.lower(*pivot.source);
  Source source{to.uniqueAlias(pivot.alias.empty() ? std::string_view("PIVOT") : pivot.alias), {}};
  const auto add = [&](const Value& value) {
    const std::string_view name = to.keep("p" + std::to_string(source.columns.size() + 1));
    select.items.push_back({value.node, name});
    source.columns.push_back({name, value.kind, value.number});
  };
  for (const int index : pivot.groupColumns) {
    const Value key = to.column(pivot.source, index);
    select.groupBy.push_back(key.node);
    add(key);
  }
  for (const auto& value : pivot.values) {
    std::vector<const lite::Expr*> bears;
    for (std::size_t i = 0; i < value.values.size(); ++i)
      bears.push_back(compared(to, sql::CompareOp::Equal, to.lower(*pivot.forColumns[i]),
                               to.lower(*value.values[i]), pivot.place));
    const Within filter(to.filter, to.allOf(bears));
    for (const auto& aggregate : pivot.aggregates) add(to.lower(*aggregate.call));
  }
  lite::Source lowered = to.source(source.alias, to.query(&select));
  to.define(&pivot, std::move(source));
  return lowered;
}

}  // namespace kestrelix::repository_file

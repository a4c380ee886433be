// PIVOT groups by every column of its source that it does not name; each value of its list is an aggregate
// over the rows that bear it.
#include "platform/embedded/lowering/rules.h"

namespace kestrelix::embedded {

std::string lowerPivot(Emitter& emitter, const sql::PivotItem& pivot) {
  const std::string from = emitter.source(*pivot.source);
  Source source;
  source.alias = emitter.uniqueAlias(pivot.alias.empty() ? std::string_view("PIVOT") : pivot.alias);
  std::string list;
  std::string keys;
  const auto add = [&](const Piece& piece) {
    const std::string name = "p" + std::to_string(source.columns.size() + 1);
    list += (list.empty() ? "" : ", ") + piece.text + " AS " + quoted(name);
    source.columns.push_back({name, piece.kind, piece.number});
  };
  for (const int index : pivot.groupColumns) {
    const Piece key = emitter.column(pivot.source, index);
    keys += (keys.empty() ? "" : ", ") + key.text;
    add(key);
  }
  for (const auto& value : pivot.values) {
    std::string bears;
    for (std::size_t i = 0; i < value.values.size(); ++i)
      bears += (bears.empty() ? "" : " AND ") + compared(emitter, sql::CompareOp::Equal,
                                                         emitter.expression(*pivot.forColumns[i]),
                                                         emitter.expression(*value.values[i]), pivot.place);
    for (const auto& aggregate : pivot.aggregates) {
      Piece piece = emitter.expression(*aggregate.call);
      piece.text += " FILTER (WHERE " + bears + ")";
      add(piece);
    }
  }
  std::string text = "(SELECT " + list + " FROM " + from + (keys.empty() ? "" : " GROUP BY " + keys) +
                     ") AS " + quoted(source.alias);
  emitter.define(&pivot, std::move(source));
  return text;
}

}  // namespace kestrelix::embedded

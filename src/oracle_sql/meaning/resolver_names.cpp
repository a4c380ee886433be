// Names of columns: a block's own FROM items first, then the blocks around it, one by one.
#include "oracle_sql/meaning/resolver_state.h"

namespace oracle_sql {

void Resolver::unknownName(const ColumnRef& c) {
  std::string name;
  for (const std::string_view part : {c.schema, c.qualifier})
    if (!part.empty()) name += "\"" + std::string(part) + "\".";
  fail(904, name + "\"" + std::string(c.name) + "\": invalid identifier", c.place);
}

const OutputColumn& Resolver::columnAt(const Found& found, OutputColumn& room) {
  const auto index = static_cast<std::size_t>(found.column);
  if (const auto* j = as<JoinItem>(found.source)) {
    const MergedColumn& m = j->merged[index];
    room = {m.name, m.type, nullptr};
    return room;
  }
  return found.source->columns[index];
}

/// An unqualified name in a FROM item; a merged column hides those it is made of.
void Resolver::search(const FromItem& f, std::string_view name, Found& found) const {
  if (const auto* j = as<JoinItem>(&f)) {
    for (std::size_t i = 0; i < j->merged.size(); ++i) {
      if (j->merged[i].name != name) continue;
      found = {j, static_cast<int>(i), found.matches + 1};
      return;
    }
    search(*j->left, name, found);
    search(*j->right, name, found);
    return;
  }
  for (std::size_t i = 0; i < f.columns.size(); ++i)
    if (f.columns[i].name == name) found = {&f, static_cast<int>(i), found.matches + 1};
}

/// The FROM item that a qualifier means. `merged` is a join over it that merged the column.
const FromItem* Resolver::leafNamed(const FromItem& f, const ColumnRef& c, int& leaves,
                                    const JoinItem*& merged) const {
  if (const auto* j = as<JoinItem>(&f)) {
    const FromItem* left = leafNamed(*j->left, c, leaves, merged);
    const FromItem* right = leafNamed(*j->right, c, leaves, merged);
    const FromItem* leaf = left ? left : right;
    if (leaf)
      for (const MergedColumn& m : j->merged)
        if (m.name == c.name) merged = j;
    return leaf;
  }
  const auto* t = as<TableItem>(&f);
  const std::string_view own = !f.alias.empty() ? f.alias : t ? t->name : std::string_view();
  if (own != c.qualifier) return nullptr;
  if (!c.schema.empty() && (!f.alias.empty() || !t || (!t->schema.empty() && t->schema != c.schema)))
    return nullptr;
  ++leaves;
  return &f;
}

void Resolver::column(ColumnRef& c, const Env& env) {
  if (c.outerMark && !env.outerMarks) {
    if (env.joins) fail(25156, "old style outer join (+) cannot be used with ANSI joins", c.place);
    fail(30563, "outer join operator (+) is not allowed here", c.place);
  }
  if (env.aliases && env.scope->block) {
    c.output = outputNamed(env.scope->block->columns, c);
    if (c.output >= 0) {
      c.type = env.scope->block->columns[static_cast<std::size_t>(c.output)].type;
      return;
    }
  }
  int level = 0;
  for (const Scope* scope = env.scope; scope; scope = scope->outer, ++level) {
    Found found;
    if (c.qualifier.empty()) {
      for (const FromItem* f : scope->items) search(*f, c.name, found);
    } else {
      int leaves = 0;
      const JoinItem* merged = nullptr;
      for (const FromItem* f : scope->items) {
        const FromItem* leaf = leafNamed(*f, c, leaves, merged);
        if (leaf) search(*leaf, c.name, found);
      }
      if (merged) fail(25154, "column part of USING clause cannot have qualifier", c.place);
      if (leaves > 1) fail(918, "column ambiguously defined", c.place);
      // A name found here hides the same name further out, whatever columns it has.
      if (leaves == 1 && found.matches == 0) unknownName(c);
    }
    if (found.matches > 1) fail(918, "column ambiguously defined", c.place);
    if (found.matches == 0) continue;
    if (level > 0 && c.outerMark)
      fail(1705, "an outer join cannot be specified on a correlation column", c.place);
    c.source = found.source;
    c.column = found.column;
    c.levelsOut = level;
    OutputColumn room;
    c.type = columnAt(found, room).type;
    for (std::size_t i = level > 0 ? scope->queries : active_.size(); i < active_.size(); ++i)
      active_[i]->correlated = true;
    return;
  }
  if (c.qualifier.empty() && isOracleFunction(c.name))
    throw SqlError::unsupported("function " + std::string(c.name), c.place);
  unknownName(c);
}

}  // namespace oracle_sql

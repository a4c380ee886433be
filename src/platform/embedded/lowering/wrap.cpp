// A block put into a subquery: what it reads is selected there under names of its own.
#include "platform/embedded/lowering/rules.h"

namespace kestrelix::embedded {
namespace {

void addSources(const sql::FromItem* item, std::unordered_set<const sql::FromItem*>& sources) {
  sources.insert(item);
  if (const auto* join = sql::as<sql::JoinItem>(item)) {
    addSources(join->left, sources);
    addSources(join->right, sources);
  }
}

}  // namespace

Wrap wrapOf(Emitter& emitter, const sql::SelectBlock& block, const char* alias) {
  Wrap wrap;
  wrap.alias = emitter.uniqueAlias(alias);
  for (const sql::FromItem* item : block.from) addSources(item, wrap.sources);
  return wrap;
}

std::string exportList(Emitter& emitter, const Wrap& wrap) {
  std::string list;
  for (const auto& [column, name] : wrap.exports)
    list +=
        (list.empty() ? "" : ", ") + emitter.column(column.first, column.second).text + " AS " + quoted(name);
  return list;
}

}  // namespace kestrelix::embedded

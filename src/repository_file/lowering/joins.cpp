#include "repository_file/lowering/builders.h"

namespace kestrelix::repository_file {
namespace {

/// By JoinKind.
constexpr std::string_view kWords[] = {"JOIN", "LEFT JOIN", "RIGHT JOIN", "FULL JOIN", "CROSS JOIN"};

}  // namespace

lite::From lowerJoin(Lowerer& to, const sql::JoinItem& join) {
  lite::From sources = to.lower(*join.left);
  lite::From right = to.lower(*join.right);
  lite::Source& joined = right.size() == 1 ? sources.emplace_back(std::move(right.front()))
                                           : sources.emplace_back(to.bracketed(std::move(right)));
  joined.joinedBy = kWords[static_cast<std::size_t>(join.join)];
  for (const auto& merged : join.merged)
    joined.on.push_back(compared(to, sql::CompareOp::Equal, to.column(merged.leftSource, merged.leftColumn),
                                 to.column(merged.rightSource, merged.rightColumn), join.place));
  if (join.on) joined.on.push_back(to.condition(*join.on));
  return sources;
}

}  // namespace kestrelix::repository_file

#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "oracle_sql/regex.h"

namespace oracle_sql {

// A regular expression as it is written.
struct RegexNode {
  enum class Kind : std::uint8_t { Empty, Single, Sequence, Choice, Group, Repeat };

  static constexpr int kNoLimit = -1;

  Kind kind = Kind::Empty;
  RegexInstruction single{RegexOp::Match};  // of Single
  std::vector<std::unique_ptr<RegexNode>> children;
  int group = 0;  // of Group, from 1
  int least = 0;  // of Repeat
  int most = 0;   // of Repeat; kNoLimit
  bool lazy = false;
};

// ORA-12725 to ORA-12733. The sets that the nodes name are appended to `sets`.
std::unique_ptr<RegexNode> parseRegex(std::string_view pattern, RegexOptions options,
                                      std::vector<RegexSet>& sets);

}  // namespace oracle_sql

// From the written form of a regular expression to its program.
#include "oracle_sql/function_error.h"
#include "oracle_sql/regex_parser.h"

namespace oracle_sql {
namespace {

constexpr std::size_t kLongestProgram = 50000;

class Compiler {
 public:
  std::vector<RegexInstruction> program;
  std::size_t slots = 2 * Regex::kGroups;

  void append(const RegexNode& node) {
    switch (node.kind) {
      case RegexNode::Kind::Empty:
        return;
      case RegexNode::Kind::Single:
        add(node.single);
        return;
      case RegexNode::Kind::Sequence:
        for (const auto& child : node.children) {
          append(*child);
        }
        return;
      case RegexNode::Kind::Choice:
        appendChoice(node);
        return;
      case RegexNode::Kind::Group:
        appendGroup(node);
        return;
      case RegexNode::Kind::Repeat:
        appendRepeat(node);
        return;
    }
  }

  std::uint32_t add(RegexInstruction instruction) {
    if (program.size() >= kLongestProgram) {
      throw FunctionError(12723, "regular expression too complex");
    }
    program.push_back(instruction);
    return static_cast<std::uint32_t>(program.size() - 1);
  }

 private:
  std::uint32_t end() const { return static_cast<std::uint32_t>(program.size()); }

  void appendChoice(const RegexNode& node) {
    std::vector<std::uint32_t> jumps;
    for (std::size_t i = 0; i + 1 < node.children.size(); ++i) {
      const std::uint32_t split = add({RegexOp::Split});
      program[split].a = end();
      append(*node.children[i]);
      jumps.push_back(add({RegexOp::Jump}));
      program[split].b = end();
    }
    append(*node.children.back());
    for (const std::uint32_t jump : jumps) {
      program[jump].a = end();
    }
  }

  // Only nine groups can be asked for.
  void appendGroup(const RegexNode& node) {
    const bool saved = node.group < static_cast<int>(Regex::kGroups);
    const auto slot = static_cast<std::uint32_t>(2 * node.group);
    if (saved) {
      add({RegexOp::Save, slot});
    }
    append(*node.children.front());
    if (saved) {
      add({RegexOp::Save, slot + 1});
    }
  }

  // A way into the repetition and, later or first, a way around it.
  std::uint32_t addWay(bool lazy) {
    const std::uint32_t split = add({RegexOp::Split});
    (lazy ? program[split].b : program[split].a) = end();
    return split;
  }

  void setWayAround(std::uint32_t split, bool lazy) { (lazy ? program[split].a : program[split].b) = end(); }

  void appendRepeat(const RegexNode& node) {
    const RegexNode& child = *node.children.front();
    for (int i = 0; i < node.least; ++i) {
      const std::uint32_t begin = end();
      append(child);
      if (end() == begin) {
        break;  // nothing, however often; the length of the program would not bound the turns
      }
    }
    if (node.most == RegexNode::kNoLimit) {
      const auto slot = static_cast<std::uint32_t>(slots++);
      const std::uint32_t split = addWay(node.lazy);
      add({RegexOp::Save, slot});
      append(child);
      const std::uint32_t progress = add({RegexOp::Progress, slot});  // a turn that takes nothing is the last
      add({RegexOp::Jump, split});
      program[progress].b = end();
      setWayAround(split, node.lazy);
      return;
    }
    std::vector<std::uint32_t> ways;
    for (int i = node.least; i < node.most; ++i) {
      ways.push_back(addWay(node.lazy));
      append(child);
    }
    for (const std::uint32_t way : ways) {
      setWayAround(way, node.lazy);
    }
  }
};

}  // namespace

Regex::Regex(std::string_view pattern, RegexOptions options) : options_(options) {
  const auto root = parseRegex(pattern, options, sets_);
  Compiler compiler;
  compiler.append(*root);
  compiler.add({RegexOp::Match});
  program_ = std::move(compiler.program);
  slots_ = compiler.slots;
}

}  // namespace oracle_sql

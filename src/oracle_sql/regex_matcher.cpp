// The search by trial and return: what was left undecided lies on a stack.
#include <algorithm>

#include "oracle_sql/function_error.h"
#include "oracle_sql/regex.h"
#include "oracle_sql/utf8.h"

namespace oracle_sql {
namespace {

constexpr std::size_t kMostSteps = 20'000'000;
constexpr std::size_t kDeepestStack = 1'000'000;

std::uint32_t folded(std::uint32_t c) { return utf8::lower(utf8::upper(c)); }

class Matcher {
 public:
  Matcher(const std::vector<RegexInstruction>& program, const std::vector<RegexSet>& sets,
          RegexOptions options, std::size_t slots, std::string_view text)
      : program_(program), sets_(sets), options_(options), slots_(slots, Regex::kUnset), text_(text) {}

  bool matchAt(std::size_t begin) {
    std::fill(slots_.begin(), slots_.end(), Regex::kUnset);
    stack_.clear();
    at_ = begin;
    std::uint32_t where = 0;
    while (program_[where].op != RegexOp::Match) {
      if (++steps_ > kMostSteps || stack_.size() > kDeepestStack) {
        throw FunctionError(12723, "regular expression too complex");
      }
      if (!step(where) && !goBack(where)) {
        return false;
      }
    }
    slots_[0] = begin;
    slots_[1] = at_;
    return true;
  }

  const std::vector<std::size_t>& slots() const { return slots_; }

 private:
  // What to return to: an instruction at a position, or what a slot held before.
  struct Undecided {
    std::uint32_t where;
    bool isSlot;
    std::size_t value;
  };

  bool step(std::uint32_t& where) {
    const RegexInstruction& i = program_[where];
    ++where;
    switch (i.op) {
      case RegexOp::Character:
      case RegexOp::Any:
      case RegexOp::Set:
        return takeCharacter(i);
      case RegexOp::TextBegin:
        return at_ == 0;
      case RegexOp::TextEnd:
        return at_ == text_.size();
      case RegexOp::LastLineEnd:
        return at_ == text_.size() || (at_ + 1 == text_.size() && text_[at_] == '\n');
      case RegexOp::LineBegin:
        return at_ == 0 || text_[at_ - 1] == '\n';
      case RegexOp::LineEnd:
        return at_ == text_.size() || text_[at_] == '\n';
      case RegexOp::BackReference:
        return takeGroup(i.a);
      case RegexOp::Save:
        stack_.push_back({i.a, true, slots_[i.a]});
        slots_[i.a] = at_;
        return true;
      case RegexOp::Progress:
        where = slots_[i.a] == at_ ? i.b : where;
        return true;
      case RegexOp::Split:
        stack_.push_back({i.b, false, at_});
        where = i.a;
        return true;
      case RegexOp::Jump:
        where = i.a;
        return true;
      case RegexOp::Match:
        break;
    }
    return true;
  }

  bool goBack(std::uint32_t& where) {
    while (!stack_.empty()) {
      const Undecided last = stack_.back();
      stack_.pop_back();
      if (!last.isSlot) {
        where = last.where;
        at_ = last.value;
        return true;
      }
      slots_[last.where] = last.value;
    }
    return false;
  }

  bool takeCharacter(const RegexInstruction& i) {
    if (at_ == text_.size()) {
      return false;
    }
    const std::size_t size = utf8::sizeAt(text_, at_);
    const std::uint32_t c = utf8::decode(text_.substr(at_, size));
    bool fits = false;
    if (i.op == RegexOp::Any) {
      fits = options_.dotTakesLines || c != '\n';
    } else if (i.op == RegexOp::Set) {
      fits = sets_[i.a].contains(c, options_.ignoreCase);
    } else {
      fits = c == i.a || (options_.ignoreCase && folded(c) == folded(i.a));
    }
    at_ += fits ? size : 0;
    return fits;
  }

  // What the group took, once more; in any case under i.
  bool takeGroup(std::uint32_t group) {
    const std::size_t begin = slots_[2 * group];
    const std::size_t end = slots_[2 * group + 1];
    if (begin == Regex::kUnset || end == Regex::kUnset || end < begin) {
      return false;
    }
    std::size_t at = at_;
    for (std::size_t from = begin; from < end;) {
      if (at == text_.size()) {
        return false;
      }
      const std::size_t sizeA = utf8::sizeAt(text_, from);
      const std::size_t sizeB = utf8::sizeAt(text_, at);
      const std::uint32_t a = utf8::decode(text_.substr(from, sizeA));
      const std::uint32_t b = utf8::decode(text_.substr(at, sizeB));
      if (a != b && !(options_.ignoreCase && folded(a) == folded(b))) {
        return false;
      }
      from += sizeA;
      at += sizeB;
    }
    at_ = at;
    return true;
  }

  const std::vector<RegexInstruction>& program_;
  const std::vector<RegexSet>& sets_;
  RegexOptions options_;
  std::vector<std::size_t> slots_;
  std::vector<Undecided> stack_;
  std::string_view text_;
  std::size_t at_ = 0;
  std::size_t steps_ = 0;
};

}  // namespace

bool RegexSet::contains(std::uint32_t character, bool ignoreCase) const {
  const auto has = [this](std::uint32_t c) {
    return std::any_of(ranges.begin(), ranges.end(),
                       [c](const Range& r) { return c >= r.first && c <= r.last; }) ||
           std::any_of(classes.begin(), classes.end(), [c](const auto& test) { return test(c); });
  };
  const bool found =
      has(character) || (ignoreCase && (has(utf8::lower(character)) || has(utf8::upper(character))));
  return found != negated;
}

bool Regex::search(std::string_view text, std::size_t from, Groups& groups) const {
  Matcher matcher(program_, sets_, options_, slots_, text);
  for (std::size_t begin = from; begin <= text.size();) {
    if (matcher.matchAt(begin)) {
      for (std::size_t i = 0; i < kGroups; ++i) {
        groups[i] = {matcher.slots()[2 * i], matcher.slots()[2 * i + 1]};
      }
      return true;
    }
    begin += begin < text.size() ? utf8::sizeAt(text, begin) : 1;
  }
  return false;
}

}  // namespace oracle_sql

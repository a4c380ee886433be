#include "oracle_sql/regex_parser.h"

#include <string>

#include "oracle_sql/ascii_case.h"
#include "oracle_sql/function_error.h"
#include "oracle_sql/utf8.h"

namespace oracle_sql {
namespace {

constexpr std::size_t kLongestPattern = 512;  // bytes, as on the server
constexpr int kMostRepetitions = 65535;

using NodePtr = std::unique_ptr<RegexNode>;

bool isDigit(std::uint32_t c) { return c >= '0' && c <= '9'; }
bool isSpace(std::uint32_t c) { return c == ' ' || (c >= 9 && c <= 13) || c == 0x3000; }
bool isAlnum(std::uint32_t c) { return utf8::isAlphanumeric(c); }
bool isAlpha(std::uint32_t c) { return isAlnum(c) && !isDigit(c); }
bool isUpper(std::uint32_t c) { return utf8::lower(c) != c; }
bool isLower(std::uint32_t c) { return utf8::upper(c) != c; }
bool isControl(std::uint32_t c) { return c < 32 || (c >= 127 && c < 160); }
bool isPrint(std::uint32_t c) { return !isControl(c); }
bool isGraph(std::uint32_t c) { return isPrint(c) && !isSpace(c); }
bool isPunct(std::uint32_t c) { return isGraph(c) && !isAlnum(c); }
bool isBlank(std::uint32_t c) { return c == ' ' || c == '\t'; }
bool isHexDigit(std::uint32_t c) { return isDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F'); }
bool isWord(std::uint32_t c) { return isAlnum(c) || c == '_'; }

struct NamedClass {
  std::string_view name;
  bool (*test)(std::uint32_t);
};

constexpr NamedClass kClasses[] = {{"alnum", isAlnum},   {"alpha", isAlpha}, {"blank", isBlank},
                                   {"cntrl", isControl}, {"digit", isDigit}, {"graph", isGraph},
                                   {"lower", isLower},   {"print", isPrint}, {"punct", isPunct},
                                   {"space", isSpace},   {"upper", isUpper}, {"xdigit", isHexDigit}};

[[noreturn]] void raiseParentheses() {
  throw FunctionError(12725, "unmatched parentheses in regular expression");
}
[[noreturn]] void raiseBracket() { throw FunctionError(12726, "unmatched bracket in regular expression"); }
[[noreturn]] void raiseInterval() {
  throw FunctionError(12732, "invalid interval value in regular expression");
}

NodePtr make(RegexNode::Kind kind) {
  auto node = std::make_unique<RegexNode>();
  node->kind = kind;
  return node;
}

NodePtr single(RegexOp op, std::uint32_t a = 0) {
  NodePtr node = make(RegexNode::Kind::Single);
  node->single = {op, a};
  return node;
}

class Parser {
 public:
  Parser(std::string_view pattern, RegexOptions options, std::vector<RegexSet>& sets)
      : rest_(pattern), options_(options), sets_(sets) {}

  NodePtr parse() {
    NodePtr node = choice();
    if (!rest_.empty()) {
      raiseParentheses();
    }
    if (highestReference_ > groups_) {
      throw FunctionError(12727, "invalid back reference in regular expression");
    }
    return node;
  }

 private:
  NodePtr choice() {
    NodePtr first = sequence();
    if (!next('|')) {
      return first;
    }
    NodePtr node = make(RegexNode::Kind::Choice);
    node->children.push_back(std::move(first));
    while (accept('|')) {
      node->children.push_back(sequence());
    }
    return node;
  }

  NodePtr sequence() {
    NodePtr node = make(RegexNode::Kind::Sequence);
    while (skipBlanks(), !rest_.empty() && rest_[0] != '|' && rest_[0] != ')') {
      node->children.push_back(repeated(atom()));
    }
    return node;
  }

  NodePtr repeated(NodePtr node) {
    while (true) {
      int least = 0;
      int most = RegexNode::kNoLimit;
      if (accept('+')) {
        least = 1;
      } else if (accept('?')) {
        most = 1;
      } else if (next('{') && rest_.size() > 1 && isAsciiDigit(rest_[1])) {
        interval(least, most);
      } else if (!accept('*')) {
        return node;
      }
      NodePtr repeat = make(RegexNode::Kind::Repeat);
      repeat->least = least;
      repeat->most = most;
      repeat->lazy = accept('?');
      repeat->children.push_back(std::move(node));
      node = std::move(repeat);
    }
  }

  void interval(int& least, int& most) {
    rest_.remove_prefix(1);
    least = number();
    most = least;
    if (accept(',')) {
      most = !rest_.empty() && isAsciiDigit(rest_[0]) ? number() : RegexNode::kNoLimit;
    }
    if (!accept('}') || (most != RegexNode::kNoLimit && most < least)) {
      raiseInterval();
    }
  }

  int number() {
    int value = 0;
    for (; !rest_.empty() && isAsciiDigit(rest_[0]); rest_.remove_prefix(1)) {
      value = value * 10 + (rest_[0] - '0');
      if (value > kMostRepetitions) {
        raiseInterval();
      }
    }
    return value;
  }

  NodePtr atom() {
    switch (rest_[0]) {
      case '(':
        return group();
      case '[':
        return bracket();
      case '.':
        rest_.remove_prefix(1);
        return single(RegexOp::Any);
      case '^':
        rest_.remove_prefix(1);
        return single(options_.manyLines ? RegexOp::LineBegin : RegexOp::TextBegin);
      case '$':
        rest_.remove_prefix(1);
        return single(options_.manyLines ? RegexOp::LineEnd : RegexOp::TextEnd);
      case '\\':
        if (rest_.size() > 1) {
          rest_.remove_prefix(1);
          return escaped();
        }
        break;
      default:
        break;
    }
    return single(RegexOp::Character, character());
  }

  NodePtr group() {
    rest_.remove_prefix(1);
    NodePtr node = make(RegexNode::Kind::Group);
    node->group = ++groups_;
    node->children.push_back(choice());
    if (!accept(')')) {
      raiseParentheses();
    }
    return node;
  }

  NodePtr escaped() {
    const char c = rest_[0];
    if (c >= '1' && c <= '9') {
      rest_.remove_prefix(1);
      highestReference_ = std::max(highestReference_, c - '0');
      return single(RegexOp::BackReference, static_cast<std::uint32_t>(c - '0'));
    }
    switch (c) {
      case 'A':
        return take(single(RegexOp::TextBegin));
      case 'z':
        return take(single(RegexOp::TextEnd));
      case 'Z':
        return take(single(RegexOp::LastLineEnd));
      case 'd':
      case 'D':
        return take(classOf(isDigit, c == 'D'));
      case 'w':
      case 'W':
        return take(classOf(isWord, c == 'W'));
      case 's':
      case 'S':
        return take(classOf(isSpace, c == 'S'));
      default:
        return single(RegexOp::Character, character());
    }
  }

  NodePtr take(NodePtr node) {
    rest_.remove_prefix(1);
    return node;
  }

  NodePtr classOf(bool (*test)(std::uint32_t), bool negated) {
    RegexSet set;
    set.classes.push_back(test);
    set.negated = negated;
    return setNode(std::move(set));
  }

  NodePtr setNode(RegexSet set) {
    sets_.push_back(std::move(set));
    return single(RegexOp::Set, static_cast<std::uint32_t>(sets_.size() - 1));
  }

  // A backslash is a character like any other between brackets, and ] is one in front.
  NodePtr bracket() {
    rest_.remove_prefix(1);
    RegexSet set;
    set.negated = acceptRaw('^');
    for (bool first = true; first || !nextRaw(']'); first = false) {
      if (rest_.empty()) {
        raiseBracket();
      }
      if (rest_.starts_with("[:")) {
        set.classes.push_back(namedClass());
        continue;
      }
      const std::uint32_t low = element();
      std::uint32_t high = low;
      if (rest_.size() > 1 && rest_[0] == '-' && rest_[1] != ']') {
        rest_.remove_prefix(1);
        high = element();
      }
      if (high < low) {
        throw FunctionError(12728, "invalid range in regular expression");
      }
      set.ranges.push_back({low, high});
    }
    rest_.remove_prefix(1);
    return setNode(std::move(set));
  }

  bool (*namedClass())(std::uint32_t) {
    const std::size_t end = rest_.find(":]");
    if (end != std::string_view::npos) {
      const std::string_view name = rest_.substr(2, end - 2);
      for (const NamedClass& known : kClasses) {
        if (known.name == name) {
          rest_.remove_prefix(end + 2);
          return known.test;
        }
      }
    }
    throw FunctionError(12729, "invalid character class in regular expression");
  }

  // One character between brackets, also written as [.x.].
  std::uint32_t element() {
    if (rest_.starts_with("[=")) {
      throw FunctionError(FunctionError::kUnsupported, "an equivalence class in a regular expression");
    }
    if (!rest_.starts_with("[.")) {
      return character();
    }
    rest_.remove_prefix(2);
    if (rest_.empty()) {
      raiseBracket();
    }
    const std::uint32_t code = character();
    if (!rest_.starts_with(".]")) {
      throw FunctionError(12731, "invalid collation class in regular expression");
    }
    rest_.remove_prefix(2);
    return code;
  }

  std::uint32_t character() {
    if (rest_.empty()) {
      raiseBracket();
    }
    const std::size_t size = utf8::sizeAt(rest_, 0);
    const std::uint32_t code = utf8::decode(rest_.substr(0, size));
    rest_.remove_prefix(size);
    return code;
  }

  void skipBlanks() {
    while (options_.extended && !rest_.empty() && isSpace(static_cast<unsigned char>(rest_[0]))) {
      rest_.remove_prefix(1);
    }
  }

  bool nextRaw(char c) const { return !rest_.empty() && rest_[0] == c; }

  bool acceptRaw(char c) {
    const bool there = nextRaw(c);
    rest_.remove_prefix(there ? 1 : 0);
    return there;
  }

  bool next(char c) {
    skipBlanks();
    return nextRaw(c);
  }

  bool accept(char c) {
    skipBlanks();
    return acceptRaw(c);
  }

  std::string_view rest_;
  RegexOptions options_;
  std::vector<RegexSet>& sets_;
  int groups_ = 0;
  int highestReference_ = 0;
};

}  // namespace

NodePtr parseRegex(std::string_view pattern, RegexOptions options, std::vector<RegexSet>& sets) {
  if (pattern.size() > kLongestPattern) {
    throw FunctionError(12733, "regular expression too long");
  }
  return Parser(pattern, options, sets).parse();
}

}  // namespace oracle_sql

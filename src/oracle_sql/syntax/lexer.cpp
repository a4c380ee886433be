#include <cstddef>

#include "oracle_sql/syntax/error.h"
#include "oracle_sql/syntax/token.h"
#include "oracle_sql/text/ascii_case.h"

namespace oracle_sql {

namespace {

/// Bytes of characters beyond ASCII count as letters, as Oracle takes the letters of its character set.
bool isLetter(char c) { return isAsciiLetter(c) || static_cast<unsigned char>(c) >= 0x80; }
bool isNamePart(char c) { return isLetter(c) || isAsciiDigit(c) || c == '_' || c == '$' || c == '#'; }
bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f' || c == '\v'; }

/// What is a symbol whatever follows it.
constexpr std::string_view kMarks = "(),.+-*/@";
constexpr Symbol kSymbolOfMark[] = {Symbol::LeftParen, Symbol::RightParen, Symbol::Comma,
                                    Symbol::Dot,       Symbol::Plus,       Symbol::Minus,
                                    Symbol::Star,      Symbol::Slash,      Symbol::At};

class Lexer {
 public:
  explicit Lexer(std::string_view text) : text_(text) { tokens_.reserve(text.size() / 4 + 8); }

  std::vector<Token> run() {
    if (text_.size() > kMaxStatementBytes)
      throw SqlError::wrong(
          0, "the statement is longer than " + std::to_string(kMaxStatementBytes) + " bytes", {});
    while (skipToToken()) next();
    start_ = here();
    add(TokenKind::End);
    return std::move(tokens_);
  }

 private:
  char at(std::size_t ahead = 0) const { return at_ + ahead < text_.size() ? text_[at_ + ahead] : '\0'; }
  bool atEnd() const { return at_ >= text_.size(); }
  Place here() const { return {static_cast<std::uint32_t>(at_), line_, column_}; }

  void step() {
    const char c = text_[at_++];
    if (c == '\n') {
      ++line_;
      column_ = 1;
    } else if ((static_cast<unsigned char>(c) & 0xC0) != 0x80) {
      ++column_;
    }
  }
  void step(std::size_t n) {
    while (n-- > 0) step();
  }

  /// Skips blanks and comments; a hint behind SELECT becomes a token.
  bool skipToToken() {
    while (!atEnd()) {
      const char c = at();
      if (isBlank(c))
        step();
      else if (c == '-' && at(1) == '-')
        comment(2, "\n");
      else if (c == '/' && at(1) == '*')
        comment(2, "*/");
      else
        return true;
    }
    return false;
  }

  void comment(std::size_t opening, std::string_view closing) {
    start_ = here();
    const bool hint = at(opening) == '+' && !tokens_.empty() && tokens_.back().keyword == Keyword::Select;
    step(opening);
    const std::size_t end = text_.find(closing, at_);
    if (end == std::string_view::npos && closing == "*/")
      throw SqlError::wrong(1742, "comment not terminated properly", start_);
    const std::size_t stop = end == std::string_view::npos ? text_.size() : end + (closing == "*/" ? 2 : 0);
    while (at_ < stop) step();
    if (hint) add(TokenKind::Hint);
  }

  Token& add(TokenKind kind, Symbol symbol = Symbol::None) {
    if (tokens_.size() >= kMaxTokens)
      throw SqlError::wrong(0, "the statement has more than " + std::to_string(kMaxTokens) + " words",
                            start_);
    Token& token = tokens_.emplace_back();
    token.kind = kind;
    token.symbol = symbol;
    token.text = text_.substr(start_.offset, at_ - start_.offset);
    token.place = start_;
    return token;
  }

  void next() {
    start_ = here();
    const char c = at();
    if (isLetter(c)) {
      if ((c == 'q' || c == 'Q') && at(1) == '\'') return quotedByBrackets(1);
      if ((c == 'n' || c == 'N') && (at(1) == 'q' || at(1) == 'Q') && at(2) == '\'')
        return quotedByBrackets(2);
      if ((c == 'n' || c == 'N') && at(1) == '\'') return string(1);
      return name();
    }
    if (isAsciiDigit(c) || (c == '.' && isAsciiDigit(at(1)))) return number();
    if (c == '\'') return string(0);
    if (c == '"') return quotedName();
    if (c == ':') return bind();
    symbol(c);
  }

  void name() {
    while (isNamePart(at()) && !atEnd()) step();
    Token& token = add(TokenKind::Name);
    const Word word = wordOf(token.text);
    token.keyword = word.keyword;
    token.reserved = word.reserved;
    if (token.text.size() > kMaxNameBytes) throw SqlError::wrong(972, "identifier is too long", start_);
  }

  void quotedName() {
    step();
    while (!atEnd() && at() != '"') step();
    if (atEnd()) throw SqlError::wrong(1740, "missing double quote in identifier", start_);
    step();
    const std::size_t bytes = add(TokenKind::QuotedName).text.size() - 2;
    if (bytes == 0) throw SqlError::wrong(1741, "illegal zero-length identifier", start_);
    if (bytes > kMaxNameBytes) throw SqlError::wrong(972, "identifier is too long", start_);
  }

  void string(std::size_t prefix) {
    step(prefix + 1);
    while (true) {
      if (atEnd()) throw SqlError::wrong(1756, "quoted string not properly terminated", start_);
      if (at() == '\'') {
        step();
        if (at() != '\'') break;
      }
      step();
    }
    add(TokenKind::String);
  }

  void quotedByBrackets(std::size_t prefix) {
    step(prefix + 1);
    char closing = at();
    if (atEnd() || isBlank(closing))
      throw SqlError::wrong(1756, "quoted string not properly terminated", start_);
    if (closing == '[') closing = ']';
    if (closing == '{') closing = '}';
    if (closing == '<') closing = '>';
    if (closing == '(') closing = ')';
    step();
    while (!atEnd() && !(at() == closing && at(1) == '\'')) step();
    if (atEnd()) throw SqlError::wrong(1756, "quoted string not properly terminated", start_);
    step(2);
    add(TokenKind::String);
  }

  void number() {
    while (isAsciiDigit(at())) step();
    if (at() == '.' && at(1) != '.') {
      step();
      while (isAsciiDigit(at())) step();
    }
    if (at() == 'e' || at() == 'E') {
      const std::size_t sign = at(1) == '+' || at(1) == '-' ? 1 : 0;
      if (isAsciiDigit(at(1 + sign))) {
        step(1 + sign);
        while (isAsciiDigit(at())) step();
      }
    }
    const char suffix = at();
    if ((suffix == 'd' || suffix == 'D' || suffix == 'f' || suffix == 'F') && !isNamePart(at(1)))
      throw SqlError::unsupported("a BINARY_DOUBLE or BINARY_FLOAT literal", start_);
    add(TokenKind::Number);
  }

  void bind() {
    step();
    while (isNamePart(at()) && !atEnd()) step();
    const std::size_t length = at_ - start_.offset;
    if (length < 2 || text_[start_.offset + 1] == '_' || text_[start_.offset + 1] == '$' ||
        text_[start_.offset + 1] == '#')
      throw SqlError::wrong(1745, "invalid host/bind variable name", start_);
    if (length > kMaxNameBytes + 1) throw SqlError::wrong(972, "identifier is too long", start_);
    add(TokenKind::Bind);
  }

  /// Two-character operators may have blanks inside, as in Oracle.
  bool followedBy(char second) {
    std::size_t ahead = 1;
    while (isBlank(at(ahead))) ++ahead;
    if (at(ahead) != second) return false;
    step(ahead);
    return true;
  }

  void symbol(char c) {
    Symbol kind = Symbol::None;
    switch (c) {
      case '=':
        kind = at(1) == '>' ? (step(), Symbol::Arrow) : Symbol::Equal;
        break;
      case '|':
        kind = followedBy('|') ? Symbol::Concat : Symbol::None;
        break;
      case '!':
      case '^':
        kind = followedBy('=') ? Symbol::NotEqual : Symbol::None;
        break;
      case '<':
        kind = followedBy('=') ? Symbol::LessEqual : followedBy('>') ? Symbol::NotEqual : Symbol::Less;
        break;
      case '>':
        kind = followedBy('=') ? Symbol::GreaterEqual : Symbol::Greater;
        break;
      default:
        if (const auto i = kMarks.find(c); i != std::string_view::npos) kind = kSymbolOfMark[i];
    }
    if (kind == Symbol::None) throw SqlError::wrong(911, "invalid character", start_);
    step();
    add(TokenKind::Symbol, kind);
  }

  std::string_view text_;
  std::size_t at_ = 0;
  std::uint32_t line_ = 1;
  std::uint32_t column_ = 1;
  Place start_;
  std::vector<Token> tokens_;
};

}  // namespace

std::vector<Token> tokenize(std::string_view statement) { return Lexer(statement).run(); }

std::string stringValue(const Token& token) {
  std::string_view text = token.text;
  if (text.front() == 'n' || text.front() == 'N') text.remove_prefix(1);
  if (text.front() == 'q' || text.front() == 'Q') return std::string(text.substr(3, text.size() - 5));
  std::string value;
  value.reserve(text.size());
  for (std::size_t i = 1; i + 1 < text.size(); ++i) {
    value += text[i];
    if (text[i] == '\'') ++i;
  }
  return value;
}

std::vector<BindUse> bindUses(std::string_view statement) {
  std::vector<BindUse> uses;
  for (const Token& token : tokenize(statement)) {
    if (token.kind != TokenKind::Bind) continue;
    BindUse& use = uses.emplace_back();
    use.name = asciiUpper(token.text.substr(1));
    use.offset = token.place.offset;
    use.length = static_cast<std::uint32_t>(token.text.size());
  }
  return uses;
}

}  // namespace oracle_sql

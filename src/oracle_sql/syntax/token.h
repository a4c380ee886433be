// Words of a statement.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "oracle_sql/syntax/keywords.h"
#include "oracle_sql/syntax/place.h"

namespace oracle_sql {

enum class TokenKind : std::uint8_t {
  Name,        ///< unquoted identifier or keyword
  QuotedName,  ///< "..."
  Number,      ///< 1, .5, 1E3
  String,      ///< '...', q'[...]', N'...'
  Bind,        ///< :NAME, :1
  Hint,        ///< the comment with a plus sign behind SELECT
  Symbol,      ///< operator or punctuation
  End,
};

enum class Symbol : std::uint8_t {
  None,
  LeftParen,
  RightParen,
  Comma,
  Dot,
  Plus,
  Minus,
  Star,
  Slash,
  Concat,
  Equal,
  NotEqual,
  Less,
  LessEqual,
  Greater,
  GreaterEqual,
  At,
  Arrow,
};

struct Token {
  TokenKind kind = TokenKind::End;
  Symbol symbol = Symbol::None;
  Keyword keyword = Keyword::None;  ///< of an unquoted name that is one
  bool reserved = false;            ///< an unquoted name that Oracle reserves
  std::string_view text;            ///< as written, quotes and the colon of a bind included
  Place place;

  std::uint32_t end() const { return place.offset + static_cast<std::uint32_t>(text.size()); }
};

/// All tokens of a statement, ended by one of kind End. The tokens point into `statement`. Comments are left
/// out, and so are hints that do not stand right behind SELECT. Throws SqlError.
std::vector<Token> tokenize(std::string_view statement);

/// The value of a String token: quotes removed, doubled quotes single.
std::string stringValue(const Token& token);

/// One occurrence of a bind variable in a statement.
struct BindUse {
  std::string name;          ///< upper case, without the colon
  std::uint32_t offset = 0;  ///< of the colon
  std::uint32_t length = 0;  ///< with the colon
};

/// Every bind in order of occurrence. What looks like a bind inside a text literal, a quoted name or a
/// comment is none. Throws SqlError where the statement has no tokens.
std::vector<BindUse> bindUses(std::string_view statement);

}  // namespace oracle_sql

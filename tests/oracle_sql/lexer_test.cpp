#include <gmock/gmock.h>

#include "oracle_sql/syntax/error.h"
#include "oracle_sql/syntax/token.h"

namespace oracle_sql {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

std::vector<std::string> texts(std::string_view statement) {
  std::vector<std::string> list;
  for (const Token& t : tokenize(statement))
    if (t.kind != TokenKind::End) list.emplace_back(t.text);
  return list;
}

int codeOf(std::string_view statement) {
  try {
    tokenize(statement);
  } catch (const SqlError& e) {
    return e.oraCode();
  }
  return -1;
}

std::vector<std::string> bindNames(std::string_view statement) {
  std::vector<std::string> names;
  for (const BindUse& use : bindUses(statement)) names.push_back(use.name);
  return names;
}

TEST(Lexer, brokenTextsAreRefusedWithOraclesNumbers) {
  EXPECT_EQ(codeOf("select 'abc"), 1756);
  EXPECT_EQ(codeOf("select q'[abc]"), 1756);
  EXPECT_EQ(codeOf("select \"abc"), 1740);
  EXPECT_EQ(codeOf("select \"\""), 1741);
  EXPECT_EQ(codeOf("select /* abc"), 1742);
  EXPECT_EQ(codeOf("select 1 from dual;"), 911);
  EXPECT_EQ(codeOf("select ? from dual"), 911);
  EXPECT_EQ(codeOf("select a | b"), 911);
  EXPECT_EQ(codeOf("select a ! b"), 911);
  EXPECT_EQ(codeOf("select _a"), 911);
  EXPECT_EQ(codeOf("select : from dual"), 1745);
  EXPECT_EQ(codeOf("select a234567890123456789012345678901"), 972);
  EXPECT_EQ(codeOf("select a23456789012345678901234567890"), -1);
}

TEST(Lexer, doubleAndFloatLiteralsAreRefusedByName) {
  try {
    tokenize("select 1.5d from dual");
    FAIL();
  } catch (const SqlError& e) {
    EXPECT_EQ(e.kind(), ErrorKind::Unsupported);
    EXPECT_THAT(e.what(), HasSubstr("BINARY_DOUBLE"));
  }
}

TEST(Lexer, textBeyondTheBoundIsRefused) {
  EXPECT_THROW(tokenize(std::string(kMaxStatementBytes + 1, ' ')), SqlError);
  std::string manyWords;
  for (std::size_t i = 0; i <= kMaxTokens; ++i) manyWords += "a ";
  EXPECT_THROW(tokenize(manyWords), SqlError);
}

TEST(Lexer, namesHoldDollarAndHash) {
  EXPECT_THAT(texts("stats$sysstat e.total_wait# \"Mixed Case\" 平均"),
              ElementsAre("stats$sysstat", "e", ".", "total_wait#", "\"Mixed Case\"", "平均"));
}

TEST(Lexer, numbersTakePointAndExponent) {
  EXPECT_THAT(texts("1 .5 1.5 1. 1E3 1e-3 1.5E+3 1e x"),
              ElementsAre("1", ".5", "1.5", "1.", "1E3", "1e-3", "1.5E+3", "1", "e", "x"));
}

TEST(Lexer, blanksAreAllowedInsideTwoCharacterOperators) {
  const auto symbols = [](std::string_view s) {
    std::vector<Symbol> list;
    for (const Token& t : tokenize(s))
      if (t.kind == TokenKind::Symbol) list.push_back(t.symbol);
    return list;
  };
  EXPECT_THAT(symbols("|| | | != ! = ^= <> < > <= < = >= > ="),
              ElementsAre(Symbol::Concat, Symbol::Concat, Symbol::NotEqual, Symbol::NotEqual,
                          Symbol::NotEqual, Symbol::NotEqual, Symbol::NotEqual, Symbol::LessEqual,
                          Symbol::LessEqual, Symbol::GreaterEqual, Symbol::GreaterEqual));
}

TEST(Lexer, textLiteralsOfEveryFormHaveTheirValue) {
  const auto value = [](std::string_view s) { return stringValue(tokenize(s).front()); };
  EXPECT_EQ(value("'it''s'"), "it's");
  EXPECT_EQ(value("''"), "");
  EXPECT_EQ(value("N'x'"), "x");
  EXPECT_EQ(value("q'[it's]'"), "it's");
  EXPECT_EQ(value("q'{a}b}'"), "a}b");
  EXPECT_EQ(value("Nq'!it''s!'"), "it''s");
  EXPECT_EQ(value("''''"), "'");
}

TEST(Lexer, everyTokenKnowsItsPlace) {
  const auto tokens = tokenize("select 'あ' a,\r\n  b");
  ASSERT_EQ(tokens.size(), 6U);
  EXPECT_EQ(tokens[2].place.column, 12U);  // characters, not bytes
  EXPECT_EQ(tokens[2].place.offset, 13U);
  EXPECT_EQ(tokens[4].place.line, 2U);
  EXPECT_EQ(tokens[4].place.column, 3U);
}

TEST(Lexer, commentsVanishAndOnlyTheHintBehindSelectStays) {
  EXPECT_THAT(texts("select /*+ ordered */ a -- rest\n, /*+ no hint */ b /* c */"),
              ElementsAre("select", "/*+ ordered */", "a", ",", "b"));
  EXPECT_THAT(texts("select /* plain */ a"), ElementsAre("select", "a"));
}

TEST(Binds, areFoundFromTokensOnly) {
  EXPECT_THAT(
      bindNames("select ':a', q'[:b]', \":c\", :b1 -- :d\n, :B1, /* :e */ :ename from t where x = :1"),
      ElementsAre("B1", "B1", "ENAME", "1"));
}

TEST(Binds, carryOffsetAndLengthForReplacing) {
  const auto uses = bindUses("select :ab from dual");
  ASSERT_EQ(uses.size(), 1U);
  EXPECT_EQ(uses[0].offset, 7U);
  EXPECT_EQ(uses[0].length, 3U);
}

TEST(Keywords, reservedWordsAreOraclesOwn) {
  for (const char* word : {"select", "FROM", "date", "level", "rownum", "size", "mode", "file", "comment"})
    EXPECT_TRUE(wordOf(word).reserved) << word;
  for (const char* word : {"name", "value", "type", "limit", "over", "idle", "time", "left", "first", "case"})
    EXPECT_FALSE(wordOf(word).reserved) << word;
}

TEST(ErrorText, showsTheLineAndACaret) {
  const SqlError e = SqlError::wrong(936, "missing expression", {.offset = 11, .line = 2, .column = 5});
  EXPECT_EQ(e.render("select\r\n  \tあ, from dual"),
            "ORA-00936: missing expression\n  at line 2, column 5\n    \tあ, from dual\n    \t^");
}

TEST(ErrorText, countsWideCharactersAsTwoColumns) {
  const SqlError e = SqlError::wrong(936, "missing expression", {.offset = 6, .line = 1, .column = 3});
  EXPECT_THAT(e.render("あｱ,"), HasSubstr("\n  あｱ,\n     ^"));
}

TEST(ErrorText, showsOnlyAWindowOfALongLine) {
  const std::string statement = "select " + std::string(200, 'x') + " " + std::string(200, 'y');
  const SqlError e = SqlError::wrong(904, "invalid identifier", {.offset = 208, .line = 1, .column = 209});
  EXPECT_EQ(e.render(statement), "ORA-00904: invalid identifier\n  at line 1, column 209\n  ..." +
                                     std::string(49, 'x') + " " + std::string(50, 'y') + "...\n  " +
                                     std::string(53, ' ') + "^");
}

TEST(ErrorText, pointsBehindTheLastCharacterAtTheEnd) {
  const SqlError e =
      SqlError::wrong(923, "FROM keyword not found where expected", {.offset = 8, .line = 1, .column = 9});
  EXPECT_THAT(e.render("select 1"), HasSubstr("\n  select 1\n          ^"));
}

}  // namespace
}  // namespace oracle_sql

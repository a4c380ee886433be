#include <gtest/gtest.h>

#include <initializer_list>

#include "sections/sql/ModuleDispSQLShaping.h"
#include "support/grid_texts.h"
#include "support/recording_boxes.h"

namespace kestrelix {
namespace {

using testing_support::layGrid;
using testing_support::layHeadings;
using testing_support::RecordingBoxes;
using Lines = std::vector<std::string>;

/// An SQL grid as the panel leaves it: keys in the first row, a piece a row.
class SqlShaping : public testing::Test {
 protected:
  void pieces(const Lines& texts) {
    layGrid(grid, 5, static_cast<int>(texts.size()));
    layHeadings(grid, {"NO", "OLD_HASH_VALUE", "START_ID", "END_ID", "SQL_TEXT"});
    if (texts.empty()) return;
    grid.TextMatrix(1, 1, "815");
    grid.TextMatrix(1, 2, "41");
    grid.TextMatrix(1, 3, "42");
    for (std::size_t i = 0; i < texts.size(); ++i) grid.TextMatrix(static_cast<int>(i) + 1, 4, texts[i]);
  }
  Lines texts() const {
    Lines lines;
    for (int r = 1; r < grid.Rows(); ++r) lines.push_back(grid.TextMatrix(r, 4));
    return lines;
  }
  Lines shapedOf(const Lines& given) {
    shaped = false;
    pieces(given);
    toggle();
    return texts();
  }
  void toggle() { showFailures(boxes, gDispSqlShapingToggle(shaped, shaping, grid)); }

  RecordingBoxes boxes;
  clsSQLShaping shaping;
  bool shaped = false;
  Grid grid{"MSFlexGridSql"};
};

TEST_F(SqlShaping, aGridWithoutTheTextColumnShowsTheBoxOfInitializeAndStays) {
  grid.Cols(3);
  grid.Rows(2);
  grid.TextMatrix(1, 1, "kept");
  toggle();
  EXPECT_EQ(boxes.shown, Lines{"[Critical] (clsSQLShaping){Initialize} Error"});
  EXPECT_FALSE(shaped);
  EXPECT_EQ(grid.TextMatrix(1, 1), "kept");
  EXPECT_EQ(grid.Cols(), 3);
}

TEST_F(SqlShaping, aGridWithoutRowsStaysAsItIs) {
  pieces({});
  toggle();
  EXPECT_FALSE(shaped);
  EXPECT_EQ(grid.Rows(), 1);
  EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(SqlShaping, onePieceWithoutALineBreakIsOneLine) {
  EXPECT_EQ(shapedOf({"select 1 from dual"}), Lines{"select 1 from dual"});
}

TEST_F(SqlShaping, theLastPieceIsNotFilledUpAndItsBlanksGo) {
  EXPECT_EQ(shapedOf({"  select 1 from dual   "}), Lines{"select 1 from dual"});
}

TEST_F(SqlShaping, aShortPieceIsFilledUpSoThatWordsStayApart) {
  EXPECT_EQ(shapedOf({"select a,", "b from t"}), Lines{"select a, b from t"});
}

TEST_F(SqlShaping, aPieceOf63BytesGetsTheBlankThatTheServerDropped) {
  const std::string piece(63, 'x');
  EXPECT_EQ(shapedOf({piece, "y"}), Lines{piece + " y"});
}

TEST_F(SqlShaping, aPieceOf64BytesRunsIntoTheNext) {
  const std::string piece(64, 'x');
  EXPECT_EQ(shapedOf({piece, "y"}), Lines{piece + "y"});
}

TEST_F(SqlShaping, aPieceThatEndsInABlankKeepsOneBlank) {
  EXPECT_EQ(shapedOf({"select ", "1"}), Lines{"select 1"});
  EXPECT_EQ(shapedOf({std::string(63, 'x') + " ", "y"}), Lines{std::string(63, 'x') + " y"});
}

TEST_F(SqlShaping, aPieceThatEndsInADoubleByteCharacterIsNotFilledUp) {
  EXPECT_EQ(shapedOf({"select '表", "示'"}), Lines{"select '表示'"});
}

TEST_F(SqlShaping, aPieceThatEndsInHalfWidthKatakanaIsFilledUp) {
  EXPECT_EQ(shapedOf({"select ｱ", "from t"}), Lines{"select ｱ from t"});
}

TEST_F(SqlShaping, bytesAreThoseOfCodePage932) {
  // 31 double-byte characters and one letter are 63 bytes there, though 94 in UTF-8; with two letters 64.
  std::string wide;
  for (int i = 0; i < 31; ++i) wide += "表";
  EXPECT_EQ(shapedOf({wide + "a", "b"}), Lines{wide + "a b"});
  EXPECT_EQ(shapedOf({wide + "ac", "b"}), Lines{wide + "acb"});
}

TEST_F(SqlShaping, aCharacterCutAtTheEndOfAPieceIsWholeAgain) {
  const std::string character = "表";
  EXPECT_EQ(shapedOf({"select '" + character.substr(0, 1), character.substr(1) + "'"}), Lines{"select '表'"});
  EXPECT_EQ(shapedOf({"select '" + character.substr(0, 2), character.substr(2) + "'"}), Lines{"select '表'"});
}

TEST_F(SqlShaping, anEmptyPieceIsNotFilledUp) { EXPECT_EQ(shapedOf({"", "a"}), Lines{"a"}); }

TEST_F(SqlShaping, runsOfBlanksBecomeOneAlsoInLiterals) {
  EXPECT_EQ(shapedOf({"select   'a   b'  from  t"}), Lines{"select 'a b' from t"});
}

TEST_F(SqlShaping, tabsAreNoBlanks) { EXPECT_EQ(shapedOf({"\tselect\t\t1"}), Lines{"\tselect\t\t1"}); }

TEST_F(SqlShaping, theFirstLineBreakGoesAndTheOthersSplit) {
  EXPECT_EQ(shapedOf({"\r\nselect a\r\nfrom t\r\nwhere b"}), (Lines{"select a", "from t", "where b"}));
}

TEST_F(SqlShaping, theFirstTwoLinesRunTogetherWhenNoBreakStandsAtTheHead) {
  EXPECT_EQ(shapedOf({"select a\r\nfrom t\r\nwhere b"}), (Lines{"select afrom t", "where b"}));
}

TEST_F(SqlShaping, emptyLinesVanish) {
  EXPECT_EQ(shapedOf({"\r\nselect a\r\n\r\n\r\n\r\nfrom t"}), (Lines{"select a", "from t"}));
}

TEST_F(SqlShaping, aLineOfOneBlankStays) {
  EXPECT_EQ(shapedOf({"\r\na\r\n  \r\nb"}), (Lines{"a", " ", "b"}));
}

TEST_F(SqlShaping, aBreakAtTheEndLeavesAnEmptyLine) {
  // The break that closes the last line is put behind the one that is there already.
  EXPECT_EQ(shapedOf({"\r\na\r\n"}), (Lines{"a", ""}));
}

TEST_F(SqlShaping, aBareLineFeedOrCarriageReturnDoesNotSplit) {
  EXPECT_EQ(shapedOf({"a\nb\rc"}), Lines{"a\nb\rc"});
}

TEST_F(SqlShaping, aLineBreakCutBetweenTwoPiecesSplitsOnlyWhereTheFirstIsFull) {
  const std::string line(61, 'x');  // with the break at the head and half of one at the end: 64 bytes
  EXPECT_EQ(shapedOf({"\r\n" + line + "\r", "\ny"}), (Lines{line, "y"}));
  EXPECT_EQ(shapedOf({"\r\nshort\r", "\ny"}), Lines{"short\r \ny"});
}

TEST_F(SqlShaping, onlyBlanksAreOneEmptyLine) { EXPECT_EQ(shapedOf({"   "}), Lines{""}); }

TEST_F(SqlShaping, theShapedGridKeepsHeadingsKeysAndNumbers) {
  pieces({"\r\nselect a", "\r\nfrom t"});
  grid.Visible(false);
  toggle();
  EXPECT_TRUE(shaped);
  EXPECT_TRUE(grid.Visible());
  ASSERT_EQ(grid.Rows(), 3);
  ASSERT_EQ(grid.Cols(), 5);
  const std::vector<Lines> expected{{"NO", "OLD_HASH_VALUE", "START_ID", "END_ID", "SQL_TEXT"},
                                    {"1", "815", "41", "42", "select a "},
                                    {"2", "", "", "", "from t"}};
  for (int r = 0; r < 3; ++r)
    for (int c = 0; c < 5; ++c)
      EXPECT_EQ(grid.TextMatrix(r, c), expected[static_cast<std::size_t>(r)][static_cast<std::size_t>(c)]);
}

TEST_F(SqlShaping, aSecondToggleShowsThePiecesAsTheyWereWithoutReadingAnythingAnew) {
  const Lines given{"\r\nselect 'a   b'", "", "\r\nfrom t  "};
  pieces(given);
  toggle();
  EXPECT_NE(texts(), given);
  toggle();
  EXPECT_FALSE(shaped);
  EXPECT_EQ(texts(), given);
  EXPECT_EQ(grid.TextMatrix(1, 1), "815");
  EXPECT_EQ(grid.TextMatrix(3, 0), "3");
  toggle();
  EXPECT_TRUE(shaped);
}

}  // namespace
}  // namespace kestrelix

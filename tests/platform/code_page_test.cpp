#include "platform/code_page.h"

#include <gtest/gtest.h>

namespace kestrelix {
namespace {

TEST(CodePage, asciiCountsOneByteACharacter) {
  EXPECT_EQ(codePageLength(""), 0u);
  EXPECT_EQ(codePageLength("Redo size:"), 10u);
}

TEST(CodePage, halfWidthKatakanaCountsOne) { EXPECT_EQ(codePageLength("ｱｲｳ"), 3u); }

TEST(CodePage, otherJapaneseCountsTwo) {
  EXPECT_EQ(codePageLength("表領域"), 6u);
  EXPECT_EQ(codePageLength("ひらカナ"), 8u);
  EXPECT_EQ(codePageLength("ＭＳ ゴシック"), 13u);
  EXPECT_EQ(codePageLength("①㈱"), 4u);  // extensions of the code page beside the standard's characters
}

TEST(CodePage, aCharacterThatTheCodePageLacksCountsAsItsOneReplacement) {
  EXPECT_EQ(codePageLength("é"), 1u);
  EXPECT_EQ(codePageLength("한"), 1u);
  EXPECT_EQ(codePageLength("😀"), 1u);
}

TEST(CodePage, aByteThatIsNoUtf8CountsOne) {
  EXPECT_EQ(codePageLength("a\xFFz"), 3u);
  EXPECT_EQ(codePageLength("\xE8\xA1"), 2u);  // a character cut short
}

TEST(CodePage, charactersAreCodePoints) {
  EXPECT_EQ(characterCount("表領域"), 3u);
  EXPECT_EQ(characterCount("a😀é"), 3u);
  EXPECT_EQ(characterCount("\xE8\xA1"), 2u);
}

}  // namespace
}  // namespace kestrelix

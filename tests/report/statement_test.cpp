#include "report/statement.h"

#include <gtest/gtest.h>

namespace kestrelix {
namespace {

TEST(Fold, aLayoutBecomesOneLineThatEndsInABlank) {
  EXPECT_EQ(fold(R"sql(
    select a,
           b
      from t
  )sql"),
            "select a, b from t ");
}

TEST(Fold, blanksInsideQuotesStay) {
  EXPECT_EQ(fold("select '  two\nlines '   from  \"a  b\""), "select '  two\nlines ' from \"a  b\" ");
}

TEST(Fold, aDoubledQuoteDoesNotEndTheText) { EXPECT_EQ(fold("'it''s  so'  x"), "'it''s  so' x "); }

TEST(Fold, hintsKeepTheirPlace) {
  EXPECT_EQ(fold("select\n/*+ first_rows */\n a"), "select /*+ first_rows */ a ");
}

TEST(Fold, nothingStaysNothing) { EXPECT_EQ(fold("  \n "), ""); }

}  // namespace
}  // namespace kestrelix

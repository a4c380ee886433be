#include "console/help_list.h"

#include <gtest/gtest.h>

namespace kestrelix::console {
namespace {

TEST(HelpList, whatEntriesDoStandsInOneColumn) {
  EXPECT_EQ(helpList({{"demo", "makes one"}, {"--page N", "the page,\nfrom 1"}, {"x", ""}}),
            "  demo      makes one\n"
            "  --page N  the page,\n"
            "            from 1\n"
            "  x\n");
}

// 22 characters are the longest that stand beside what they do.
TEST(HelpList, aLongEntryHasALineOfItsOwn) {
  EXPECT_EQ(
      helpList(
          {{"a", "short"}, {"1234567890123456789012", "fits"}, {"12345678901234567890123", "does\nnot"}}),
      "  a                       short\n"
      "  1234567890123456789012  fits\n"
      "  12345678901234567890123\n"
      "                          does\n"
      "                          not\n");
}

}  // namespace
}  // namespace kestrelix::console

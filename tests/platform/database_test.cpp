#include "platform/database.h"

#include <gtest/gtest.h>

#include "platform/numeric_text.h"

namespace kestrelix {
namespace {

TEST(Parameters, aSecondAddOfANameFails) {
  Parameters binds;
  binds.Add("B1", 0, 1);
  EXPECT_THROW(binds.Add("b1", 0, 1), DatabaseError);
}

TEST(Parameters, removeOfANameThatIsNotThereFails) {
  Parameters binds;
  EXPECT_THROW(binds.Remove("B1"), DatabaseError);
  EXPECT_THROW(binds("B1"), DatabaseError);
}

TEST(Parameters, namesAreMatchedWithoutRegardToCase) {
  Parameters binds;
  binds.Add("ela", 0, 1);
  binds("ELA").value("3600");
  EXPECT_EQ(binds("Ela").value(), "3600");
  EXPECT_NE(binds.find("eLa"), nullptr);
  binds.Remove("ELA");
  EXPECT_EQ(binds.count(), 0u);
}

TEST(Parameters, aBindStartsAsTheNumberZero) {
  Parameters binds;
  binds.Add("B1", 0, 1);
  EXPECT_EQ(binds("B1").value(), "0");
  EXPECT_EQ(binds("B1").serverType(), ServerType::Number);
}

TEST(Parameter, aNumberBindRefusesWhatIsNoNumber) {
  Parameter bind;
  bind.serverType(ServerType::Number);
  for (const char* text : {"x", " ", "10K", "1.2.3", "--1", "1e", ".", "#####"})
    EXPECT_THROW(bind.value(text), DatabaseError) << text;
  for (const char* text : {"0", "-1", "+2.5", ".5", "5.", "1E-3"}) EXPECT_NO_THROW(bind.value(text)) << text;
}

TEST(Parameter, aNumberBindDropsTheBlanksAroundANumber) {
  Parameter bind;
  bind.value("  12 ");
  EXPECT_EQ(bind.value(), "12");
}

TEST(Parameter, theEmptyTextIsTakenByBothTypes) {
  Parameter bind;
  bind.value("");
  EXPECT_EQ(bind.value(), "");
  bind.serverType(ServerType::String);
  bind.value("");
  EXPECT_EQ(bind.value(), "");
}

TEST(Parameter, aTextBindKeepsItsTextAsItIs) {
  Parameter bind;
  bind.serverType(ServerType::String);
  bind.value(" latch: cache buffers chains ");
  EXPECT_EQ(bind.value(), " latch: cache buffers chains ");
}

TEST(Field, nullFailsWhenItIsReadAsText) {
  const std::optional<std::string> null;
  const std::optional<std::string> blank = " ";
  EXPECT_TRUE(Field("X", &null).isNull());
  EXPECT_THROW(Field("X", &null).value(), DatabaseError);
  EXPECT_EQ(Field("X", &blank).value(), " ");
}

TEST(SplitConnect, thePasswordIsAllBehindTheFirstSlash) {
  EXPECT_EQ(splitConnect("SCOTT/a/b/").user, "SCOTT");
  EXPECT_EQ(splitConnect("SCOTT/a/b/").password, "a/b/");
  EXPECT_EQ(splitConnect("SCOTT/").password, "");
  EXPECT_EQ(splitConnect("/").user, "");
  EXPECT_EQ(splitConnect("SCOTT").user, "SCOTT");
}

}  // namespace
}  // namespace kestrelix

#include "import/csv_reader.h"

#include <gtest/gtest.h>

#include <sstream>

namespace kestrelix::importing {
namespace {

using Records = std::vector<std::vector<std::string>>;

Records recordsOf(const std::string& text) {
  std::istringstream in(text);
  CsvReader reader(in);
  Records records;
  while (reader.next()) {
    records.emplace_back();
    for (const CsvField& field : reader.record()) records.back().push_back(field.text);
  }
  return records;
}

/// "line:field" of the error that the text gives, or what it was read as.
std::string errorOf(const std::string& text) {
  try {
    recordsOf(text);
  } catch (const CsvError& error) {
    return std::to_string(error.line()) + ":" + std::to_string(error.field());
  }
  return "no error";
}

TEST(CsvReader, tellsWhereAQuoteIsWrong) {
  EXPECT_EQ(errorOf("a,b\n1,x\"y\n"), "2:1");
  EXPECT_EQ(errorOf("a,b\n\"1\"2,x\n"), "2:0");
  EXPECT_EQ(errorOf("a\n\"open\nand on\n"), "2:0");
  EXPECT_EQ(errorOf("\""), "1:0");
}

TEST(CsvReader, refusesWhatIsNoUtf8) {
  EXPECT_EQ(errorOf("a\n\x93\xfa\n"), "2:0");      // code page 932
  EXPECT_EQ(errorOf("a\n\xc0\xaf\n"), "2:0");      // overlong
  EXPECT_EQ(errorOf("a\n\xed\xa0\x80\n"), "2:0");  // surrogate
  EXPECT_EQ(errorOf("a\n\xe3\x81\n"), "2:0");      // cut off
  EXPECT_EQ(errorOf("\xef\xbb\n"), "1:0");         // half a byte order mark
  EXPECT_EQ(errorOf(std::string("a\nx\0y\n", 6)), "2:0");
}

TEST(CsvReader, emptyTextHasNoRecord) {
  EXPECT_EQ(recordsOf(""), Records{});
  EXPECT_EQ(recordsOf("\xef\xbb\xbf"), Records{});
  EXPECT_EQ(recordsOf("\n\r\n\n"), Records{});
}

TEST(CsvReader, lineEndsAreOfEitherKindAndTheLastMayBeMissing) {
  const Records expected = {{"a", "b"}, {"1", "2"}};
  EXPECT_EQ(recordsOf("a,b\n1,2\n"), expected);
  EXPECT_EQ(recordsOf("a,b\r\n1,2\r\n"), expected);
  EXPECT_EQ(recordsOf("\xef\xbb\xbf"
                      "a,b\r\n\r\n1,2"),
            expected);
  EXPECT_EQ(recordsOf("\"a\",\"b\"\r\n\"1\",\"2\"\r\n"), expected);
}

TEST(CsvReader, quotedFieldsKeepCommasLineEndsAndQuotes) {
  EXPECT_EQ(recordsOf("\"select \"\"x\"\",\r\n 1\",2\n"), (Records{{"select \"x\",\r\n 1", "2"}}));
}

TEST(CsvReader, emptyFieldsAreThere) {
  EXPECT_EQ(recordsOf("a,,\n,\n\"\"\n"), (Records{{"a", "", ""}, {"", ""}, {""}}));
}

TEST(CsvReader, fieldsKnowTheLineTheyBeginOn) {
  std::istringstream in("a,b\n\"x\ny\",\"z\"\nq,r\n");
  CsvReader reader(in);
  reader.next();
  reader.next();
  EXPECT_EQ(reader.record()[0].line, 2);
  EXPECT_EQ(reader.record()[1].line, 3);
  reader.next();
  EXPECT_EQ(reader.record()[0].line, 4);
  EXPECT_EQ(reader.bytesRead(), 4 + 10 + 4);
}

// The reader takes its input in pieces of 256 KB; a record over the border stays whole.
TEST(CsvReader, recordsLongerThanItsBufferStayWhole) {
  const std::string longText(700000, 'x');
  EXPECT_EQ(recordsOf("a,b\n" + longText + ",\"" + longText + "\"\n"),
            (Records{{"a", "b"}, {longText, longText}}));
}

}  // namespace
}  // namespace kestrelix::importing

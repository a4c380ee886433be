// What the server answers: the comments of orafce's sql/regexp_func.sql and the examples of Oracle's "SQL
// Language Reference", unless a line says more.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "function_support.h"

namespace oracle_sql {
namespace {

const char* const kAddress = "number   your     street,    zipcode  town, FR";
const char* const kParkway = "500 Oracle Parkway, Redwood Shores, CA";

TEST(RegularExpressions, brokenPatternsAreRefusedByTheirFault) {
  const std::pair<const char*, int> cases[] = {{"(a", 12725},        {"a)", 12725},       {"[a", 12726},
                                               {"[", 12726},         {"(a)\\2", 12727},   {"[b-a]", 12728},
                                               {"[[:foo:]]", 12729}, {"[[.ab.]]", 12731}, {"a{2,1}", 12732},
                                               {"a{1", 12732},       {"a{99999}", 12732}};
  for (const auto& [pattern, code] : cases) {
    EXPECT_EQ(code, callError("REGEXP_SUBSTR", {s("a"), s(pattern)})) << pattern;
  }
  EXPECT_EQ(12733, callError("REGEXP_SUBSTR", {s("a"), Value::text(std::string(513, 'a'))}));
  EXPECT_EQ(1760, callError("REGEXP_SUBSTR", {s("a"), s("a"), n("1"), n("1"), s("g")}));
}

TEST(RegularExpressions, searchThatWouldNeverEndFails) {
  EXPECT_EQ(12723, callError("REGEXP_LIKE", {Value::text(std::string(40, 'a') + 'b'), s("^(a+)+$")}));
  EXPECT_EQ("1", call("REGEXP_LIKE", {Value::text(std::string(4000, 'a')), s("^(a|aa)+$")}));
  EXPECT_EQ("1", call("REGEXP_LIKE", {s("b"), s("^(a*)*b")}));
  EXPECT_EQ("0", call("REGEXP_LIKE", {s("c"), s("^(a*|b*)*$")}));
  EXPECT_EQ("1", call("REGEXP_LIKE", {s("ab"), s("^(a*|b*)*$")}));
  EXPECT_EQ("[]aab", call("REGEXP_REPLACE", {s("aab"), s("(a{0,1}?)*"), s("[\\1]"), n("1"), n("1")}));
}

// The groups behind the ninth are not kept, so that theirs is a program of no steps.
TEST(RegularExpressions, repetitionsOfNothingTakeNoTime) {
  const char* const nothing = "()()()()()()()()()((((){65535}){65535}){65535})b";
  EXPECT_EQ("2", call("REGEXP_INSTR", {s("ab"), s(nothing)}));
}

TEST(RegularExpressions, nullIsNoPatternAndNoText) {
  EXPECT_EQ("NULL", call("REGEXP_LIKE", {null, s("a")}));
  EXPECT_EQ("NULL", call("REGEXP_LIKE", {s("a"), null}));
  EXPECT_EQ("1", call("REGEXP_LIKE", {s("a"), s("a"), null}));
  EXPECT_EQ("NULL", call("REGEXP_COUNT", {s("a"), s("a"), null}));
  EXPECT_EQ("4", call("REGEXP_COUNT", {s("1234"), s("\\d"), n("1"), null}));
  EXPECT_EQ("NULL", call("REGEXP_REPLACE", {null, s("\\d"), s("a")}));
  EXPECT_EQ("1234", call("REGEXP_REPLACE", {s("1234"), null, s("a")}));
  EXPECT_EQ("NULL", call("REGEXP_REPLACE", {s("1234"), null, s("a"), n("1"), null}));
  EXPECT_EQ("NULL", call("REGEXP_REPLACE", {s("1234"), s("\\d"), null}));
  EXPECT_EQ("a234", call("REGEXP_REPLACE", {s("1234"), s("\\d"), s("a"), n("1"), n("1"), null}));
}

TEST(RegularExpressions, placesOutOfRangeAreRefused) {
  EXPECT_EQ(1428, callError("REGEXP_COUNT", {s("a"), s("a"), n("0")}));
  EXPECT_EQ(1428, callError("REGEXP_INSTR", {s("a"), s("a"), n("1"), n("0")}));
  EXPECT_EQ(1428, callError("REGEXP_INSTR", {s("a"), s("a"), n("1"), n("1"), n("-1")}));
  EXPECT_EQ(1428, callError("REGEXP_REPLACE", {s("a"), s("a"), s("b"), n("-1")}));
  EXPECT_EQ(1428, callError("REGEXP_REPLACE", {s("a"), s("a"), s("b"), n("1"), n("-1")}));
  EXPECT_EQ("NULL", call("REGEXP_SUBSTR", {s("a"), s("a"), n("9")}));
  EXPECT_EQ("0", call("REGEXP_INSTR", {s("ABC"), s("A"), n("1"), n("1"), n("0"), s("i"), n("1")}));
}

TEST(RegularExpressions, lettersChooseCaseAndLines) {
  struct {
    const char* text;
    const char* pattern;
    const char* letters;
    const char* answer;
  } const cases[] = {{"a\nd", "a.d", "c", "0"},
                     {"a\nd", "a.d", "m", "0"},
                     {"a\nd", "a.d", "n", "1"},
                     {"foo\nbar", "^bar", "c", "0"},
                     {"foo\nbar", "^bar", "m", "1"},
                     {"foo\nbar", "^bar", "n", "0"},
                     {"foo\nbar", "foo$", "m", "1"},
                     {"GREEN", "([aeiou])\\1", "c", "0"},
                     {"GREEN", "([aeiou])\\1", "i", "1"},
                     {"GREEN", "([aeiou])\\1", "ic", "0"},
                     {"ORANGE\nGREEN", "^..([aeiou])\\1", "in", "0"},
                     {"ORANGE\nGREEN", "^..([aeiou])\\1", "im", "1"},
                     {"ab", "a b", "x", "1"},
                     {"a b", "a b", "x", "0"}};
  for (const auto& c : cases) {
    EXPECT_EQ(c.answer, call("REGEXP_LIKE", {s(c.text), s(c.pattern), s(c.letters)}))
        << c.text << " with " << c.pattern << " and " << c.letters;
  }
}

TEST(RegularExpressions, matchesAreCounted) {
  EXPECT_EQ("2", call("REGEXP_COUNT", {s("a,b\nc"), s("[^,]+")}));
  EXPECT_EQ("5", call("REGEXP_COUNT", {s("123123123123123"), s("(12)3"), n("1"), s("i")}));
  EXPECT_EQ("3", call("REGEXP_COUNT", {s("123123123123"), s("123"), n("3"), s("i")}));
  EXPECT_EQ("0", call("REGEXP_COUNT", {s("ABC123"), s("([A-Z][0-9]){2}")}));
  EXPECT_EQ("1", call("REGEXP_COUNT", {s("A1B2C3"), s("([A-Z][0-9]){2}")}));
}

TEST(RegularExpressions, matchesArePlaced) {
  EXPECT_EQ("4", call("REGEXP_INSTR", {s("1234567890"), s("(4(56)(78))"), n("3")}));
  EXPECT_EQ("0", call("REGEXP_INSTR", {s("1234567890"), s("(123)(4(56)(78))"), n("3")}));
  EXPECT_EQ("37", call("REGEXP_INSTR", {s(kParkway), s("[^ ]+"), n("1"), n("6")}));
  EXPECT_EQ("21", call("REGEXP_INSTR", {s(kParkway), s("[S|R|P][[:alpha:]]{6}"), n("3"), n("2"), n("0")}));
  EXPECT_EQ("28",
            call("REGEXP_INSTR", {s(kParkway), s("[s|r|p][[:alpha:]]{6}"), n("3"), n("2"), n("1"), s("i")}));
  EXPECT_EQ("31", call("REGEXP_INSTR", {s("1234567890 1234567890 1234567890"), s("(123)(4(56)(78))"), n("1"),
                                        n("3"), n("1"), s("i"), n("4")}));
  EXPECT_EQ("16", call("REGEXP_INSTR", {s("johndoe@example.com"), s("\\w+@\\w+(\\.\\w+)+"), n("1"), n("1"),
                                        n("0"), s("i"), n("1")}));
  EXPECT_EQ("3", call("REGEXP_INSTR", {s("日本語"), s("語")}));
}

TEST(RegularExpressions, matchesAreTaken) {
  EXPECT_EQ(", Redwood Shores,", call("REGEXP_SUBSTR", {s(kParkway), s(",[^,]+,")}));
  EXPECT_EQ("http://www.example.com/", call("REGEXP_SUBSTR", {s("http://www.example.com/products"),
                                                              s("http://([[:alnum:]]+\\.?){3,4}/?")}));
  EXPECT_EQ("c", call("REGEXP_SUBSTR", {s("a,b\nc"), s("."), n("1"), n("4")}));
  EXPECT_EQ("55", call("REGEXP_SUBSTR", {s("1234567890 1234557890"), s("(123)(4(5[56])(78))"), n("1"), n("2"),
                                         s("i"), n("3")}));
  EXPECT_EQ("NULL", call("REGEXP_SUBSTR", {s("ab"), s("a"), n("1"), n("1"), s("i"), n("1")}));
  EXPECT_EQ("a", call("REGEXP_SUBSTR", {s("aaa"), s("a+?")}));
  EXPECT_EQ("NULL", call("REGEXP_SUBSTR", {s("abc"), s("x*")}));
}

// POSIX: no escapes between brackets, ] in front and - at the end are themselves.
TEST(RegularExpressions, bracketsKnowNoEscapes) {
  EXPECT_EQ("\\", call("REGEXP_SUBSTR", {s("a\\b"), s("[\\]")}));
  EXPECT_EQ("]", call("REGEXP_SUBSTR", {s("a]b"), s("[]]")}));
  EXPECT_EQ("a-", call("REGEXP_SUBSTR", {s("a-b"), s("[a-]+")}));
  EXPECT_EQ("b", call("REGEXP_SUBSTR", {s("]b"), s("[^]]")}));
}

TEST(RegularExpressions, matchesAreReplaced) {
  EXPECT_EQ("(512) 123-4567 (612) 123-4567",
            call("REGEXP_REPLACE",
                 {s("512.123.4567 612.123.4567"), s("([[:digit:]]{3})\\.([[:digit:]]{3})\\.([[:digit:]]{4})"),
                  s("(\\1) \\2-\\3")}));
  EXPECT_EQ("number your street, zipcode town, FR",
            call("REGEXP_REPLACE", {s(kAddress), s("( ){2,}"), s(" ")}));
  EXPECT_EQ("number   your     street, zipcode  town, FR",
            call("REGEXP_REPLACE", {s(kAddress), s("( ){2,}"), s(" "), n("9"), n("2")}));
  EXPECT_EQ("number   your     s[t],    zipcode  town, FR",
            call("REGEXP_REPLACE", {s(kAddress), s("([EURT]){2,}"), s("[\\1]"), n("9"), n("2"), s("i")}));
  EXPECT_EQ("A PostgrXSQL function", call("REGEXP_REPLACE", {s("A PostgreSQL function"), s("a|e|i|o|u"),
                                                             s("X"), n("1"), n("3"), s("i")}));
  EXPECT_EQ("C a n a d a ", call("REGEXP_REPLACE", {s("Canada"), s("(.)"), s("\\1 ")}));
  EXPECT_EQ("Smith, Ellen Hildi",
            call("REGEXP_REPLACE", {s("Ellen Hildi Smith"), s("(.*) (.*) (.*)"), s("\\3, \\1 \\2")}));
  EXPECT_EQ("-a-b-c-", call("REGEXP_REPLACE", {s("abc"), s("x*"), s("-")}));
  EXPECT_EQ("a\\c", call("REGEXP_REPLACE", {s("abc"), s("b"), s("\\\\")}));
}

}  // namespace
}  // namespace oracle_sql

// Reading help files: broken ones first.
#include <gmock/gmock.h>

#include "help/help_support.h"

namespace kestrelix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing_support::compiledHelp;
using testing_support::fileBytes;
using testing_support::kCompiledHelp;

class DamagedHelp : public testing::Test {
 protected:
  DamagedHelp()
      : path_(std::filesystem::temp_directory_path() /
              ("kestrelix-help-" +
               std::string(testing::UnitTest::GetInstance()->current_test_info()->name()) + ".chm")) {}
  ~DamagedHelp() override { std::filesystem::remove(path_); }

  /// Opens a file of these bytes and reads all that it lists, as the help window would and more.
  std::unique_ptr<HelpFile> readAll(const std::string& bytes) {
    std::ofstream(path_, std::ios::binary) << bytes;
    auto help = HelpFile::open(path_);
    if (help)
      for (const std::string& name : help->names()) help->read(name);
    return help;
  }

  std::filesystem::path path_;
};

TEST_F(DamagedHelp, missingFileIsNoHelp) { EXPECT_EQ(HelpFile::open("/nonexistent/Kestrelix.chm"), nullptr); }

TEST_F(DamagedHelp, emptyFileIsNoHelp) { EXPECT_EQ(readAll(""), nullptr); }

TEST_F(DamagedHelp, anyOtherFileIsNoHelp) {
  EXPECT_EQ(readAll("<html>no compiled help</html>"), nullptr);
  EXPECT_EQ(readAll(std::string(100000, '\0')), nullptr);
}

TEST_F(DamagedHelp, fileThatEndsEarlyIsIncomplete) {
  const std::string whole = fileBytes(kCompiledHelp);
  for (std::size_t length = 16; length < whole.size() - 4096; length += 997) {
    const auto help = readAll(whole.substr(0, length));
    EXPECT_TRUE(!help || !help->complete()) << length;
  }
}

TEST_F(DamagedHelp, overwrittenPagesAreNotTakenForPages) {
  std::string bytes = fileBytes(kCompiledHelp);
  const std::string index = compiledHelp()->read("/index.html").value();
  std::fill(bytes.begin() + static_cast<std::ptrdiff_t>(bytes.size() / 4), bytes.end(), '\0');
  const auto help = readAll(bytes);
  EXPECT_TRUE(!help || !help->complete());
}

TEST_F(DamagedHelp, anyOverwrittenByteIsReadWithoutACrash) {
  const std::string whole = fileBytes(kCompiledHelp);
  for (std::size_t at = 0; at < whole.size(); at += 211) {
    std::string bytes = whole;
    bytes[at] = static_cast<char>(~bytes[at]);
    readAll(bytes);
  }
}

TEST_F(DamagedHelp, wholeFileIsComplete) { EXPECT_TRUE(compiledHelp()->complete()); }

TEST(HelpFileTest, whatIsNotInsideReadsAsNothing) {
  const auto help = compiledHelp();
  EXPECT_EQ(help->read("/nowhere.html"), std::nullopt);
  EXPECT_EQ(help->read(""), std::nullopt);
  EXPECT_EQ(help->read("/" + std::string(2000, 'a')), std::nullopt);
}

TEST(HelpTopics, aFileThatBreaksOffGivesWhatIsWhole) {
  EXPECT_THAT(helpTopics(""), IsEmpty());
  EXPECT_THAT(helpTopics("<ul><li><object type=\"text/sitemap\"><param name=\"Name\" val"), IsEmpty());
  EXPECT_THAT(helpTopics("</ul></ul><object><param name=\"Name\" value=\"A\">"
                         "<param name=\"Local\" value=\"a.html\"></object>"),
              ElementsAre(HelpTopic{"A", "a.html", 0}));
}

TEST(HelpTopics, anEntryWithoutTitleOrAddressIsPassedOver) {
  EXPECT_THAT(helpTopics("<ul><object><param name=\"Name\" value=\"A\"></object>"
                         "<object><param name=\"Local\" value=\"b.html\"></object></ul>"),
              IsEmpty());
}

TEST(HelpTopics, nestedListsGiveTheDepth) {
  EXPECT_THAT(
      helpTopics("<UL><LI><OBJECT type=\"text/sitemap\"><param name=\"Name\" value=\"Waits\">"
                 "<param name=\"Local\" value=\"waits.html\"></OBJECT>"
                 "<UL><LI><OBJECT><param name=\"Name\" value=\"Wait Events\">"
                 "<param name=\"Local\" value=\"waits.html#section-20\"></OBJECT></UL>"
                 "<LI><OBJECT><param name=\"Name\" value=\"SQL\">"
                 "<param name=\"Local\" value=\"sql.html\"></OBJECT></UL>"),
      ElementsAre(HelpTopic{"Waits", "waits.html", 0}, HelpTopic{"Wait Events", "waits.html#section-20", 1},
                  HelpTopic{"SQL", "sql.html", 0}));
}

TEST(HelpTopics, characterReferencesBecomeUtf8) {
  const auto titled = [](const std::string& value) {
    return helpTopics("<object><param name=\"Name\" value=\"" + value +
                      "\"><param name=\"Local\" value=\"a.html\"></object>")
        .at(0)
        .title;
  };
  EXPECT_EQ(titled("&#24453;&#27231;"), "待機");
  EXPECT_EQ(titled("a &amp; b &lt;&quot;&gt; &#233; &#128512;"), "a & b <\"> é 😀");
  EXPECT_EQ(titled("&; &#; &#x41; &unknown; &#99999999; R&D"), "&; &#; &#x41; &unknown; &#99999999; R&D");
}

}  // namespace
}  // namespace kestrelix

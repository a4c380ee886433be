// What the help must hold: a paragraph a Section, and no dead link.
#include <gmock/gmock.h>

#include "help/help_support.h"
#include "sections/SectionList.h"

namespace kestrelix {
namespace {

using testing::Contains;
using testing_support::allMatches;
using testing_support::compiledHelp;
using testing_support::fileBytes;
using testing_support::helpPages;
using testing_support::sectionParagraph;

/// `address` without its anchor, and the anchor.
std::pair<std::string, std::string> splitAddress(const std::string& address) {
  const auto hash = address.find('#');
  if (hash == std::string::npos) return {address, ""};
  return {address.substr(0, hash), address.substr(hash + 1)};
}

/// Empty if the address leads somewhere.
std::string deadEnd(const std::map<std::string, std::string>& pages, const std::string& from,
                    const std::string& address) {
  auto [page, anchor] = splitAddress(address);
  if (page.empty()) page = from;
  if (!pages.contains(page)) return from + " leads to " + page + ", which isn't there";
  if (!anchor.empty() && pages.at(page).find("<a name=\"" + anchor + "\">") == std::string::npos)
    return from + " leads to " + address + ", an anchor that isn't there";
  return "";
}

TEST(HelpPages, everySectionHasItsParagraph) {
  const auto pages = helpPages();
  for (const Section& section : sectionList()) {
    const std::string paragraph = sectionParagraph(pages, section.code);
    EXPECT_EQ(paragraph.find("<h2><a name=\"section-" + std::to_string(section.code) + "\"></a>" +
                             std::string(section.text) + "</h2>"),
              0u)
        << section.text;
    EXPECT_NE(paragraph.find("<p>"), std::string::npos) << section.text;
  }
}

TEST(HelpPages, noParagraphIsOfASectionThatIsNotThere) {
  std::set<std::string> codes;
  for (const Section& section : sectionList()) codes.insert(std::to_string(section.code));
  std::set<std::string> explained;
  for (const auto& [name, page] : helpPages())
    for (const std::string& code : allMatches(page, "<a name=\"section-([^\"]*)\">")) {
      EXPECT_THAT(codes, Contains(code)) << name;
      EXPECT_TRUE(explained.insert(code).second) << name << " explains " << code << " again";
    }
}

TEST(HelpPages, everyLinkLeadsSomewhere) {
  const auto help = compiledHelp();
  const auto pages = helpPages();
  for (const auto& [name, page] : pages) {
    for (const std::string& address : allMatches(page, "href=\"([^\"]*)\""))
      if (address == "style.css")
        EXPECT_TRUE(help->read("/style.css")) << name;
      else
        EXPECT_EQ(deadEnd(pages, name, address), "");
  }
}

TEST(HelpPages, deadLinksAreNoticed) {
  const std::map<std::string, std::string> pages = {{"a.html", "<a name=\"top\"></a>"}};
  EXPECT_EQ(deadEnd(pages, "a.html", "#top"), "");
  EXPECT_NE(deadEnd(pages, "a.html", "#bottom"), "");
  EXPECT_NE(deadEnd(pages, "a.html", "b.html"), "");
  EXPECT_NE(deadEnd(pages, "a.html", "a.html#bottom"), "");
}

TEST(HelpPages, everyMessageIsExplained) {
  const std::string page = helpPages().at("messages.html");
  std::set<std::string> messages{"The time series display is not supported."};
  for (const char* room : {"navigation", "report", "sections", "shell"})
    for (const auto& file :
         std::filesystem::recursive_directory_iterator(std::string(KESTRELIX_SOURCE_DIR) + "/src/" + room)) {
      if (file.path().extension() != ".cpp") continue;
      // What isn't ASCII in these rooms is the text of a box.
      for (const std::string& text :
           allMatches(fileBytes(file.path()), "\"([^\"\n]*[^\\x01-\\x7F\"\n][^\"\n]*)\""))
        messages.insert(text);
    }
  EXPECT_GE(messages.size(), 10u);
  for (const std::string& message : messages) EXPECT_NE(page.find(message), std::string::npos) << message;
}

TEST(HelpPages, everyPageIsCompiledUnchanged) {
  const auto help = compiledHelp();
  std::size_t pages = 0;
  for (const auto& file : std::filesystem::directory_iterator(std::string(KESTRELIX_SOURCE_DIR) + "/help")) {
    const std::string name = file.path().filename().string();
    if (!name.ends_with(".html") && !name.ends_with(".css")) continue;
    EXPECT_EQ(help->read("/" + name), fileBytes(file.path())) << name;
    ++pages;
  }
  EXPECT_EQ(helpPages().size() + 1, pages);
}

TEST(HelpPages, contentsLeadToEveryPageAndSection) {
  const auto pages = helpPages();
  std::map<std::string, std::string> titles;
  for (const HelpTopic& topic : compiledHelp()->contents()) {
    EXPECT_EQ(deadEnd(pages, "the contents", topic.address), "");
    titles[topic.address] = topic.title;
  }
  for (const auto& [name, page] : pages) EXPECT_TRUE(titles.contains(name)) << name;
  for (const Section& section : sectionList()) {
    const auto entry = std::find_if(titles.begin(), titles.end(), [&](const auto& title) {
      return splitAddress(title.first).second == "section-" + std::to_string(section.code);
    });
    ASSERT_NE(entry, titles.end()) << section.text;
    EXPECT_EQ(entry->second, section.text);
  }
}

}  // namespace
}  // namespace kestrelix

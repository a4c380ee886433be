// Whatever heading or metric a grid shows, the Section's paragraph explains it, or one that it leads to.
#include <gmock/gmock.h>
#include <unistd.h>

#include "demo/demo.h"
#include "help/help_support.h"
#include "support/report_fixture.h"

namespace kestrelix {
namespace {

using testing_support::allMatches;
using testing_support::helpPages;
using testing_support::ReportFixture;
using testing_support::sectionParagraph;

using Pages = std::map<std::string, std::string>;

std::string replaced(std::string text, const std::string& from, const std::string& to) {
  for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
    text.replace(at, from.size(), to);
  return text;
}

/// The names that a table's cell tells: parted by "、", without what stands in full-width brackets.
void addNames(std::set<std::string>& names, std::string cell) {
  for (const char* tag : {"<br>", "</table>", "\n"}) cell = cell.substr(0, cell.find(tag));
  cell = replaced(replaced(replaced(cell, "&lt;", "<"), "&gt;", ">"), "&amp;", "&");
  const std::string comma = "、";
  for (std::size_t begin = 0; begin <= cell.size();) {
    const std::size_t end = std::min(cell.find(comma, begin), cell.size());
    const std::string name = cell.substr(begin, end - begin);
    names.insert(name.substr(0, name.find("（")));
    begin = end + comma.size();
  }
}

std::set<std::string> namesIn(const std::string& paragraph) {
  std::set<std::string> names;
  for (const char* cell : {"<td>", "<th>"})
    for (auto at = paragraph.find(cell); at != std::string::npos; at = paragraph.find(cell, at + 1))
      addNames(names,
               paragraph.substr(at + 4, std::min(paragraph.find("<t", at + 4), paragraph.size()) - at - 4));
  return names;
}

/// The paragraph of an anchor on a page.
std::string paragraphAt(const Pages& pages, const std::string& page, const std::string& anchor) {
  const std::string& text = pages.at(page);
  const auto begin = text.find("<h2><a name=\"" + anchor + "\"></a>");
  if (begin == std::string::npos) throw std::runtime_error("no paragraph " + page + "#" + anchor);
  return text.substr(begin, text.find("<h2>", begin + 1) - begin);
}

std::string pageOf(const Pages& pages, int code) {
  for (const auto& [name, text] : pages)
    if (text.find("<a name=\"section-" + std::to_string(code) + "\">") != std::string::npos) return name;
  throw std::runtime_error("no page explains Section " + std::to_string(code));
}

/// The names of a Section's paragraph and of those on the same page that it leads to.
std::set<std::string> explained(const Pages& pages, int code) {
  const std::string page = pageOf(pages, code);
  std::set<std::string> names;
  std::set<std::string> seen;
  std::vector<std::string> anchors{"section-" + std::to_string(code)};
  while (!anchors.empty()) {
    const std::string anchor = anchors.back();
    anchors.pop_back();
    if (!seen.insert(anchor).second) continue;
    const std::string paragraph = paragraphAt(pages, page, anchor);
    names.merge(namesIn(paragraph));
    for (const std::string& next : allMatches(paragraph, "href=\"#([^\"]*)\"")) anchors.push_back(next);
  }
  return names;
}

TEST(HelpColumns, namesOfACellAreToldApart) {
  EXPECT_THAT(namesIn("<table>\n<tr><th>列<th>単位\n<tr><td>&lt;1ms、&gt;1s<td>PCT MISS（左）\n</table>"),
              testing::UnorderedElementsAre("列", "単位", "<1ms", ">1s", "PCT MISS"));
}

class HelpOfInstance : public testing::TestWithParam<int> {
 protected:
  static const std::string& demo() {
    static const struct Demo {
      std::string path = (std::filesystem::temp_directory_path() /
                          ("kestrelix-help-columns-" + std::to_string(::getpid()) + ".sqlite"))
                             .string();
      Demo() { demo::makeDemo(path, {.snapshots = 12}); }
      ~Demo() {
        std::error_code ignored;
        std::filesystem::remove(path, ignored);
      }
    } made;
    return made.path;
  }

  static void expectHeadings(const std::set<std::string>& names, const Grid& grid, const std::string& what) {
    for (int c = 1; c < grid.Cols(); ++c)
      EXPECT_TRUE(names.contains(grid.TextMatrix(0, c))) << what << ": " << grid.TextMatrix(0, c);
  }
};

TEST_P(HelpOfInstance, everyHeadingAndMetricOfBothViewsIsExplained) {
  const Pages pages = helpPages();
  const std::set<std::string> common = namesIn(paragraphAt(pages, "reading.html", "common"));
  ReportFixture report(demo());
  report.open(GetParam());
  const int pair = static_cast<int>(report.repository().gSnapId->rownum()) - 1;
  for (const std::string& name : report.sections()) {
    std::set<std::string> names = explained(pages, section(name).code);
    names.insert(common.begin(), common.end());
    report.all(name, pair);
    Grid& grid = report.grid();
    expectHeadings(names, grid, name + " All");
    const ReleaseViews* const views = section(name).viewsOf(report.version());
    const bool metrics = std::holds_alternative<AnyMetricView>(views->view);
    for (int r = 1; metrics && r < grid.Rows(); ++r)
      EXPECT_TRUE(names.contains(grid.TextMatrix(r, 1))) << name << ": " << grid.TextMatrix(r, 1);
    if (grid.Rows() == 1) continue;
    const int rows = metrics ? grid.Rows() - 1 : 1;
    for (int row = 1; row <= rows; ++row) {
      report.all(name, pair);
      report.col(row);
      expectHeadings(names, grid, name + " Col " + std::to_string(row));
    }
  }
  EXPECT_THAT(report.errors(), testing::IsEmpty());
}

// Release 9, a cluster of release 10, a cluster of release 11, release 11 alone.
INSTANTIATE_TEST_SUITE_P(Columns, HelpOfInstance, testing::Values(0, 1, 3, 5));

}  // namespace
}  // namespace kestrelix

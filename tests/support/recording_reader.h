// A reader of Sections that needs no repository.
#pragma once

#include <string>
#include <vector>

#include "report/reading.h"

namespace kestrelix::testing_support {

/// What the catalogue's views were asked for, oldest first: "All Snapshot 10 pair 0".
inline std::vector<std::string>& rendered() {
  static std::vector<std::string> calls;
  return calls;
}

/// A table of three columns beside the running number, whose cells tell where they stand.
inline ReportTable tableOf(const std::string& name, int rows) {
  ReportTable table;
  table.read = true;
  for (int c = 1; c < 4; ++c) table.columns.push_back({name + " 0," + std::to_string(c), {}});
  for (int r = 1; r <= rows; ++r) {
    auto& row = table.rows.emplace_back();
    for (int c = 1; c < 4; ++c) row.push_back(name + " " + std::to_string(r) + "," + std::to_string(c));
  }
  return table;
}

/// Forty rows, whose second column holds line ends and whose third one figures.
inline ReportTable longTable() {
  ReportTable table = tableOf("Long", 40);
  table.rows[0][1] = "select *\r\nfrom\tdual";
  table.columns[2].measure = {Kind::Count};
  for (int r = 1; r <= 40; ++r) table.rows[static_cast<std::size_t>(r - 1)][2] = std::to_string(r * 10);
  return table;
}

/// Reads no repository: it notes what it was asked for.
class RecordingReader : public SectionReader {
 public:
  ReportTable all(const ReportSource& source, const Section& section, int pair) override {
    const std::string text(section.text);
    rendered().push_back("All " + text + " " + source.version + " pair " + std::to_string(pair));
    return text == "Long" ? longTable() : tableOf(text, text == "Empty" ? 0 : 3);
  }
  ReportTable col(const ReportSource& source, const Section& section, const ColRequest& request) override {
    rendered().push_back("Col " + std::string(section.text) + " " + source.version + " row " +
                         std::to_string(request.row));
    return tableOf("Col", static_cast<int>(source.pairs.rownum()));
  }
};

}  // namespace kestrelix::testing_support

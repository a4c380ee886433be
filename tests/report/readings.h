// Small section objects with their views, and a repository of three pairs to read them from.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "report/reading.h"
#include "support/snapshots.h"

namespace kestrelix::testing_support {

/// Waits by event. A failure of the query behind TOP_NUM is told, and five are asked for.
class clsEvents : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(EVENT, WAITS)
  clsEvents()
      : ListSectionObject("clsEvents", fieldNames(),
                          {argument("B5", ServerType::String),
                           {.name = "TOP_NUM",
                            .type = ServerType::Number,
                            .member = "getTOP_NUM",
                            .text = "select TOP_NUM from top ",
                            .goesOn = true,
                            .ifFailed = "5"}}) {
    all("getEVENTS_ALL", "select all ");
    col("getEVENTS_COL", "select col ");
  }
};

/// Settings, which a restart leaves as they are.
class clsSettings : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(NAME, VALUE)
  clsSettings() : ListSectionObject("clsSettings", fieldNames(), {}) {
    all("getSETTINGS_ALL", "select settings ").acrossRestarts();
  }
};

/// Sizes at the snapshots, of begin rows and end rows.
class clsSizes : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(BE, POOL, SIZE)
  clsSizes()
      : ListSectionObject("clsSizes", fieldNames(),
                          {argument("B5", ServerType::String), argument("PAR", ServerType::String)}) {
    all("getSIZES_ALL", "select all ");
    col("getSIZES_COL", "select col ");
  }
};

class clsMetrics : public MetricSectionObject {
 public:
  KESTRELIX_FIELDS(REDO, REDO_RATE, LOG)
  clsMetrics() : MetricSectionObject("clsMetrics", fieldNames()) {
    metric("getREDO", {Field::REDO}, "select redo ");
    metric("getREDO_RATE", {Field::REDO_RATE}, "select rate ");
    metric("getLOG", {Field::LOG}, "select log ");
  }
};

using Event = clsEvents::Field;
inline const ListView<clsEvents> kEvents{
    .all = "getEVENTS_ALL",
    .col = "getEVENTS_COL",
    .columns = {{"EVENT", Event::EVENT, Kind::Key}, {"WAITS", Event::WAITS, Kind::Count}},
    .allArguments = {"%"},
};

using Setting = clsSettings::Field;
inline const ListView<clsSettings> kSettings{
    .all = "getSETTINGS_ALL",
    .columns = {{"NAME", Setting::NAME, Kind::Key}, {"VALUE", Setting::VALUE, Kind::Text}},
};

using Size = clsSizes::Field;
inline const ListView<clsSizes> kSizes{
    .all = "getSIZES_ALL",
    .col = "getSIZES_COL",
    .columns = {{"B/E", Size::BE, Kind::Key},
                {"POOL", Size::POOL, Kind::Key},
                {"SIZE", Size::SIZE, Kind::Level, unit::megabytes}},
    .keys = 2,
    .ofPairs = OfPairs::SnapshotOfRow,
};

using Metric = clsMetrics::Field;
inline const MetricView<clsMetrics> kMetrics{
    .headings = {"TOTAL", "PER SECOND"},
    .rows = {{.label = "redo size",
              .member = "getREDO",
              .cells = {{"TOTAL", Metric::REDO, Kind::Count, unit::bytes},
                        {"PER SECOND", Metric::REDO_RATE, Kind::Rate, unit::bytes}},
              .furtherMembers = {"getREDO_RATE"}},
             {.label = "log file",
              .member = "getLOG",
              .cells = {{"TOTAL", Metric::LOG, Kind::Text}},
              .colLabel = "current log",
              .colCells = {{{"FILE", Metric::LOG, Kind::Text}}},
              .pairColumns = false}},
};

/// The headings and rows as lines, with "|" between the cells.
inline std::string printed(const ReportTable& table) {
  std::string text;
  for (std::size_t c = 0; c < table.columns.size(); ++c)
    text += (c == 0 ? "" : "|") + table.columns[c].heading;
  for (const auto& row : table.rows) {
    text += '\n';
    for (std::size_t c = 0; c < row.size(); ++c) text += (c == 0 ? "" : "|") + row[c];
  }
  return text;
}

/// Pair 0 is an ordinary one, pair 1 lies across a restart, pair 2 has snapshots of two levels.
class Readings : public testing::Test {
 protected:
  Readings() {
    const std::string restart = "2026-01-05 11:30:00";
    laySnapshots(server, {{"1", "2026-01-05 10:00:00"},
                          {"2", "2026-01-05 11:00:00"},
                          {"3", "2026-01-05 12:00:00", "7", restart},
                          {"4", "2026-01-05 13:00:00", "5", restart}});
    Failures failures;
    pairs.Initialize(database, failures);
    pairs.getSTART_END_SNAP_ID(false);
    lay("from top", {"TOP_NUM"}, {{"3"}});
    server.asked.clear();
  }

  template <class View>
  static Section section(const View& view, ColKey col = refused(), Versions versions = kAllVersions) {
    return {.text = "Any Section",
            .code = 1,
            .versions = versions,
            .col = std::move(col),
            .views = {viewsOf(versions, view)}};
  }
  template <class View>
  ReportTable all(const View& view, int pair) {
    return readAll(source(), section(view), pair);
  }
  ReportTable col(const Section& section, const ColRequest& request) {
    return readCol(source(), section, request);
  }
  ReportSource source() { return {database, pairs, version, *progress}; }

  using Rows = std::vector<std::vector<std::optional<std::string>>>;
  void lay(const char* when, std::vector<std::string> columns, Rows rows) {
    Answer& answer = server.answer(when);
    answer.columns = std::move(columns);
    answer.rows = std::move(rows);
  }
  void layMetrics() {
    lay("select redo", {"REDO"}, {{"4096"}});
    lay("select rate", {"REDO_RATE"}, {{"1.14"}});
    lay("select log", {"LOG"}, {{"a.log"}});
  }
  std::vector<std::string> statements() const {
    std::vector<std::string> texts;
    for (const auto& asked : server.asked) texts.push_back(asked.statement);
    return texts;
  }
  const std::string& lastBind(const char* name) const { return server.asked.back().binds.at(name).second; }

  FakeServer server;
  FakeDatabase database{server};
  clsSnapId pairs;
  std::string version = "10";
  Progress* progress = &Progress::none();
};

}  // namespace kestrelix::testing_support

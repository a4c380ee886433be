// What a column says that its figures are is held against the statement that computes them.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "oracle_sql/meaning/resolver.h"
#include "oracle_sql/syntax/parser.h"
#include "platform/ascii.h"
#include "sections/SectionList.h"
#include "sections/cluster/clsGlobalEnqueueStats.h"
#include "sections/nature.h"
#include "statspack/release_catalogue.h"

namespace kestrelix {
namespace {

using testing_support::Nature;

constexpr std::pair<Versions, const char*> kReleases[] = {{V9, "9"}, {V10, "10"}, {V11, "11"}};

/// The kinds that a column of that nature can have.
std::vector<Kind> kindsOf(Nature nature) {
  switch (nature) {
    case Nature::Text:
      return {Kind::Key, Kind::Text};
    case Nature::Moment:
      return {Kind::Time};
    case Nature::State:
      return {Kind::Level, Kind::Key};
    case Nature::Growth:
    case Nature::Duration:
      return {Kind::Count};
    case Nature::PerSecond:
      return {Kind::Rate};
    case Nature::Quotient:
      return {Kind::Ratio, Kind::Average};
    case Nature::OfStates:
      return {Kind::Ratio, Kind::Average, Kind::Level};
    case Nature::Percentage:
      return {Kind::Share};
    case Nature::Constant:
    case Nature::Mixed:
      break;
  }
  return {};
}

bool fits(const Measure& measure, Nature nature) {
  const auto kinds = kindsOf(nature);
  if (std::find(kinds.begin(), kinds.end(), measure.kind) == kinds.end()) return false;
  const bool isNumber = measure.unit == unit::number;
  return measure.kind != Kind::Key || isNumber == (nature == Nature::State);
}

const statspack::ReleaseCatalogue& catalogueOf(const char* major) {
  static std::map<std::string, statspack::ReleaseCatalogue> catalogues;
  return catalogues.try_emplace(major, major).first->second;
}

/// The natures of what one object reads in one release.
class Natures {
 public:
  Natures(const SectionObject& object, Versions version, const char* major)
      : object_(object), version_(version), catalogue_(catalogueOf(major)) {}

  Nature of(const std::string& text, std::string_view alias) {
    const oracle_sql::Query& query = *resolved(text).query();
    const auto found = std::find_if(query.columns.begin(), query.columns.end(),
                                    [&](const auto& column) { return column.name == asciiUpper(alias); });
    if (found == query.columns.end())
      throw std::out_of_range("no column " + std::string(alias) + " in " + text);
    return testing_support::natureOf(query, static_cast<std::size_t>(found - query.columns.begin()),
                                     [&](std::string_view name) { return ofBind(name); });
  }

 private:
  const oracle_sql::Tree& resolved(const std::string& text) {
    const auto known = trees_.find(text);
    if (known != trees_.end()) return known->second;
    oracle_sql::Tree& tree = trees_.emplace(text, oracle_sql::parse(text)).first->second;
    oracle_sql::resolve(tree, catalogue_, [&](std::string_view name) {
      const Bind* bind = find(name);
      const bool isText = bind != nullptr && bind->type == ServerType::String;
      return std::optional(isText ? oracle_sql::TypeKind::Varchar2 : oracle_sql::TypeKind::Number);
    });
    return tree;
  }

  const Bind* find(std::string_view name) const {
    const auto found = std::find_if(object_.binds().begin(), object_.binds().end(),
                                    [&](const Bind& bind) { return asciiUpper(bind.name) == name; });
    return found == object_.binds().end() ? nullptr : &*found;
  }

  Nature ofBind(std::string_view name) {
    const Bind* bind = find(name);
    if (bind == nullptr || bind->member.empty()) return Nature::Constant;
    const std::string alias = bind->column.empty() ? bind->name : bind->column;
    if (!bind->text.empty()) return of(bind->text, alias);
    for (const Statement& statement : object_.statements())
      if (statement.member == bind->member && (statement.versions & version_) != 0)
        return of(statement.text, alias);
    return Nature::Constant;
  }

  const SectionObject& object_;
  Versions version_;
  const statspack::ReleaseCatalogue& catalogue_;
  std::map<std::string, oracle_sql::Tree> trees_;
};

/// Calls `check(members, column)` for every column of a view with the members that fill its record.
template <class Check>
void forEachColumn(const ReleaseViews& views, Check check) {
  using Members = std::vector<std::string>;
  if (const auto* list = std::get_if<AnyListView>(&views.view)) {
    for (const ViewColumn& column : list->columns) check(Members{list->all}, column);
    if (list->col.empty()) return;
    for (const ViewColumn& column : list->colColumns.value_or(list->columns))
      check(Members{list->col}, column);
    return;
  }
  for (const AnyMetricRow& row : std::get<AnyMetricView>(views.view).rows) {
    Members members = row.furtherMembers;
    members.push_back(row.member);
    for (const ViewColumn& cell : row.cells) check(members, cell);
    if (row.colCells)
      for (const ViewColumn& cell : *row.colCells) check(members, cell);
  }
}

/// Calls `check(section, views, version, major)` for the views of every release that lists a Section.
template <class Check>
void forEachView(Check check) {
  for (const Section& section : sectionList())
    for (const auto& [version, major] : kReleases) {
      if ((section.versions & version) == 0) continue;
      const ReleaseViews* views = section.viewsOf(major);
      ASSERT_NE(views, nullptr) << section.text << " on release " << major;
      check(std::string(section.text), *views, version, major);
    }
}

struct Fault {
  Kind declared;
  std::string computed;
};
/// By the column's name, "Latch Activity/LATCH".
using Faults = std::map<std::string, Fault>;

/// The columns that aren't what their statements compute.
Faults faultsOf(const std::string& section, const ReleaseViews& views, Versions version, const char* major) {
  const auto object = views.make();
  Natures natures(*object, version, major);
  Faults faults;
  forEachColumn(views, [&](const std::vector<std::string>& members, const ViewColumn& column) {
    const std::string& alias = object->fieldNames().at(column.field);
    bool filled = false;
    for (const Statement& statement : object->statements()) {
      const auto holds = [](const auto& all, const auto& one) {
        return std::find(all.begin(), all.end(), one) != all.end();
      };
      if ((statement.versions & version) == 0 || !holds(members, statement.member) ||
          !holds(statement.fields, column.field))
        continue;
      filled = true;
      const Nature nature = natures.of(statement.text, alias);
      if (!fits(column.measure, nature))
        faults.insert({section + "/" + alias, {column.measure.kind, nameOf(nature)}});
    }
    if (!filled) faults.insert({section + "/" + alias, {column.measure.kind, "filled by no statement"}});
  });
  return faults;
}

struct Exception {
  const char* column;
  Kind kind;
  const char* reason;
};

constexpr Exception kExceptions[] = {
    {"Buffer Pool Statistics/BUFFERS", Kind::Level, "the statement writes the figure short: 12K"},
    {"Wait Event Histogram/TOTAL_WAITS", Kind::Count, "the statement writes the figure short: 12K"},
    {"Instance Activity Stats[3]/PER_HOUR", Kind::Ratio, "it is divided by hours; a rate is a second's"},
    {"Resource Limit Stats/INITIAL_ALLOCATION", Kind::Level, "a number in a text, which can be UNLIMITED"},
    {"Resource Limit Stats/LIMIT", Kind::Level, "a number in a text, which can be UNLIMITED"},
    {"SQL ordered by Sharable Memory/SHARED_POOL_SIZE", Kind::Level, "a parameter's value is a text"},
};

TEST(ColumnKinds, areWhatTheStatementsCompute) {
  Faults faults;
  forEachView([&](const auto&... view) { faults.merge(faultsOf(view...)); });
  for (const auto& [column, kind, reason] : kExceptions) {
    const auto found = faults.find(column);
    ASSERT_NE(found, faults.end()) << column << " needs no exception any more: " << reason;
    EXPECT_EQ(found->second.declared, kind) << column << ": " << reason;
    faults.erase(found);
  }
  for (const auto& [column, fault] : faults) ADD_FAILURE() << column << " is " << fault.computed;
}

TEST(ColumnKinds, aWrongKindIsFound) {
  using F = clsGlobalEnqueueStats::Field;
  const auto view = [](Kind statistic, Kind total, Kind second, Kind transaction) {
    return viewsOf(V11, ListView<clsGlobalEnqueueStats>{.all = "getGLOBAL_ENQUEUE_STATS_ALL",
                                                        .col = "getGLOBAL_ENQUEUE_STATS_COL",
                                                        .columns = {{"STATISTIC", F::STATISTIC, statistic},
                                                                    {"TOTAL", F::TOTAL, total},
                                                                    {"SECOND", F::PER_SECOND, second},
                                                                    {"TRANS", F::PER_TRANS, transaction}}});
  };
  EXPECT_TRUE(faultsOf("S", view(Kind::Key, Kind::Count, Kind::Rate, Kind::Ratio), V11, "11").empty());
  const Faults faults = faultsOf("S", view(Kind::Level, Kind::Rate, Kind::Count, Kind::Share), V11, "11");
  std::vector<std::string> found;
  for (const auto& [column, fault] : faults) found.push_back(column + " is " + fault.computed);
  EXPECT_EQ(found, (std::vector<std::string>{"S/PER_SECOND is divided by a duration",
                                             "S/PER_TRANS is a quotient of growths", "S/STATISTIC is a text",
                                             "S/TOTAL is a growth"}));
}

TEST(ColumnKinds, aColumnThatNoStatementFillsIsFound) {
  using F = clsGlobalEnqueueStats::Field;
  const ListView<clsGlobalEnqueueStats> view{.all = "getNOTHING",
                                             .columns = {{"TOTAL", F::TOTAL, Kind::Count}}};
  EXPECT_EQ(faultsOf("S", viewsOf(V11, view), V11, "11").at("S/TOTAL").computed, "filled by no statement");
}

TEST(ColumnKinds, haveUnitsThatGoWithThem) {
  const std::set<std::string_view> units{
      unit::none,         unit::number,       unit::percent,      unit::thousands, unit::seconds,
      unit::minutes,      unit::hours,        unit::centiseconds, unit::bytes,     unit::kilobytes,
      unit::milliseconds, unit::microseconds, unit::blocks,       unit::megabytes};
  forEachView([&](const std::string& section, const ReleaseViews& views, Versions, const char*) {
    forEachColumn(views, [&](const auto&, const ViewColumn& column) {
      const auto& [kind, unit] = column.measure;
      const std::string name = section + "/" + column.heading;
      EXPECT_TRUE(units.contains(unit)) << name << ": " << unit;
      EXPECT_EQ(kind == Kind::Share, unit == unit::percent) << name;
      if (kind == Kind::Average) {
        EXPECT_NE(unit, unit::none) << name << " is of time or size";
      }
      if (kind == Kind::Text || kind == Kind::Time) {
        EXPECT_EQ(unit, unit::none) << name;
      }
      if (unit == unit::number) {
        EXPECT_EQ(kind, Kind::Key) << name;
      }
    });
  });
}

TEST(ColumnKinds, whatLeadsToASeriesIsAKey) {
  for (const Section& section : sectionList())
    for (const ReleaseViews& views : section.views)
      for (const int column : section.col.columns)
        if (const auto* list = std::get_if<AnyListView>(&views.view)) {
          // A grid's column 0 is its running number.
          EXPECT_EQ(list->columns.at(static_cast<std::size_t>(column - 1)).measure.kind, Kind::Key)
              << section.text << "/" << column;
        }
}

TEST(ColumnKinds, noFigureStandsInFrontOfTheTimeOfASeries) {
  forEachView([&](const std::string& section, const ReleaseViews& views, Versions, const char*) {
    const auto* list = std::get_if<AnyListView>(&views.view);
    if (list == nullptr || list->col.empty()) return;
    // Its third column is the key, behind the time and the seconds of an operation.
    if (section == "Memory Resize Operations") return;
    const auto& columns = list->colColumns.value_or(list->columns);
    for (std::size_t i = 0; i < list->keys; ++i)
      EXPECT_TRUE(columns.at(i).measure.kind == Kind::Key || columns[i].measure.kind == Kind::Text)
          << section << "/" << columns[i].heading;
  });
}

}  // namespace
}  // namespace kestrelix

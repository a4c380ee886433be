#include "report_run.h"

#include "app/back_ends.h"
#include "navigation/version_gate.h"
#include "platform/ascii.h"
#include "sections/SectionList.h"
#include "sections/sql/sqlPanels.h"

namespace kestrelix::report_tool {

namespace {

constexpr std::size_t kHashColumn = 0;  // of a ranking

int needed(const std::optional<int>& value, const char* option) {
  if (!value) throw UsageError(std::string(option) + " is needed");
  return *value;
}

int within(int value, int count, const char* what) {
  if (value >= count)
    throw UsageError("there is no " + std::string(what) + " " + std::to_string(value) +
                     ", they go from 0 to " + std::to_string(count - 1));
  return value;
}

}  // namespace

void ReportRun::require(const Failures& failures) {
  showFailures(boxes_, failures);
  if (!failures.empty()) throw Stopped{};
}

/// The table, its failures told; without one there is nothing to go on with.
ReportTable ReportRun::told(ReportTable table) {
  showFailures(boxes_, table.failures);
  if (!table.read) throw Stopped{};
  return table;
}

void ReportRun::connect() {
  if (options_.repository.empty() == options_.tns.empty())
    throw UsageError("name the repository by one of --repository FILE and --tns NAME");
  const bool local = !options_.repository.empty();
  const auto makeSession = [&] {
    return local ? repository_file::localSession(options_.repository) : anySession(programFolder());
  };
  Failures failures = repository_.open(makeSession, local ? options_.repository : asciiUpper(options_.tns),
                                       connectText(options_));
  if (!failures.empty()) failures.push_back({"データベースの接続に失敗しました"});
  require(failures);
}

void ReportRun::loadInstances() {
  connect();
  require(repository_.loadInstances());
}

void ReportRun::loadInstance() {
  loadInstances();
  const clsDbInstance& instances = *repository_.gDbInstance;
  const int instance =
      within(needed(options_.instance, "--instance"), static_cast<int>(instances.rownum()), "instance");
  require(repository_.loadPairs(instances.dbid(instance), instances.INSTANCE_NUMBER(instance), false));
  version_ = majorVersion(instances.VERSION(instance));
  require(versionGate(version_));
  parallel_ = instances.PARALLEL(instance);
  narrow();
}

void ReportRun::narrow() {
  const clsSnapId& pairs = *repository_.gSnapId;
  const int count = static_cast<int>(pairs.rownum());
  if (options_.pair) within(*options_.pair, count, "pair");
  if (!options_.from && !options_.to) return;
  const int from = within(options_.from.value_or(0), count, "pair");
  const int to = within(options_.to.value_or(count - 1), count, "pair");
  if (from > to) throw UsageError("--from lies behind --to");
  if (options_.pair && (*options_.pair < from || *options_.pair > to))
    throw UsageError("--pair lies outside of --from and --to");
  Failures failures;
  repository_.gSnapRange.gSetStartId(pairs, from, failures);
  repository_.gSnapRange.gSetEndId(pairs, to, failures);
  require(failures);
  const PairKeys keys = pairs.keys(0);
  require(repository_.loadPairs(keys.dbid, keys.instanceNumber, true));
}

bool ReportRun::isListed(const Section& section) const {
  return kestrelix::isListed(section, version_, parallel_);
}

/// --pair counts in the whole list.
int ReportRun::pairIndex() const { return needed(options_.pair, "--pair") - options_.from.value_or(0); }

ReportSource ReportRun::source() {
  return {*repository_.gOraDatabase, *repository_.gSnapId, version_, progress_};
}

ReportTable ReportRun::all() {
  if (options_.name.empty()) throw UsageError("name a Section");
  needed(options_.instance, "--instance");
  needed(options_.pair, "--pair");
  loadInstance();
  section_ = findSection(sectionList(), options_.name);
  if (section_ == nullptr || !isListed(*section_))
    throw UsageError("the instance has no Section '" + options_.name + "'");
  return told(readAll(source(), *section_, pairIndex()));
}

int ReportRun::selectedRow(const ReportTable& all) const {
  const int row = needed(options_.row, "--row");
  if (all.rows.empty()) throw UsageError("the view has no rows");
  if (row < 1 || row > static_cast<int>(all.rows.size()))
    throw UsageError("the view has no row " + std::to_string(row) + ", they go from 1 to " +
                     std::to_string(all.rows.size()));
  return row;
}

ReportTable ReportRun::col(const ReportTable& all) {
  const int row = selectedRow(all);
  if (section_->col.kind == ColKey::Kind::Refused) {
    boxes_.show(BoxIcon::Exclamation, kNoSeries, {});
    throw Stopped{};
  }
  return told(readCol(source(), *section_, colRequest(*section_, all, row)));
}

std::string ReportRun::selectedHash(const ReportTable& all) const {
  if (!section_->sqlButtons) throw UsageError("'" + options_.name + "' lists no SQL statements");
  return all.rows.at(static_cast<std::size_t>(selectedRow(all) - 1)).at(kHashColumn);
}

ReportTable ReportRun::sqlText(const ReportTable& all) {
  const std::string hash = selectedHash(all);
  return told(readSqlText(source(), pairIndex(), hash));
}

ReportTable ReportRun::sqlPlan(const ReportTable& all) {
  const std::string hash = selectedHash(all);
  return told(readSqlPlan(source(), pairIndex(), hash));
}

}  // namespace kestrelix::report_tool

#pragma once

#include <string>

#include "navigation/repository.h"
#include "options.h"
#include "output.h"
#include "platform/progress.h"
#include "report/reading.h"

namespace kestrelix::report_tool {

/// One report: connect, load the lists, read views. What went wrong is told as boxes; a step that can't go on
/// ends with Stopped then.
class ReportRun {
 public:
  struct Stopped {};

  ReportRun(StderrBoxes& boxes, const Options& options) : boxes_(boxes), options_(options) {}

  const Repository& repository() const { return repository_; }

  void loadInstances();
  /// The pairs of --instance, narrowed by --from and --to.
  void loadInstance();
  bool isListed(const Section& section) const;

  /// The All view of the Section for --pair.
  ReportTable all();
  /// The series that row --row of that view leads to.
  ReportTable col(const ReportTable& all);
  /// The text, or the plans, of the SQL in row --row of that view, which is a ranking.
  ReportTable sqlText(const ReportTable& all);
  ReportTable sqlPlan(const ReportTable& all);

 private:
  void require(const Failures& failures);
  ReportTable told(ReportTable table);
  void connect();
  void narrow();
  int pairIndex() const;
  int selectedRow(const ReportTable& all) const;
  std::string selectedHash(const ReportTable& all) const;
  ReportSource source();

  StderrBoxes& boxes_;
  const Options& options_;
  Repository repository_;
  Progress progress_;
  std::string version_;
  std::string parallel_;
  const Section* section_ = nullptr;
};

}  // namespace kestrelix::report_tool

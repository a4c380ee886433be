#pragma once

#include <string>
#include <vector>

#include "platform/controls/grid.h"
#include "platform/failure.h"
#include "report/report_table.h"

namespace kestrelix {

/// Makes a statement readable again from its stored pieces: joins them, reduces runs of blanks to one and
/// splits at the line breaks that its author put in. It knows no SQL: literals are treated like the rest.
class clsSQLShaping {
 public:
  /// Takes the pieces, the headings and the first row's keys of a grid of pieces. False after a failure.
  bool Initialize(const Grid& grid, Failures& failures);
  /// The same of a table of pieces.
  bool Initialize(const ReportTable& pieces, Failures& failures);
  /// Makes the lines. False after the failures of the step that failed and of this member.
  bool ExecShaping(Failures& failures);

  /// The pieces, or the lines, under their headings.
  ReportTable pieces() const { return table(pieces_); }
  ReportTable lines() const { return table(lines_); }

  int org_rownum() const { return static_cast<int>(pieces_.size()); }
  const std::string& org_sql_text(int i) const { return pieces_.at(static_cast<std::size_t>(i)); }
  int shp_rownum() const { return static_cast<int>(lines_.size()); }
  const std::string& shp_sql_text(int i) const { return lines_.at(static_cast<std::size_t>(i)); }
  const std::string& Col1Name() const { return headings_.at(0); }
  const std::string& Col2Name() const { return headings_.at(1); }
  const std::string& Col3Name() const { return headings_.at(2); }
  const std::string& Col4Name() const { return headings_.at(3); }
  const std::string& Col1Value() const { return keys_.at(0); }
  const std::string& Col2Value() const { return keys_.at(1); }
  const std::string& Col3Value() const { return keys_.at(2); }

 private:
  template <class Cell>
  bool take(int rows, Cell cell, Failures& failures);
  ReportTable table(const std::vector<std::string>& texts) const;
  void InputSqlJoin();
  void ShapingMain();
  void MakeOutBuffer();

  std::vector<std::string> pieces_;
  std::string joined_;
  std::string shaped_;
  std::vector<std::string> lines_;
  std::vector<std::string> headings_;  // of grid columns 1 to 4
  std::vector<std::string> keys_;      // first row's cells 1 to 3
};

}  // namespace kestrelix

#pragma once

#include <iosfwd>
#include <string>

#include "documents/table.h"
#include "platform/message_box.h"
#include "report/report_table.h"

namespace kestrelix::report_tool {

using documents::Table;

/// The headings and the rows, with the running number as column "NO".
Table cells(const ReportTable& table);

/// As CSV, or as text in columns.
void print(std::ostream& out, const Table& table, bool csv);

/// Boxes as lines of standard error: the icon's name in brackets and the text, then the error behind it.
class StderrBoxes : public MessageBoxes {
 public:
  void show(BoxIcon icon, const std::string& text, const std::string& underlying) override;
  bool critical() const { return critical_; }
  /// Any box at all, a refusal included.
  bool any() const { return any_; }

 private:
  bool critical_ = false;
  bool any_ = false;
};

}  // namespace kestrelix::report_tool

#include "report/clsGraphCommon.h"

#include <algorithm>

#include "platform/guarded.h"
#include "platform/numeric_text.h"

namespace kestrelix {
namespace {

constexpr int kPointsOfPage = 20;
const char* const kClass = "clsGraphCommon";

/// The last column from 1 to `last` with that heading; 0 if there is none.
int headed(const Grid& grid, int last, std::string_view heading) {
  for (int c = last; c >= 1; --c)
    if (grid.TextArray(c) == heading) return c;
  return 0;
}

}  // namespace

bool clsGraphCommon::Initialize(Grid& grid, Chart& chart, Toolbar& toolbar) {
  grid_ = &grid;
  chart_ = &chart;
  toolbar_ = &toolbar;
  pageCount_ = CeilDiv(grid.Rows() - 1, kPointsOfPage);
  currentPage_ = startRow_ = maxRow_ = maxPage_ = maxStartRow_ = 1;
  maxValue_ = Decimal();
  if (!CheckColumn()) return false;
  chart.RowCount(kPointsOfPage);
  chart.ColumnCount(1);
  chart.Column(1);
  FindMaxValue();
  MemoriValues(maxValue_);
  chart.valueScale().Auto = false;
  chart.valueScale().Maximum = axisMaximum_.text();
  chart.valueScale().Minimum = axisMinimum_.text();
  return true;
}

template <class Body>
bool clsGraphCommon::drawn(const char* member, Body&& turn) {
  bool ok = true;
  return guarded(boxes_, kClass, member,
                 [&] {
                   if (turn()) ok = GraphDisp();
                 }) &&
         ok;
}

bool clsGraphCommon::AtferPage() {
  return drawn("AtferPage", [this] {
    // The last page passes too; its button is off there.
    if (currentPage_ > pageCount_) return false;
    ++currentPage_;
    startRow_ += chart_->RowCount();
    return true;
  });
}

bool clsGraphCommon::BeforePage() {
  return drawn("BeforePage", [this] {
    if (currentPage_ <= 1) return false;
    --currentPage_;
    startRow_ -= chart_->RowCount();
    return true;
  });
}

bool clsGraphCommon::StartPage() {
  return drawn("StartPage", [this] {
    currentPage_ = 1;
    startRow_ = 1;
    return true;
  });
}

bool clsGraphCommon::EndPage() {
  return drawn("EndPage", [this] {
    currentPage_ = pageCount_;
    startRow_ = 1 + chart_->RowCount() * (CeilDiv(grid_->Rows() - 1, chart_->RowCount()) - 1);
    return true;
  });
}

bool clsGraphCommon::MaxValuePage() {
  return drawn("MaxValuePage", [this] {
    currentPage_ = maxPage_;
    startRow_ = maxStartRow_;
    return true;
  });
}

void clsGraphCommon::MemoriValues(const Decimal& maxValue) {
  axisMaximum_ = maxValue.isZero() ? Decimal::ofPrefix("1") : maxValue.roundedUpToOneDigit();
  axisMinimum_ = Decimal();
}

bool clsGraphCommon::GraphClear() {
  return guarded(boxes_, kClass, "GraphClear", [this] {
    for (int k = 1; k <= chart_->RowCount(); ++k) {
      chart_->RowLabel(k, "");
      chart_->Row(k);
      chart_->Data("0");
    }
  });
}

bool clsGraphCommon::CtrlButton() {
  return guarded(boxes_, kClass, "CtrlButton", [this] {
    const bool first = currentPage_ == 1;
    const bool last = currentPage_ == pageCount_;
    const bool only = pageCount_ == 1;
    toolbar_->Enabled({"GRAPH_START", "GRAPH_LEFT"}, !only && !first);
    toolbar_->Enabled("GRAPH_DISP", false);
    toolbar_->Enabled("GRAPH_MAX", !only);
    toolbar_->Enabled("LIST", true);
    toolbar_->Enabled({"GRAPH_RIGHT", "GRAPH_END"}, !only && !last);
  });
}

bool clsGraphCommon::GraphDisp() {
  bool ok = true;
  return guarded(boxes_, kClass, "GraphDisp",
                 [&] {
                   const Grid& grid = *grid_;
                   const int column = grid.Col();
                   const int time =
                       std::max(headed(grid, column, "START TIME"), headed(grid, column, "END TIME"));
                   const int pageSize = chart_->RowCount();
                   const int ofLastPage = grid.Rows() - 1 - pageSize * (pageCount_ - 1);
                   const int points =
                       currentPage_ == pageCount_ ? std::clamp(ofLastPage, 1, pageSize) : pageSize;

                   chart_->Visible(false);
                   if (!(ok = GraphClear())) return;
                   chart_->TitleText(grid.TextArray(column) + "[" + std::to_string(currentPage_) + "/" +
                                     std::to_string(pageCount_) + "]");
                   for (int k = 1; k <= points; ++k) {
                     const int row = startRow_ + k - 1;
                     chart_->RowLabel(k, grid.TextMatrix(row, time));
                     const Decimal value = Decimal::ofPrefix(grid.TextMatrix(row, column));
                     chart_->Row(k);
                     chart_->Data(value.isNegative() ? "0" : value.text());
                   }
                   chart_->Visible(true);
                   chart_->Refresh();
                   ok = CtrlButton();
                 }) &&
         ok;
}

bool clsGraphCommon::CheckColumn() {
  const Grid& grid = *grid_;
  const int column = grid.Col();
  const int last = grid.Cols() - 1;
  const auto isNumber = [&](int row) {
    const std::string& text = grid.TextMatrix(row, column);
    return text.empty() || isNumericText(trimBlanks(text));
  };
  bool ok = column > headed(grid, last, "START TIME") && column > headed(grid, last, "END TIME") &&
            grid.TextArray(column) != "STATUS";
  for (int row = 1; ok && row < grid.Rows(); ++row) ok = isNumber(row);
  if (!ok) boxes_.show(BoxIcon::Exclamation, "選択されている項目は不正です");
  return ok;
}

void clsGraphCommon::FindMaxValue() {
  const int pageSize = chart_->RowCount();
  for (int row = 1; row < grid_->Rows(); ++row) {
    const Decimal value = Decimal::ofPrefix(grid_->TextMatrix(row, grid_->Col()));
    if (value > maxValue_) {
      maxValue_ = value;
      maxRow_ = row;
    }
  }
  maxPage_ = CeilDiv(maxRow_, pageSize);
  maxStartRow_ = (maxPage_ - 1) * pageSize + 1;
}

int clsGraphCommon::CeilDiv(int a, int b) { return (a + b - 1) / b; }

}  // namespace kestrelix

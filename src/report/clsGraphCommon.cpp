#include "report/clsGraphCommon.h"

#include <algorithm>

#include "platform/failure.h"

namespace kestrelix {
namespace {

const char* const kClass = "clsGraphCommon";

}  // namespace

bool clsGraphCommon::Initialize(Grid& grid, Chart& chart, Toolbar& toolbar) {
  chart_ = &chart;
  toolbar_ = &toolbar;
  currentPage_ = startPoint_ = 1;
  const auto series = ChartSeries::of(grid, grid.Col());
  if (!series) {
    boxes_.show(BoxIcon::Exclamation, kNoChart);
    return false;
  }
  series_ = *series;
  chart.RowCount(ChartSeries::kPointsOfPage);
  chart.ColumnCount(1);
  chart.Column(1);
  MemoriValues(series_.maximum());
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
    if (currentPage_ > series_.pages()) return false;
    ++currentPage_;
    startPoint_ += chart_->RowCount();
    return true;
  });
}

bool clsGraphCommon::BeforePage() {
  return drawn("BeforePage", [this] {
    if (currentPage_ <= 1) return false;
    --currentPage_;
    startPoint_ -= chart_->RowCount();
    return true;
  });
}

bool clsGraphCommon::StartPage() {
  return drawn("StartPage", [this] {
    currentPage_ = 1;
    startPoint_ = 1;
    return true;
  });
}

bool clsGraphCommon::EndPage() {
  return drawn("EndPage", [this] {
    currentPage_ = series_.pages();
    startPoint_ = 1 + chart_->RowCount() * (series_.pages() - 1);
    return true;
  });
}

bool clsGraphCommon::MaxValuePage() {
  return drawn("MaxValuePage", [this] {
    currentPage_ = series_.pageOfMaximum();
    startPoint_ = 1 + chart_->RowCount() * (currentPage_ - 1);
    return true;
  });
}

void clsGraphCommon::MemoriValues(const Decimal& maxValue) {
  axisMaximum_ = ChartSeries::axisMaximum(maxValue);
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
    const bool last = currentPage_ == series_.pages();
    const bool only = series_.pages() == 1;
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
                   const int pageSize = chart_->RowCount();
                   const int ofLastPage = series_.points() - pageSize * (series_.pages() - 1);
                   const int points =
                       currentPage_ == series_.pages() ? std::clamp(ofLastPage, 1, pageSize) : pageSize;

                   chart_->Visible(false);
                   if (!(ok = GraphClear())) return;
                   chart_->TitleText(series_.title(currentPage_));
                   for (int k = 1; k <= points; ++k) {
                     const int point = startPoint_ + k - 1;
                     chart_->RowLabel(k, series_.label(point));
                     chart_->Row(k);
                     chart_->Data(series_.value(point));
                   }
                   chart_->Visible(true);
                   chart_->Refresh();
                   ok = CtrlButton();
                 }) &&
         ok;
}

}  // namespace kestrelix

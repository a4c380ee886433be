#pragma once

#include "platform/controls.h"
#include "platform/message_box.h"
#include "report/chart_series.h"

namespace kestrelix {

/// Draws the current column of a Col view as a chart, a page of 20 pairs at a time, and says which of the
/// toolbar's chart buttons are of use on the page. It reads nothing but the grid.
class clsGraphCommon {
 public:
  explicit clsGraphCommon(MessageBoxes& boxes) : boxes_(boxes) {}

  /// Takes the column that is current now. False, after a box, for a column that is no series of numbers; the
  /// chart stays as it was then.
  bool Initialize(Grid& grid, Chart& chart, Toolbar& toolbar);

  // Each draws another page. False after a box.
  bool AtferPage();
  bool BeforePage();
  bool StartPage();
  bool EndPage();
  /// The page with the largest value, the first of equal ones.
  bool MaxValuePage();

  /// Sets the value axis for a largest value: from 0 up to the next number of one digit, 1 for 0.
  void MemoriValues(const Decimal& maxValue);

 private:
  bool GraphClear();
  bool CtrlButton();
  bool GraphDisp();
  template <class Body>
  bool drawn(const char* member, Body&& turn);

  MessageBoxes& boxes_;
  Chart* chart_ = nullptr;
  Toolbar* toolbar_ = nullptr;
  ChartSeries series_;
  int currentPage_ = 1;
  int startPoint_ = 1;
  Decimal axisMaximum_;
  Decimal axisMinimum_;
};

}  // namespace kestrelix

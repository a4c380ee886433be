#pragma once

#include <QWidget>

#include "platform/qt/mirror.h"

namespace kestrelix {

/// The place of the chart in its frame. It takes the mouse on itself.
class ChartView final : public QWidget {
 public:
  ChartView(Chart& chart, const QFont& font, QWidget* parent);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
};

}  // namespace kestrelix

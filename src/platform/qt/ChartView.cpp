#include "platform/qt/ChartView.h"

#include <QMouseEvent>

namespace kestrelix {

ChartView::ChartView(Chart& chart, const QFont& font, QWidget* parent) : QWidget(parent) {
  named(*this, chart);
  setFont(font);
  new Mirror(
      chart, [this, &chart] { setVisible(chart.Visible()); }, this);
}

void ChartView::mousePressEvent(QMouseEvent* event) { event->accept(); }
void ChartView::mouseDoubleClickEvent(QMouseEvent* event) { event->accept(); }

}  // namespace kestrelix

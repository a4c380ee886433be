#include "desktop/ChartView.h"

#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include "platform/chart_drawing.h"

namespace kestrelix {
namespace {

const QColor kBarColour(0x2f, 0x6f, 0xa8);
const QColor kGridColour(0xd8, 0xd8, 0xd8);
const QColor kTextColour(0x35, 0x35, 0x35);

}  // namespace

ChartView::ChartView(Chart& chart, const QFont& font, QWidget* parent)
    : QChartView(parent),
      control_(chart),
      bars_(new QBarSet(QString())),
      points_(new QBarCategoryAxis),
      values_(new QValueAxis) {
  named(*this, chart);
  setFont(font);
  QChart& drawing = *this->chart();
  drawing.legend()->hide();
  drawing.setAnimationOptions(QChart::NoAnimation);
  drawing.setBackgroundRoundness(0);
  drawing.setTheme(QChart::ChartThemeLight);
  drawing.setTitleFont(font);
  const int line = QFontMetrics(font).height();
  drawing.setMargins(QMargins(8, 4, 16, 2 * line + 8));

  auto* series = new QBarSeries;
  series->setBarWidth(0.7);
  bars_->setColor(kBarColour);
  bars_->setBorderColor(kBarColour);
  series->append(bars_);
  drawing.addSeries(series);
  points_->setLabelsVisible(false);
  points_->setGridLineVisible(false);
  drawing.addAxis(points_, Qt::AlignBottom);
  series->attachAxis(points_);
  values_->setLabelsFont(font);
  values_->setGridLineColor(kGridColour);
  drawing.addAxis(values_, Qt::AlignLeft);
  series->attachAxis(values_);

  viewport()->setMouseTracking(true);
  setFocusPolicy(Qt::NoFocus);
  new Mirror(
      chart, [this] { draw(); }, this);
}

void ChartView::draw() {
  setVisible(control_.Visible());
  if (!control_.Visible()) return;
  QList<qreal> heights;
  for (int k = 1; k <= control_.RowCount(); ++k) heights.append(text(control_.dataOf(k)).toDouble());
  if (bars_->count() != heights.size()) {
    bars_->remove(0, bars_->count());
    bars_->append(heights);
    // Categories must differ, and labels need not: these are numbers, and the labels are drawn over them.
    QStringList numbers;
    for (int k = 1; k <= control_.RowCount(); ++k) numbers.append(QString::number(k));
    points_->setCategories(numbers);
  } else {
    for (int i = 0; i < heights.size(); ++i) bars_->replace(i, heights[i]);
  }
  chart()->setTitle(text(control_.TitleText()));
  drawAxis();
  setAccessibleDescription(text(control_.TitleText()));
  viewport()->update();
}

void ChartView::drawAxis() {
  const Chart::ValueScale& scale = control_.valueScale();
  const AxisSteps steps = axisSteps(scale.Maximum);
  values_->setRange(text(scale.Minimum).toDouble(), text(scale.Maximum).toDouble());
  values_->setTickCount(steps.count + 1);
  values_->setLabelFormat(QStringLiteral("%.%1f").arg(steps.decimals));
}

void ChartView::drawForeground(QPainter* painter, const QRectF& rectangle) {
  QChartView::drawForeground(painter, rectangle);
  if (control_.RowCount() == 0) return;
  const QRectF area = plot();
  const qreal width = area.width() / control_.RowCount();
  const qreal line = QFontMetrics(font()).height();
  painter->setFont(font());
  painter->setPen(kTextColour);
  for (int k = 1; k <= control_.RowCount(); ++k) {
    qreal y = area.bottom() + 6;
    for (const std::string& part : labelLines(control_.RowLabel(k))) {
      painter->drawText(QRectF(area.left() + (k - 1) * width - 10, y, width + 20, line), Qt::AlignHCenter,
                        text(part));
      y += line;
    }
  }
}

/// The point whose column the place is in, from 1, or 0 beside the points.
int ChartView::pointAt(const QPointF& place) const {
  const QRectF area = plot();
  if (control_.RowCount() == 0 || !area.contains(place)) return 0;
  const int k = 1 + static_cast<int>((place.x() - area.left()) * control_.RowCount() / area.width());
  return k <= control_.RowCount() && !control_.RowLabel(k).empty() ? k : 0;
}

bool ChartView::viewportEvent(QEvent* event) {
  if (event->type() == QEvent::MouseMove) {
    const auto* move = static_cast<QMouseEvent*>(event);
    const int k = pointAt(mapToScene(move->pos()));
    if (k == 0)
      QToolTip::hideText();
    else
      QToolTip::showText(move->globalPosition().toPoint(),
                         text(control_.RowLabel(k)) + '\n' + text(control_.dataOf(k)), this);
  }
  return QChartView::viewportEvent(event);
}

/// A scroll area lets the clicks on itself through to its parent.
bool ChartView::event(QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
      event->accept();
      return true;
    default:
      return QChartView::event(event);
  }
}

void ChartView::wheelEvent(QWheelEvent* event) { event->ignore(); }

}  // namespace kestrelix

#include "desktop/QtProgress.h"

#include <QGuiApplication>
#include <QPainter>

#include "desktop/grid_style.h"

namespace kestrelix {
namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 300ms;
constexpr auto kBetweenPaintings = 40ms;  // a series of short statements must not wait for the screen
constexpr int kHeight = 17;               // pixels
const QColor kFill(0xb9, 0xd3, 0xee);
const QColor kRest(0xff, 0xff, 0xff);

}  // namespace

PairBar::PairBar(QWidget& grid) : QWidget(grid.window()), grid_(grid) {
  setObjectName("PairBar");
  setAccessibleName("PairBar");
  setAttribute(Qt::WA_OpaquePaintEvent);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFont(grid.font());
  hide();
}

void PairBar::display(int pair, int pairs) {
  pair_ = pair;
  pairs_ = pairs;
  const QPoint corner = grid_.mapTo(window(), QPoint(0, grid_.height() - kHeight));
  setGeometry(QRect(corner, QSize(grid_.width(), kHeight)));
  raise();
  show();
  repaint();
}

void PairBar::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect inner = rect().adjusted(1, 1, -1, -1);
  painter.fillRect(rect(), grid_style::kFrameLine);
  painter.fillRect(inner, kRest);
  if (pairs_ > 0)
    painter.fillRect(QRectF(inner.left(), inner.top(), 1.0 * inner.width() * pair_ / pairs_, inner.height()),
                     kFill);
  painter.setPen(grid_style::kText);
  painter.drawText(inner, Qt::AlignCenter, QStringLiteral("%1 / %2").arg(pair_).arg(pairs_));
}

void QtProgress::begin() {
  if (depth_++ > 0) return;
  begun_ = clock_();
  QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

bool QtProgress::step(std::int64_t pair, std::int64_t pairs) {
  show(static_cast<int>(pair), static_cast<int>(pairs));
  return true;
}

void QtProgress::show(int pair, int pairs) {
  if (!bar_ || depth_ == 0) return;
  const Time now = clock_();
  if (now - begun_ < kPatience) return;
  if (bar_->isVisible() && now - painted_ < kBetweenPaintings) return;
  painted_ = now;
  bar_->display(pair, pairs);
}

void QtProgress::end() {
  if (--depth_ > 0) return;
  QGuiApplication::restoreOverrideCursor();
  if (bar_) bar_->hide();
}

}  // namespace kestrelix

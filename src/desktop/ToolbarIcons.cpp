#include "desktop/ToolbarIcons.h"

#include <QGuiApplication>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>

namespace kestrelix {
namespace {

/// The two colours that a picture is drawn with.
struct Inks {
  QColor line;
  QColor accent;
};

/// Draws on a field of 16 by 16.
using Picture = void (*)(QPainter&, const Inks&);

void triangle(QPainter& p, const QColor& ink, qreal tip, qreal base) {
  p.setPen(Qt::NoPen);
  p.setBrush(ink);
  p.drawPolygon(QPolygonF({{tip, 8}, {base, 3}, {base, 13}}));
}

void bar(QPainter& p, const QColor& ink, qreal x, qreal y, qreal width, qreal height) {
  p.fillRect(QRectF(x, y, width, height), ink);
}

void axes(QPainter& p, const Inks& inks) {
  bar(p, inks.line, 2, 2, 1, 12);
  bar(p, inks.line, 2, 13, 12.5, 1);
}

void grid(QPainter& p, const Inks& inks) {
  bar(p, inks.accent, 2, 3, 12, 3);
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(inks.line, 1));
  p.drawRect(QRectF(1.5, 2.5, 13, 11));
  for (const qreal y : {6.5, 10.0}) p.drawLine(QPointF(1.5, y), QPointF(14.5, y));
  for (const qreal x : {5.5, 10.5}) p.drawLine(QPointF(x, 2.5), QPointF(x, 13.5));
}

/// A sheet with a folded corner and lines of text.
void sheet(QPainter& p, const Inks& inks) {
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(inks.line, 1));
  p.drawPolygon(QPolygonF({{3.5, 1.5}, {9.5, 1.5}, {12.5, 4.5}, {12.5, 14.5}, {3.5, 14.5}}));
  p.drawPolyline(QPolygonF({{9.5, 1.5}, {9.5, 4.5}, {12.5, 4.5}}));
  for (const auto& [x, y, width] :
       {std::tuple{5.0, 6.0, 3.0}, {6.0, 8.0, 5.0}, {6.0, 10.0, 4.0}, {5.0, 12.0, 5.0}})
    bar(p, inks.accent, x, y, width, 1);
}

/// The steps of a plan as a tree.
void tree(QPainter& p, const Inks& inks) {
  bar(p, inks.line, 4, 5, 1, 8);
  bar(p, inks.line, 4, 7.5, 4, 1);
  bar(p, inks.line, 4, 12.5, 4, 1);
  bar(p, inks.accent, 2, 2, 5, 3);
  bar(p, inks.accent, 8, 6.5, 6, 3);
  bar(p, inks.accent, 8, 11.5, 6, 3);
}

void toStart(QPainter& p, const Inks& inks) {
  bar(p, inks.line, 2, 3, 1.5, 10);
  triangle(p, inks.accent, 4, 9);
  triangle(p, inks.accent, 9, 14);
}
void toLeft(QPainter& p, const Inks& inks) { triangle(p, inks.accent, 4, 11); }
void toRight(QPainter& p, const Inks& inks) { triangle(p, inks.accent, 12, 5); }
void toEnd(QPainter& p, const Inks& inks) {
  triangle(p, inks.accent, 7, 2);
  triangle(p, inks.accent, 12, 7);
  bar(p, inks.line, 12.5, 3, 1.5, 10);
}

void curve(QPainter& p, const Inks& inks) {
  axes(p, inks);
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(inks.accent, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  p.drawPolyline(QPolygonF({{4.5, 11}, {7, 7.5}, {9.5, 9.5}, {13.5, 3.5}}));
}

/// Columns, the highest of them marked.
void highest(QPainter& p, const Inks& inks) {
  axes(p, inks);
  bar(p, inks.line, 4, 9, 2, 4);
  bar(p, inks.accent, 7.5, 5, 2, 8);
  bar(p, inks.line, 11, 8, 2, 5);
  p.setPen(Qt::NoPen);
  p.setBrush(inks.accent);
  p.drawPolygon(QPolygonF({{8.5, 3.8}, {6.3, 1.2}, {10.7, 1.2}}));
}

void list(QPainter& p, const Inks& inks) {
  for (const qreal y : {3.0, 7.0, 11.0}) {
    bar(p, inks.accent, 2, y, 2, 2);
    bar(p, inks.line, 6, y + 0.5, 8, 1);
  }
}

void copies(QPainter& p, const Inks& inks) {
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(inks.line, 1));
  p.drawPolyline(QPolygonF({{4.5, 10.5}, {2.5, 10.5}, {2.5, 1.5}, {9.5, 1.5}, {9.5, 3.5}}));
  p.setPen(QPen(inks.accent, 1));
  p.drawRect(QRectF(5.5, 4.5, 8, 10));
  for (const qreal y : {7.0, 9.0, 11.0}) bar(p, inks.accent, 7.5, y, 4, 1);
}

void question(QPainter& p, const Inks& inks) {
  p.setPen(Qt::NoPen);
  p.setBrush(inks.accent);
  p.drawEllipse(QRectF(1.5, 1.5, 13, 13));
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(Qt::white, 1.6, Qt::SolidLine, Qt::RoundCap));
  QPainterPath hook(QPointF(6, 6.3));
  hook.cubicTo(6, 3.6, 10.2, 3.6, 10.2, 6.2);
  hook.cubicTo(10.2, 7.8, 8.1, 7.8, 8.1, 9.6);
  p.drawPath(hook);
  p.drawPoint(QPointF(8.1, 11.8));
}

const QHash<QString, Picture>& pictures() {
  static const QHash<QString, Picture> all{{"IMG1", grid},     {"IMG2", sheet},  {"IMG3", tree},
                                           {"IMG11", toStart}, {"IMG6", toLeft}, {"IMG7", curve},
                                           {"IMG12", highest}, {"IMG10", list},  {"IMG8", toRight},
                                           {"IMG13", toEnd},   {"IMG5", copies}, {"IMG15", question}};
  return all;
}

Inks inks(QIcon::Mode mode) {
  const QPalette palette = QGuiApplication::palette();
  const QColor ground = palette.color(QPalette::Button);
  const bool dark = ground.lightness() < 128;
  if (mode == QIcon::Disabled) {
    const QColor faint = dark ? ground.lighter(170) : ground.darker(130);
    return {faint, faint};
  }
  return dark ? Inks{QColor(0xd8, 0xdd, 0xe3), QColor(0x7f, 0xb2, 0xea)}
              : Inks{QColor(0x3a, 0x44, 0x50), QColor(0x2f, 0x65, 0xa7)};
}

class Engine final : public QIconEngine {
 public:
  explicit Engine(Picture picture) : picture_(picture) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(rect.topLeft());
    painter->scale(rect.width() / 16.0, rect.height() / 16.0);
    picture_(*painter, inks(mode));
    painter->restore();
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect({0, 0}, size), mode, state);
    return pixmap;
  }
  QIconEngine* clone() const override { return new Engine(*this); }

 private:
  Picture picture_;
};

}  // namespace

QIcon toolbarIcon(const QString& image) {
  const Picture picture = pictures().value(image, nullptr);
  return picture == nullptr ? QIcon() : QIcon(new Engine(picture));
}

}  // namespace kestrelix

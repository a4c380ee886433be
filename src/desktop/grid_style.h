// The look of grids and lists: their own light colours on every desktop, so that the two views of a report
// can be told apart, and the painting of cells and headings.
#pragma once

#include <QAbstractScrollArea>
#include <QColor>
#include <QHeaderView>
#include <QPainter>
#include <QStyledItemDelegate>
#include <functional>

#include "platform/controls/control.h"

namespace kestrelix::grid_style {

inline constexpr int kMargin = 3;  // pixels at the left and right of a text
inline constexpr int kFrame = 1;   // pixels around a grid or list
inline const QColor kText(0x1c, 0x1c, 0x1c);
inline const QColor kBase(0xff, 0xff, 0xff);
inline const QColor kEmptyArea(0xf6, 0xf6, 0xf6);
inline const QColor kHeading(0xe4, 0xe9, 0xf0);
inline const QColor kLine(0xcc, 0xcf, 0xd4);
inline const QColor kHeadingLine(0xb4, 0xbc, 0xc8);
inline const QColor kFrameLine(0xb4, 0xbc, 0xc8);
inline const QColor kScrollBar(0xd3, 0xd9, 0xe2);
inline const QColor kSelection(0x2f, 0x65, 0xa7);
inline const QColor kSelectedText(0xff, 0xff, 0xff);

/// Gives a grid or list its frame and light colours, its scroll bars too.
void dress(QAbstractScrollArea& view);

/// A colour of the controls as one of the screen.
QColor colour(Colour bgr);

/// Paints a cell: text in one line, a line right and below, the current cell, which `current` tells, with an
/// edge.
class CellDelegate final : public QStyledItemDelegate {
 public:
  CellDelegate(std::function<QModelIndex()> current, QObject* parent)
      : QStyledItemDelegate(parent), current_(std::move(current)) {}
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 private:
  std::function<QModelIndex()> current_;
};

/// Paints an entry of a list, its text beginning kMargin pixels in, in rows of a height in pixels.
class EntryDelegate final : public QStyledItemDelegate {
 public:
  EntryDelegate(int height, QObject* parent) : QStyledItemDelegate(parent), height_(height) {}
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 private:
  int height_;
};

/// The headings of a grid, flat.
class Headings final : public QHeaderView {
 public:
  using QHeaderView::QHeaderView;

 protected:
  void paintSection(QPainter* painter, const QRect& rect, int section) const override;
};

void paintHeading(QPainter& painter, const QRect& rect, const QString& text, Qt::Alignment alignment);

}  // namespace kestrelix::grid_style

#include "desktop/grid_style.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QItemSelectionModel>
#include <QScrollBar>

namespace kestrelix::grid_style {
namespace {

/// Is the selection more than the current cell?
bool manySelected(const QStyleOptionViewItem& option) {
  const auto* view = qobject_cast<const QAbstractItemView*>(option.widget);
  if (view == nullptr || view->selectionModel() == nullptr) return false;
  const QItemSelection selection = view->selectionModel()->selection();
  return !selection.isEmpty() &&
         (selection.size() > 1 || selection.first().width() * selection.first().height() > 1);
}

void drawEdges(QPainter& painter, const QRect& rect, const QColor& colour) {
  painter.setPen(colour);
  painter.drawLine(rect.topRight(), rect.bottomRight());
  painter.drawLine(rect.bottomLeft(), rect.bottomRight());
}

void drawText(QPainter& painter, const QRect& rect, Qt::Alignment alignment, const QString& text) {
  // The narrowest columns leave six pixels beside their text, one of them for the line.
  painter.drawText(rect.adjusted(kMargin, 0, 1 - kMargin, 0),
                   static_cast<int>(alignment) | Qt::TextSingleLine, text);
}

}  // namespace

void dress(QAbstractScrollArea& view) {
  view.setFrameShape(QFrame::Box);
  view.setFrameShadow(QFrame::Plain);
  view.setLineWidth(kFrame);
  QPalette colours = view.palette();
  colours.setColor(QPalette::Base, kBase);
  colours.setColor(QPalette::Text, kText);
  colours.setColor(QPalette::Window, kEmptyArea);  // the corner between the scroll bars
  colours.setColor(QPalette::WindowText, kFrameLine);
  view.setPalette(colours);
  QPalette bars(kScrollBar, kEmptyArea);
  for (QScrollBar* bar : {view.verticalScrollBar(), view.horizontalScrollBar()}) bar->setPalette(bars);
}

QColor colour(Colour bgr) {
  if (bgr == kWindowColour) return kBase;
  return QColor(static_cast<int>(bgr & 0xFF), static_cast<int>((bgr >> 8) & 0xFF),
                static_cast<int>((bgr >> 16) & 0xFF));
}

void CellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
  const bool current = index == current_();
  const bool highlighted = option.state.testFlag(QStyle::State_Selected) && !current && manySelected(option);
  painter->save();
  painter->setClipRect(option.rect);
  painter->fillRect(option.rect, highlighted ? kSelection : option.palette.color(QPalette::Base));
  drawEdges(*painter, option.rect, kLine);
  painter->setFont(option.font);
  painter->setPen(highlighted ? kSelectedText : kText);
  drawText(*painter, option.rect.adjusted(0, 0, -1, -1),
           index.data(Qt::TextAlignmentRole).value<Qt::Alignment>(), index.data().toString());
  if (current) {
    painter->setPen(kSelection);
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(option.rect.adjusted(0, 0, -2, -2));
  }
  painter->restore();
}

void EntryDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const {
  const bool selected = option.state.testFlag(QStyle::State_Selected);
  painter->save();
  painter->fillRect(option.rect, selected ? kSelection : option.palette.color(QPalette::Base));
  painter->setFont(option.font);
  painter->setPen(selected ? kSelectedText : kText);
  painter->drawText(option.rect.adjusted(kMargin, 0, 0, 0), Qt::AlignVCenter | Qt::TextSingleLine,
                    index.data().toString());
  painter->restore();
}

QSize EntryDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  return {QFontMetrics(option.font).horizontalAdvance(index.data().toString()) + kMargin, height_};
}

void paintHeading(QPainter& painter, const QRect& rect, const QString& text, Qt::Alignment alignment) {
  painter.save();
  painter.setClipRect(rect);
  painter.fillRect(rect, kHeading);
  drawEdges(painter, rect, kHeadingLine);
  painter.setPen(kText);
  drawText(painter, rect.adjusted(0, 0, -1, -1), alignment, text);
  painter.restore();
}

void Headings::paintSection(QPainter* painter, const QRect& rect, int section) const {
  if (!rect.isValid()) return;
  painter->setFont(font());
  paintHeading(*painter, rect, model()->headerData(section, orientation()).toString(),
               model()->headerData(section, orientation(), Qt::TextAlignmentRole).value<Qt::Alignment>());
}

}  // namespace kestrelix::grid_style

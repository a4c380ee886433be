#include "desktop/lists.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QWheelEvent>

#include "desktop/grid_style.h"

namespace kestrelix {
namespace {

constexpr int kEntriesShown = 20;
constexpr int kListSpacing = 1;  // pixels of an entry beside its font
constexpr int kPopupSpacing = 4;

}  // namespace

void ListModel::reload() {
  beginResetModel();
  rows_ = list_.ListCount();
  endResetModel();
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole || index.row() >= list_.ListCount()) return {};
  return text(list_.List(index.row()));
}

int ListBoxView::textIndent() { return grid_style::kFrame + grid_style::kMargin; }

ListBoxView::ListBoxView(ListBox& list, const QFont& font, QWidget* parent)
    : QListView(parent),
      list_(list),
      model_(new ListModel(list, this)),
      rowHeight_(font.pixelSize() + kListSpacing) {
  named(*this, list);
  setFont(font);
  setModel(model_);
  setItemDelegate(new grid_style::EntryDelegate(rowHeight_, this));
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  grid_style::dress(*this);
  setBackgroundRole(QPalette::Base);  // below the last entry too
  setForegroundRole(QPalette::WindowText);
  setAutoFillBackground(true);
  new Mirror(
      list, [this] { refresh(); }, this);
}

void ListBoxView::refresh() {
  if (shownEntries_ != list_.entries()) {
    shownEntries_ = list_.entries();
    model_->reload();
  }
  setVisible(list_.Visible());
  const QModelIndex selected = model_->index(list_.ListIndex());
  if (!selected.isValid()) return selectionModel()->clear();
  if (selectionModel()->currentIndex() != selected || !selectionModel()->isSelected(selected))
    selectionModel()->setCurrentIndex(selected, QItemSelectionModel::ClearAndSelect);
}

/// Only whole entries show: what is left below them stays empty.
void ListBoxView::resizeEvent(QResizeEvent* event) {
  const int inner = height() - 2 * frameWidth();
  setViewportMargins(0, 0, 0, inner > rowHeight_ ? inner % rowHeight_ : 0);
  QListView::resizeEvent(event);
}

void ListBoxView::choose(const QModelIndex& index) {
  if (index.isValid() && index.row() < list_.ListCount()) list_.ListIndex(index.row());
}

void ListBoxView::mouseReleaseEvent(QMouseEvent* event) {
  QListView::mouseReleaseEvent(event);
  if (event->button() == Qt::LeftButton && indexAt(event->position().toPoint()).isValid())
    choose(currentIndex());
  else
    refresh();  // a press that was let go beside the entries has chosen nothing
}

void ListBoxView::keyPressEvent(QKeyEvent* event) {
  // The space bar would look for the next entry that begins with a blank, as those of the pairs do.
  if (event->matches(QKeySequence::Copy) || event->key() == Qt::Key_Space) return event->accept();
  const QModelIndex before = currentIndex();
  QListView::keyPressEvent(event);
  if (currentIndex() != before) choose(currentIndex());
}

/// At its end the list keeps the turn, so that it doesn't go on to the grid.
void ListBoxView::wheelEvent(QWheelEvent* event) {
  QListView::wheelEvent(event);
  event->accept();
}

ComboBoxView::ComboBoxView(ComboBox& combo, const QFont& font, QWidget* parent)
    : QComboBox(parent), combo_(combo), model_(new ListModel(combo, this)) {
  named(*this, combo);
  setFont(font);
  auto* entries = new QListView(this);
  entries->setFont(font);
  setView(entries);
  setModel(model_);
  entries->setItemDelegate(new grid_style::EntryDelegate(font.pixelSize() + kPopupSpacing, this));
  grid_style::dress(*entries);
  entries->setFrameShape(QFrame::NoFrame);  // the window around it has one
  setMaxVisibleItems(kEntriesShown);
  connect(this, &QComboBox::activated, this, [this](int index) {
    if (index >= 0 && index < combo_.ListCount()) combo_.ListIndex(index);
  });
  new Mirror(
      combo, [this] { refresh(); }, this);
}

void ComboBoxView::refresh() {
  if (shownEntries_ != combo_.entries()) {
    shownEntries_ = combo_.entries();
    model_->reload();
  }
  setVisible(combo_.Visible());
  setCurrentIndex(combo_.ListIndex());
}

/// The text begins where the heading above it does.
void ComboBoxView::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionComboBox option;
  initStyleOption(&option);
  painter.drawComplexControl(QStyle::CC_ComboBox, option);
  QRect field = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
  field.setLeft(ListBoxView::textIndent());
  painter.setPen(palette().color(QPalette::ButtonText));
  painter.drawText(field, Qt::AlignVCenter | Qt::TextSingleLine, currentText());
}

void ComboBoxView::wheelEvent(QWheelEvent* event) { event->ignore(); }

}  // namespace kestrelix

#include "desktop/GridView.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include "desktop/grid_style.h"

namespace kestrelix {
namespace {

constexpr int kRowSpacing = 3;  // pixels of a row beside its font

/// While it lives, changes come from the grid and not from the user.
class Flag {
 public:
  explicit Flag(bool& flag) : flag_(flag), before_(flag) { flag_ = true; }
  ~Flag() { flag_ = before_; }
  Flag(const Flag&) = delete;
  Flag& operator=(const Flag&) = delete;

 private:
  bool& flag_;
  bool before_;
};

}  // namespace

GridView::GridView(Grid& grid, const QFont& font, QWidget* parent)
    : QTableView(parent),
      grid_(grid),
      model_(new GridModel(grid, this)),
      rowHeight_(QFontMetrics(font).height() > font.pixelSize() + kRowSpacing
                     ? QFontMetrics(font).height()
                     : font.pixelSize() + kRowSpacing) {
  named(*this, grid);
  setFont(font);
  setModel(model_);
  setItemDelegate(new grid_style::CellDelegate(
      // Where a selection began: the row and column that a report is asked for.
      [this] { return cell(grid_.Row(), grid_.Col()); }, this));
  setSelectionMode(ContiguousSelection);
  setSelectionBehavior(SelectItems);
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setShowGrid(false);
  grid_style::dress(*this);
  setVerticalScrollMode(ScrollPerItem);
  setHorizontalScrollMode(ScrollPerPixel);
  setUpHeadings();
  connectUser();
  new Mirror(
      grid, [this] { refresh(); }, this);
}

void GridView::setUpHeadings() {
  setHorizontalHeader(new grid_style::Headings(Qt::Horizontal, this));
  setVerticalHeader(new grid_style::Headings(Qt::Vertical, this));
  for (QHeaderView* headings : {horizontalHeader(), verticalHeader()}) {
    headings->setFont(font());
    headings->setMinimumSectionSize(1);
    headings->setSectionResizeMode(QHeaderView::Fixed);
    headings->setSectionsClickable(true);
    headings->setHighlightSections(false);
    QPalette beside = headings->palette();
    for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button})
      beside.setColor(role, grid_style::kEmptyArea);
    headings->setPalette(beside);
    headings->setAutoFillBackground(true);
    headings->viewport()->setPalette(beside);
  }
  verticalHeader()->setDefaultSectionSize(rowHeight_);
  horizontalHeader()->setFixedHeight(rowHeight_);
  if (auto* corner = findChild<QAbstractButton*>()) corner->installEventFilter(this);
  verticalScrollBar()->installEventFilter(this);
}

void GridView::connectUser() {
  connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { takeSelection(); });
  connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int value) {
    if (!mirroring_) grid_.TopRow(value + model_->fixedRows());
  });
  connect(this, &QTableView::clicked, this, [this](const QModelIndex& index) {
    if (QApplication::keyboardModifiers().testFlag(Qt::ShiftModifier)) return grid_.Click();
    grid_.userClick(index.row() + model_->fixedRows(), index.column() + model_->fixedCols());
  });
  connect(this, &QTableView::doubleClicked, this, [this](const QModelIndex& index) {
    grid_.userDoubleClick(index.row() + model_->fixedRows(), index.column() + model_->fixedCols());
  });
  connect(verticalHeader(), &QHeaderView::sectionDoubleClicked, this,
          [this](int row) { grid_.userDoubleClick(row + model_->fixedRows(), 0); });
}

void GridView::refresh() {
  const Flag flag(mirroring_);
  if (shownContents_ != grid_.contents()) {
    shownContents_ = grid_.contents();
    model_->reload();
    for (int c = 0; c < model_->columnCount(); ++c)
      horizontalHeader()->resizeSection(c, pixels(grid_.ColWidth(c + model_->fixedCols())));
    verticalHeader()->setVisible(model_->fixedCols() > 0);
    if (model_->fixedCols() > 0) verticalHeader()->setFixedWidth(pixels(grid_.ColWidth(0)));
  }
  showColours();
  setVisible(grid_.Visible());
  updateGeometries();
  takePage();
  showSelection();
  showTopRow();
  viewport()->update();
}

void GridView::showColours() {
  QPalette colours = palette();
  colours.setColor(QPalette::Base, grid_style::colour(grid_.BackColor()));
  setPalette(colours);
  QPalette area = viewport()->palette();
  area.setColor(QPalette::Base, grid_style::kEmptyArea);
  viewport()->setPalette(area);
}

QModelIndex GridView::cell(int row, int col) const {
  return model_->index(row - model_->fixedRows(), std::max(0, col - model_->fixedCols()));
}

void GridView::showSelection() {
  const QModelIndex current = cell(grid_.Row(), grid_.Col());
  if (!current.isValid()) return;
  const QModelIndex other = cell(grid_.RowSel(), grid_.ColSel());
  const bool scrolls = hasAutoScroll();
  setAutoScroll(false);
  anchor_ = current;
  const QModelIndex& far = other.isValid() ? other : current;
  const QItemSelection rectangle(
      model_->index(std::min(current.row(), far.row()), std::min(current.column(), far.column())),
      model_->index(std::max(current.row(), far.row()), std::max(current.column(), far.column())));
  // While the user draws a selection its moving end is the view's current cell: that stays.
  const QModelIndex shown = selectionModel()->currentIndex();
  if (selectionModel()->selection() != rectangle || !rectangle.contains(shown)) {
    setCurrentIndex(current);
    selectionModel()->select(rectangle, QItemSelectionModel::ClearAndSelect);
  }
  setAutoScroll(scrolls);
}

void GridView::showTopRow() { verticalScrollBar()->setValue(grid_.TopRow() - model_->fixedRows()); }

/// The grid's current cell is where the selection began, its other end where the user is now.
void GridView::takeSelection() {
  if (mirroring_) return;
  const QItemSelection selection = selectionModel()->selection();
  if (selection.isEmpty()) {  // a press beside the cells
    const Flag flag(mirroring_);
    return showSelection();
  }
  QItemSelectionRange all = selection.first();
  for (const QItemSelectionRange& range : selection)
    all = QItemSelectionRange(
        model_->index(std::min(all.top(), range.top()), std::min(all.left(), range.left())),
        model_->index(std::max(all.bottom(), range.bottom()), std::max(all.right(), range.right())));
  const bool single = all.width() == 1 && all.height() == 1;
  const bool atCorner = anchor_.isValid() && (anchor_.row() == all.top() || anchor_.row() == all.bottom()) &&
                        (anchor_.column() == all.left() || anchor_.column() == all.right());
  if (single || !atCorner) anchor_ = model_->index(all.top(), all.left());
  const int row = model_->fixedRows();
  const int col = model_->fixedCols();
  grid_.select(anchor_.row() + row, anchor_.column() + col,
               (anchor_.row() == all.top() ? all.bottom() : all.top()) + row,
               (anchor_.column() == all.left() ? all.right() : all.left()) + col);
}

void GridView::takePage() {
  if (viewport()->height() >= rowHeight_) grid_.PageRows(viewport()->height() / rowHeight_);
}

void GridView::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  const Flag flag(mirroring_);
  takePage();
}

void GridView::keyPressEvent(QKeyEvent* event) {
  const bool copies = event->matches(QKeySequence::Copy);
  if (keyDown(event->key(), shiftState(event->modifiers())) || copies) return event->accept();
  QTableView::keyPressEvent(event);
}

/// Turns of the wheel belong to the window; a sideways one scrolls the grid.
void GridView::wheelEvent(QWheelEvent* event) {
  if (std::abs(event->angleDelta().x()) > std::abs(event->angleDelta().y()))
    return QTableView::wheelEvent(event);
  event->ignore();
}

bool GridView::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::Wheel && object == verticalScrollBar()) {
    event->ignore();
    return true;
  }
  if (event->type() == QEvent::Paint && qobject_cast<QAbstractButton*>(object) != nullptr) {
    paintCorner(*static_cast<QWidget*>(object));
    return true;
  }
  return QTableView::eventFilter(object, event);
}

void GridView::paintCorner(QWidget& corner) const {
  QPainter painter(&corner);
  painter.setFont(font());
  grid_style::paintHeading(painter, corner.rect(), model_->cornerText(), Qt::AlignVCenter | Qt::AlignRight);
}

}  // namespace kestrelix

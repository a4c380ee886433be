#pragma once

#include <QTableView>
#include <functional>

#include "desktop/GridModel.h"
#include "desktop/mirror.h"

namespace kestrelix {

/// The widget of a Grid: heading row and column stand still, the selection is one rectangle, by mouse or
/// keyboard, and the wheel is left to the window.
class GridView final : public QTableView {
 public:
  GridView(Grid& grid, const QFont& font, QWidget* parent);

  /// A key with its shift state, ahead of the grid's own keys; true if it has acted.
  std::function<bool(int keyCode, int shift)> keyDown = [](int, int) { return false; };

  void keyboardSearch(const QString&) override {}

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void setUpHeadings();
  void connectUser();
  void refresh();
  void showColours();
  void showSelection();
  void showTopRow();
  void takeSelection();
  void takePage();
  void paintCorner(QWidget& corner) const;
  /// Model cells of the grid's row and column.
  QModelIndex cell(int row, int col) const;

  Grid& grid_;
  GridModel* model_;
  int rowHeight_;
  unsigned long shownContents_ = 0;
  QModelIndex anchor_;
  bool mirroring_ = false;
};

}  // namespace kestrelix

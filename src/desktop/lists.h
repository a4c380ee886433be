// The widgets of list boxes and drop-down lists.
#pragma once

#include <QAbstractListModel>
#include <QComboBox>
#include <QListView>

#include "desktop/mirror.h"

namespace kestrelix {

/// The entries of a ListBox, read when they are painted.
class ListModel final : public QAbstractListModel {
 public:
  ListModel(const ListBox& list, QObject* parent) : QAbstractListModel(parent), list_(list) {}
  void reload();
  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  const ListBox& list_;
  int rows_ = 0;
};

/// A list box. Letting go of the mouse on an entry and moving to one by key are clicks on it, on the selected
/// entry too.
class ListBoxView final : public QListView {
 public:
  ListBoxView(ListBox& list, const QFont& font, QWidget* parent);

  /// Where the texts of a list begin, from its left edge, in pixels: the heading above begins there too.
  static int textIndent();

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void refresh();
  void choose(const QModelIndex& index);

  ListBox& list_;
  ListModel* model_;
  int rowHeight_;
  unsigned long shownEntries_ = 0;
};

/// A drop-down list. Choosing an entry is a click on it, also of the one that is selected.
class ComboBoxView final : public QComboBox {
 public:
  ComboBoxView(ComboBox& combo, const QFont& font, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void refresh();

  ComboBox& combo_;
  ListModel* model_;
  unsigned long shownEntries_ = 0;
};

}  // namespace kestrelix

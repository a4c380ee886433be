#pragma once

#include <QAbstractTableModel>

#include "platform/controls/grid.h"

namespace kestrelix {

/// A Grid's cells without its fixed ones, which are the headings. It holds no copy: a cell is read when it is
/// painted.
class GridModel final : public QAbstractTableModel {
 public:
  GridModel(const Grid& grid, QObject* parent);

  /// Takes the grid's shape and texts anew.
  void reload();
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  /// The heading over the heading column.
  QString cornerText() const { return cell(0, 0); }
  int fixedRows() const { return fixedRows_; }
  int fixedCols() const { return fixedCols_; }

 private:
  QString cell(int row, int col) const;
  Qt::Alignment alignment(int col) const;

  const Grid& grid_;
  int rows_ = 0;  // the shape of the last reload: the grid can have another by now
  int cols_ = 0;
  int fixedRows_ = 0;
  int fixedCols_ = 0;
};

}  // namespace kestrelix

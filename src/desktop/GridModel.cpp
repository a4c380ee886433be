#include "desktop/GridModel.h"

#include <algorithm>

#include "desktop/mirror.h"

namespace kestrelix {
namespace {

/// A cell is one line: its line ends and tabs show as blanks.
QString singleLine(const std::string& cell) {
  QString line = text(cell);
  line.replace("\r\n", " ");
  for (QChar& c : line)
    if (c == '\n' || c == '\r' || c == '\t') c = ' ';
  return line;
}

}  // namespace

GridModel::GridModel(const Grid& grid, QObject* parent) : QAbstractTableModel(parent), grid_(grid) {
  reload();
}

void GridModel::reload() {
  beginResetModel();
  rows_ = grid_.Rows();
  cols_ = grid_.Cols();
  fixedRows_ = grid_.FixedRows();
  fixedCols_ = grid_.FixedCols();
  endResetModel();
}

int GridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : std::max(0, rows_ - fixedRows_);
}
int GridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : std::max(0, cols_ - fixedCols_);
}

QString GridModel::cell(int row, int col) const {
  if (row >= grid_.Rows() || col >= grid_.Cols()) return {};
  return singleLine(grid_.TextMatrix(row, col));
}

Qt::Alignment GridModel::alignment(int col) const {
  const bool right = col < grid_.Cols() && grid_.ColAlignment(col) == GridAlignment::Right;
  return Qt::AlignVCenter | (right ? Qt::AlignRight : Qt::AlignLeft);
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  if (role == Qt::DisplayRole) return cell(index.row() + fixedRows_, index.column() + fixedCols_);
  if (role == Qt::TextAlignmentRole) return QVariant::fromValue(alignment(index.column() + fixedCols_));
  return {};
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  const bool top = orientation == Qt::Horizontal;
  if (role == Qt::TextAlignmentRole) return QVariant::fromValue(alignment(top ? section + fixedCols_ : 0));
  if (role != Qt::DisplayRole || (top ? fixedRows_ : fixedCols_) == 0) return {};
  return top ? cell(0, section + fixedCols_) : cell(section + fixedRows_, 0);
}

}  // namespace kestrelix

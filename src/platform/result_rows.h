// The rows of a query, read to the end, and the cursor over them.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/database.h"

namespace kestrelix {

/// A result that holds all its rows: its statement is free to run again at once, and every row has been
/// evaluated, as a server with its read-ahead does.
class ResultRows final : public Dynaset {
 public:
  /// `cells` row after row, each as long as `columns`.
  ResultRows(std::shared_ptr<const std::vector<std::string>> columns,
             std::vector<std::optional<std::string>> cells, std::size_t rows);

  bool Eof() const override { return row_ >= rows_; }
  void MoveNext() override;
  long RecordCount() override { return static_cast<long>(rows_); }
  Field Fields(std::string_view alias) const override;
  /// The field of column `column`, from 0, of the current row.
  Field field(std::size_t column) const {
    return {columns_->at(column), &cells_.at(row_ * columns_->size() + column)};
  }
  void Close() override;
  const std::vector<std::string>& columns() const override { return *columns_; }

 private:
  std::shared_ptr<const std::vector<std::string>> columns_;
  std::vector<std::optional<std::string>> cells_;
  std::size_t rows_;
  std::size_t row_ = 0;
};

}  // namespace kestrelix

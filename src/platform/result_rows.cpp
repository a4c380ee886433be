#include "platform/result_rows.h"

#include "platform/ascii.h"

namespace kestrelix {
namespace {

bool sameName(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i)
    if (asciiUpper(a[i]) != asciiUpper(b[i])) return false;
  return true;
}

}  // namespace

ResultRows::ResultRows(std::shared_ptr<const std::vector<std::string>> columns,
                       std::vector<std::optional<std::string>> cells, std::size_t rows)
    : columns_(std::move(columns)), cells_(std::move(cells)), rows_(rows) {}

void ResultRows::MoveNext() {
  if (Eof()) throw DatabaseError("24000", 0, "there is no row behind the last one");
  ++row_;
}

Field ResultRows::Fields(std::string_view alias) const {
  for (std::size_t i = 0; i < columns_->size(); ++i) {
    if (!sameName((*columns_)[i], alias)) continue;
    if (Eof())
      throw DatabaseError("24000", 0, "there is no row to read the column " + (*columns_)[i] + " of");
    return {(*columns_)[i], &cells_[row_ * columns_->size() + i]};
  }
  throw DatabaseError("42S22", 0, "the result has no column " + std::string(alias));
}

void ResultRows::Close() {
  cells_.clear();
  rows_ = 0;
  row_ = 0;
}

}  // namespace kestrelix

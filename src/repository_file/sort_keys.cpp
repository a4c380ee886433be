#include "repository_file/sort_keys.h"

#include "repository_file/storage.h"

namespace kestrelix::repository_file {
int compareStored(sqlite3_value* a, sqlite3_value* b) {
  if (sqlite3_value_type(a) != SQLITE_INTEGER) return bytesOf(a).compare(bytesOf(b));
  const auto left = sqlite3_value_int64(a);
  const auto right = sqlite3_value_int64(b);
  return left < right ? -1 : left > right ? 1 : 0;
}

std::string identityOf(sqlite3_value* value) {
  if (sqlite3_value_type(value) == SQLITE_INTEGER) return "i" + std::to_string(sqlite3_value_int64(value));
  return "b" + std::string(bytesOf(value));
}

SortKeys::SortKeys(int skip, int count, Values arguments) {
  for (int i = skip; i + 1 < count; i += 2) {
    keys_.push_back(kept(arguments[i]));
    orders_.push_back(sqlite3_value_int(arguments[i + 1]));
  }
}

int SortKeys::compareKeys(sqlite3_value* a, sqlite3_value* b, int order) {
  if (isNull(a) || isNull(b)) {
    const int nullIsGreater = (order & kNullsFirst) != 0 ? -1 : 1;
    return isNull(a) == isNull(b) ? 0 : isNull(a) ? nullIsGreater : -nullIsGreater;
  }
  const int result = compareStored(a, b);
  return (order & kDescending) != 0 ? -result : result;
}

int SortKeys::compare(const SortKeys& other) const {
  for (std::size_t i = 0; i < keys_.size(); ++i)
    if (const int order = compareKeys(keys_[i].get(), other.keys_[i].get(), orders_[i])) return order;
  return 0;
}

int SortKeys::compare(int skip, Values arguments) const {
  for (std::size_t i = 0; i < keys_.size(); ++i)
    if (const int order = compareKeys(keys_[i].get(), arguments[skip + 2 * static_cast<int>(i)], orders_[i]))
      return order;
  return 0;
}

}  // namespace kestrelix::repository_file

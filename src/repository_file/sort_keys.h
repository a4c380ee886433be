// The order of rows inside an aggregate, by keys that the lowering hands to it in pairs: the value that
// SQLite would sort by, and how.
#pragma once

#include <string>
#include <vector>

#include "repository_file/kept_state.h"

namespace kestrelix::repository_file {

/// The second of a pair, as bits.
inline constexpr int kDescending = 1;
inline constexpr int kNullsFirst = 2;

/// Below 0, 0 or above 0. Whole numbers and dates compare as such, all else by its bytes; neither is NULL.
int compareStored(sqlite3_value* a, sqlite3_value* b);
/// The same for equal values of one type, and for no others.
std::string identityOf(sqlite3_value* value);

/// The keys of one row.
class SortKeys {
 public:
  /// From the arguments of a call behind the first `skip`.
  SortKeys(int skip, int count, Values arguments);

  /// Below 0 if this row comes first, 0 if both are peers.
  int compare(const SortKeys& other) const;
  /// The same against the keys of a row that is not kept.
  int compare(int skip, Values arguments) const;

 private:
  static int compareKeys(sqlite3_value* a, sqlite3_value* b, int order);

  std::vector<KeptValue> keys_;
  std::vector<int> orders_;
};

}  // namespace kestrelix::repository_file

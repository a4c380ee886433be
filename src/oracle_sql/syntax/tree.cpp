#include "oracle_sql/syntax/tree.h"

#include <cstring>

namespace oracle_sql {

std::string_view Tree::copy(std::string_view text) {
  if (text.empty()) return {};
  char* place = static_cast<char*>(memory_->allocate(text.size(), 1));
  std::memcpy(place, text.data(), text.size());
  return {place, text.size()};
}

}  // namespace oracle_sql

// Format models, each parsed once.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace oracle_sql {

/// The format models used last, parsed: a statement formats every row with the same few. One per thread.
template <typename Model>
class ModelCache {
 public:
  /// Valid until the next call. `parse` may throw; nothing is kept then.
  template <typename Parse>
  const Model& get(std::string_view text, Parse parse) {
    for (const auto& entry : entries_) {
      if (entry.first == text && !text.empty()) return entry.second;
    }
    Model model = parse(text);
    auto& entry = entries_[next_];
    next_ = (next_ + 1) % entries_.size();
    entry.first = text;
    entry.second = std::move(model);
    return entry.second;
  }

 private:
  std::array<std::pair<std::string, Model>, 8> entries_;
  std::size_t next_ = 0;
};

}  // namespace oracle_sql

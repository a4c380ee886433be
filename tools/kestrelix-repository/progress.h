// A progress bar on a terminal's standard error; silent anywhere else.
#pragma once

#include <cstdint>
#include <string>

namespace kestrelix {

class ProgressBar {
 public:
  explicit ProgressBar(std::string label);
  ~ProgressBar();

  /// `done` of `all`; drawn again only when the picture changes.
  void show(std::int64_t done, std::int64_t all);

 private:
  std::string label_;
  bool onTerminal_;
  std::int64_t drawn_ = -1;
};

}  // namespace kestrelix

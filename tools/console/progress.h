// A progress bar on a terminal's standard error; silent anywhere else.
#pragma once

#include <cstdint>
#include <string>

#include "platform/progress.h"

namespace kestrelix::console {

/// Goes on until an interrupt comes.
class ProgressBar final : public Progress {
 public:
  explicit ProgressBar(std::string label);
  ~ProgressBar() override;

  /// `done` of `all`; drawn again only when the picture changes.
  bool step(std::int64_t done, std::int64_t all) override;

 private:
  void show(std::int64_t percent);

  std::string label_;
  bool onTerminal_;
  std::int64_t drawn_ = -1;
};

}  // namespace kestrelix::console

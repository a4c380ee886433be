#include "console/progress.h"

#include <unistd.h>

#include <algorithm>
#include <iostream>

#include "console/interrupt.h"

namespace kestrelix::console {
namespace {
constexpr int kWidth = 40;
}

ProgressBar::ProgressBar(std::string label)
    : label_(std::move(label)), onTerminal_(::isatty(STDERR_FILENO) == 1) {}

ProgressBar::~ProgressBar() {
  // The bar goes and leaves an empty line, so that what is printed next stands alone.
  if (drawn_ >= 0) std::cerr << "\r\033[K" << std::flush;
}

bool ProgressBar::step(std::int64_t done, std::int64_t all) {
  const std::int64_t percent = all <= 0 ? 100 : std::clamp<std::int64_t>(done * 100 / all, 0, 100);
  if (onTerminal_ && percent != drawn_) show(percent);
  return !interrupted();
}

void ProgressBar::show(std::int64_t percent) {
  drawn_ = percent;
  const int filled = static_cast<int>(percent) * kWidth / 100;
  std::cerr << "\r" << label_ << " [" << std::string(static_cast<std::size_t>(filled), '#')
            << std::string(static_cast<std::size_t>(kWidth - filled), '.') << "] " << percent << "%"
            << std::flush;
}

}  // namespace kestrelix::console

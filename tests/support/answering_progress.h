#pragma once

#include <functional>
#include <utility>

#include "platform/progress.h"

namespace kestrelix::testing_support {

/// Answers each step as a test's function does.
class AnsweringProgress final : public Progress {
 public:
  explicit AnsweringProgress(std::function<bool(std::int64_t done, std::int64_t all)> answer)
      : answer_(std::move(answer)) {}
  bool step(std::int64_t done, std::int64_t all) override { return answer_(done, all); }

 private:
  std::function<bool(std::int64_t, std::int64_t)> answer_;
};

}  // namespace kestrelix::testing_support

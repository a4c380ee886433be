#pragma once

#include <string>
#include <vector>

#include "platform/progress.h"

namespace kestrelix::testing_support {

/// Keeps the calls: "begin", "2 / 3", "end".
class RecordingProgress : public Progress {
 public:
  void begin() override { calls.push_back("begin"); }
  bool step(std::int64_t pair, std::int64_t pairs) override {
    calls.push_back(std::to_string(pair) + " / " + std::to_string(pairs));
    return true;
  }
  void end() override { calls.push_back("end"); }

  std::vector<std::string> calls;
};

}  // namespace kestrelix::testing_support

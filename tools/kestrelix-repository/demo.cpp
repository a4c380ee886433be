// kestrelix-repository demo: a repository to try the program on.
#include "platform/embedded/demo/demo.h"

#include <charconv>
#include <iostream>
#include <optional>

#include "commands.h"
#include "interrupt.h"
#include "progress.h"

namespace kestrelix {

namespace {

constexpr const char* kHelp =
    "usage: kestrelix-repository demo FILE [--snapshots N] [--seed S] [--force]\n\n"
    "Makes a local repository with four databases: Oracle 9 and 11 single instances, Oracle 10 and 11 "
    "clusters\n"
    "of two instances. Its account is PERFSTAT, password perfstat.\n\n"
    "  --snapshots N  hourly snapshots of each instance, 2 to 100000 (60)\n"
    "  --seed S       a whole number; the same seed gives the same file (1)\n"
    "  --force        replace FILE if it is there, once the new one is whole\n";

template <class Number>
std::optional<Number> whole(const std::string& text) {
  Number value{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

int wrongUsage(const std::string& why) {
  std::cerr << why << "\n\n" << kHelp;
  return kExitWrongUsage;
}

}  // namespace

int demoCommand(std::span<const std::string> arguments) {
  std::string file;
  embedded::demo::DemoOptions options;
  bool force = false;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& word = arguments[i];
    if (word == "--help" || word == "-h") {
      std::cout << kHelp;
      return kExitDone;
    }
    if (word == "--force") {
      force = true;
    } else if (word == "--snapshots" || word == "--seed") {
      if (++i == arguments.size()) return wrongUsage(word + " needs a number");
      if (word == "--seed") {
        const auto seed = whole<std::uint64_t>(arguments[i]);
        if (!seed) return wrongUsage("not a seed: " + arguments[i]);
        options.seed = *seed;
      } else {
        const auto count = whole<int>(arguments[i]);
        if (!count || *count < 2 || *count > 100000)
          return wrongUsage("not 2 to 100000 snapshots: " + arguments[i]);
        options.snapshots = *count;
      }
    } else if (word.starts_with("-")) {
      return wrongUsage("unknown option: " + word);
    } else if (!file.empty()) {
      return wrongUsage("one file is made at a time, not " + word + " as well");
    } else {
      file = word;
    }
  }
  if (file.empty()) return wrongUsage("which file is to be made?");
  if (!force && refuseToReplace(file)) return kExitFailed;
  options.existing = force ? embedded::Existing::Replace : embedded::Existing::Keep;
  ProgressBar bar("snapshots");
  watchInterrupts();
  embedded::demo::makeDemo(file, options, [&](std::int64_t done, std::int64_t all) {
    checkInterrupts();
    bar.show(done, all);
  });
  return kExitDone;
}

}  // namespace kestrelix

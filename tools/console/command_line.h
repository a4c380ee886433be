#pragma once

#include <charconv>
#include <concepts>
#include <functional>
#include <iosfwd>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "console/usage_error.h"

namespace kestrelix::console {

/// An option as it is typed and as the help tells it.
struct Option {
  std::string name;   ///< with its dashes
  std::string value;  ///< what the help calls its value; empty for one that takes none
  std::string help;   ///< in lines
  std::function<void(const std::string& value)> take;
  bool repeats = false;
};

/// What a program or one of its commands takes: words and options in any order, declared once for reading and
/// for the help. What is read goes into the targets, which have to live as long.
class CommandLine {
 public:
  /// The usage as it is typed, without words and options, and what else the help tells, in whole lines.
  CommandLine(std::string usage, std::string about);

  /// Words in their order, an optional one last; a needed one isn't empty.
  CommandLine& word(const std::string& what, std::string& target);
  CommandLine& optionalWord(const std::string& what, std::string& target);

  CommandLine& add(Option option);
  CommandLine& flag(const std::string& name, bool& target, const std::string& help);
  CommandLine& text(const std::string& name, const std::string& value, std::string& target,
                    const std::string& help);
  /// An option that may be given several times.
  CommandLine& texts(const std::string& name, const std::string& value, std::vector<std::string>& target,
                     const std::string& help);
  CommandLine& choice(const std::string& name, const std::vector<std::string>& choices, std::string& target,
                      const std::string& help);
  /// A number from `least` to `most`; the target may be an optional one.
  template <std::integral Number, class Target>
  CommandLine& whole(const std::string& name, const std::string& value, Target& target,
                     const std::string& help, Number least = 0,
                     Number most = std::numeric_limits<Number>::max());

  /// False when --help was asked for, which is printed then. A word that begins with a dash is an option,
  /// unless it has blanks or line ends: a statement may begin with a comment. Fails with UsageError.
  bool read(std::span<const std::string> words, std::ostream& help) const;
  std::string help() const;

 private:
  struct Word {
    std::string what;
    std::string* target;
    bool needed;
  };

  std::string usage_;
  std::string about_;
  std::vector<Word> words_;
  std::vector<Option> options_;
};

template <std::integral Number, class Target>
CommandLine& CommandLine::whole(const std::string& name, const std::string& value, Target& target,
                                const std::string& help, Number least, Number most) {
  return add({name, value, help, [=, &target](const std::string& text) {
                Number number{};
                const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
                if (error == std::errc() && end == text.data() + text.size() && number >= least &&
                    number <= most) {
                  target = number;
                  return;
                }
                const bool bounded = most != std::numeric_limits<Number>::max();
                throw UsageError(name + " takes a whole number from " + std::to_string(least) +
                                 (bounded ? " to " + std::to_string(most) : "") + ", not '" + text + "'");
              }});
}

}  // namespace kestrelix::console

#include "console/command_line.h"

#include <algorithm>
#include <ostream>
#include <set>

#include "console/help_list.h"

namespace kestrelix::console {
namespace {

bool isOption(const std::string& word) {
  return word.starts_with('-') && word.find_first_of(" \t\r\n") == std::string::npos;
}

/// The last two stand with another joint between: "a, b or c".
std::string joined(const std::vector<std::string>& texts, const std::string& joint, const std::string& last) {
  std::string text;
  for (std::size_t i = 0; i < texts.size(); ++i)
    text += (i == 0 ? "" : i + 1 == texts.size() ? last : joint) + texts[i];
  return text;
}

}  // namespace

CommandLine::CommandLine(std::string usage, std::string about)
    : usage_(std::move(usage)), about_(std::move(about)) {}

CommandLine& CommandLine::word(const std::string& what, std::string& target) {
  words_.push_back({what, &target, true});
  return *this;
}

CommandLine& CommandLine::optionalWord(const std::string& what, std::string& target) {
  words_.push_back({what, &target, false});
  return *this;
}

CommandLine& CommandLine::add(Option option) {
  options_.push_back(std::move(option));
  return *this;
}

CommandLine& CommandLine::flag(const std::string& name, bool& target, const std::string& help) {
  return add({name, "", help, [&target](const std::string&) { target = true; }});
}

CommandLine& CommandLine::text(const std::string& name, const std::string& value, std::string& target,
                               const std::string& help) {
  return add({name, value, help, [&target](const std::string& given) { target = given; }});
}

CommandLine& CommandLine::texts(const std::string& name, const std::string& value,
                                std::vector<std::string>& target, const std::string& help) {
  return add({name, value, help, [&target](const std::string& given) { target.push_back(given); }, true});
}

CommandLine& CommandLine::choice(const std::string& name, const std::vector<std::string>& choices,
                                 std::string& target, const std::string& help) {
  return add({name, joined(choices, "|", "|"), help, [=, &target](const std::string& given) {
                if (std::find(choices.begin(), choices.end(), given) == choices.end())
                  throw UsageError(name + " is " + joined(choices, ", ", " or ") + ", not '" + given + "'");
                target = given;
              }});
}

bool CommandLine::read(std::span<const std::string> words, std::ostream& help) const {
  std::set<std::string> given;
  std::size_t plain = 0;
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::string& word = words[i];
    if (!isOption(word)) {
      if (plain == words_.size()) throw UsageError("'" + word + "' is one word too many");
      *words_[plain++].target = word;
      continue;
    }
    if (word == "--help" || word == "-h") {
      help << this->help();
      return false;
    }
    const auto option =
        std::find_if(options_.begin(), options_.end(), [&](const Option& o) { return o.name == word; });
    if (option == options_.end()) throw UsageError("there is no option " + word);
    if (!given.insert(word).second && !option->repeats) throw UsageError(word + " is given twice");
    if (!option->value.empty() && ++i == words.size()) throw UsageError(word + " needs a value");
    option->take(option->value.empty() ? std::string() : words[i]);
  }
  for (const Word& word : words_)
    if (word.needed && word.target->empty()) throw UsageError(word.what + " is missing");
  return true;
}

std::string CommandLine::help() const {
  std::string text = "usage: " + usage_;
  for (const Word& word : words_) text += word.needed ? " " + word.what : " [" + word.what + "]";
  text += std::string(options_.empty() ? "" : " [options]") + "\n\n" + about_;
  std::vector<HelpEntry> entries;
  for (const Option& option : options_)
    entries.push_back({option.name + (option.value.empty() ? "" : " ") + option.value, option.help});
  return text + (entries.empty() ? "" : "\n") + helpList(entries);
}

}  // namespace kestrelix::console

#include "oracle_sql/functions/settings.h"

#include <algorithm>
#include <string>

#include "oracle_sql/ascii_case.h"
#include "oracle_sql/function_error.h"

namespace oracle_sql::library {
namespace {

[[noreturn]] void refuse() {
  throw FunctionError(12702, "invalid NLS parameter string used in SQL function");
}

// Reads "name = value", "name = 'value'", blanks between them.
class Reader {
 public:
  explicit Reader(std::string_view text) : rest_(text) { skip(); }

  bool atEnd() const { return rest_.empty(); }

  std::string name() {
    const std::string_view word = take([](char c) { return isAsciiLetter(c) || c == '_'; });
    skip();
    if (word.empty() || rest_.empty() || rest_.front() != '=') {
      refuse();
    }
    rest_.remove_prefix(1);
    skip();
    return asciiUpper(word);
  }

  std::string value() {
    std::string text;
    if (!rest_.empty() && rest_.front() == '\'') {
      rest_.remove_prefix(1);
      text = take([](char c) { return c != '\''; });
      if (rest_.empty()) {
        refuse();
      }
      rest_.remove_prefix(1);
    } else {
      text = take([](char c) { return c != ' '; });
    }
    skip();
    return text;
  }

 private:
  void skip() {
    take([](char c) { return c == ' '; });
  }

  template <typename Belongs>
  std::string_view take(Belongs belongs) {
    const auto end = std::find_if_not(rest_.begin(), rest_.end(), belongs);
    const std::string_view taken = rest_.substr(0, static_cast<std::size_t>(end - rest_.begin()));
    rest_.remove_prefix(taken.size());
    return taken;
  }

  std::string_view rest_;
};

void requireOne(const std::string& name, const std::string& value, std::initializer_list<const char*> known) {
  const std::string upper = asciiUpper(value);
  if (std::find(known.begin(), known.end(), upper) == known.end()) {
    throw FunctionError(FunctionError::kUnsupported, name + " = " + value);
  }
}

}  // namespace

NumberSymbols numberSymbols(std::string_view settings) {
  NumberSymbols symbols;
  for (Reader reader(settings); !reader.atEnd();) {
    const std::string name = reader.name();
    const std::string value = reader.value();
    if (name == "NLS_NUMERIC_CHARACTERS") {
      if (value.size() != 2 || value[0] == value[1]) {
        refuse();
      }
      symbols.point = value[0];
      symbols.group = value[1];
    } else if (name == "NLS_CURRENCY") {
      symbols.local = value;
    } else if (name == "NLS_DUAL_CURRENCY") {
      symbols.dual = value;
    } else if (name == "NLS_ISO_CURRENCY") {
      requireOne(name, value, {"AMERICA"});
    } else if (name == "NLS_DATE_LANGUAGE") {
      requireOne(name, value, {"AMERICAN", "ENGLISH"});
    } else if (name == "NLS_CALENDAR") {
      requireOne(name, value, {"GREGORIAN"});
    } else {
      refuse();
    }
  }
  return symbols;
}

void requireBinarySort(std::string_view settings) {
  Reader reader(settings);
  const std::string name = reader.name();
  if (name != "NLS_SORT") {
    refuse();
  }
  requireOne(name, reader.value(), {"BINARY"});
}

}  // namespace oracle_sql::library

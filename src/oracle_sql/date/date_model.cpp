#include "oracle_sql/date/date_model.h"

#include "oracle_sql/function_error.h"
#include "oracle_sql/model_cache.h"
#include "oracle_sql/text/ascii_case.h"

namespace oracle_sql {
namespace {

struct Name {
  std::string_view name;
  DateElement element;
  std::uint8_t digits;
};

/// A longer name stands before its own beginning.
constexpr Name kNames[] = {
    {"A.D.", DateElement::Era, 0},
    {"B.C.", DateElement::Era, 0},
    {"AD", DateElement::Era, 0},
    {"BC", DateElement::Era, 0},
    {"A.M.", DateElement::Meridian, 0},
    {"P.M.", DateElement::Meridian, 0},
    {"AM", DateElement::Meridian, 0},
    {"PM", DateElement::Meridian, 0},
    {"CC", DateElement::Century, 2},
    {"DAY", DateElement::DayName, 0},
    {"DDD", DateElement::DayOfYear, 3},
    {"DD", DateElement::Day, 2},
    {"DY", DateElement::DayAbbreviation, 0},
    {"D", DateElement::WeekdayNumber, 1},
    {"HH24", DateElement::Hour24, 2},
    {"HH12", DateElement::Hour12, 2},
    {"HH", DateElement::Hour12, 2},
    {"IYYY", DateElement::IsoYear, 4},
    {"IYY", DateElement::IsoYear, 3},
    {"IY", DateElement::IsoYear, 2},
    {"IW", DateElement::IsoWeek, 2},
    {"I", DateElement::IsoYear, 1},
    {"J", DateElement::Julian, 7},
    {"MONTH", DateElement::MonthName, 0},
    {"MON", DateElement::MonthAbbreviation, 0},
    {"MM", DateElement::Month, 2},
    {"MI", DateElement::Minute, 2},
    {"Q", DateElement::Quarter, 1},
    {"RRRR", DateElement::RoundedYear4, 4},
    {"RR", DateElement::RoundedYear2, 2},
    {"SSSSS", DateElement::SecondOfDay, 5},
    {"SS", DateElement::Second, 2},
    {"WW", DateElement::WeekOfYear, 2},
    {"W", DateElement::WeekOfMonth, 1},
    {"Y,YYY", DateElement::YearWithComma, 4},
    {"YYYY", DateElement::Year, 4},
    {"YYY", DateElement::Year, 3},
    {"YY", DateElement::Year, 2},
    {"Y", DateElement::Year, 1},
};

/// Elements of the server's that nobody asks for here.
constexpr std::string_view kRefused[] = {"DL", "DS", "FX", "RM", "SCC", "SYEAR", "SYYYY", "TS", "X", "YEAR"};

bool isUpper(char c) { return c >= 'A' && c <= 'Z'; }

LetterCase lettersOf(std::string_view name) {
  if (!isUpper(name[0])) return LetterCase::Lower;
  const char second = name.size() < 2 ? name[0] : name[1] == '.' ? name[2] : name[1];
  return isAsciiLetter(second) && !isUpper(second) ? LetterCase::Capital : LetterCase::Upper;
}

[[noreturn]] void raiseUnsupported(std::string_view element) {
  throw FunctionError(FunctionError::kUnsupported, "the date format element " + std::string(element));
}

class Parser {
 public:
  DateModel parse(std::string_view text) {
    while (!text.empty()) text.remove_prefix(takeOne(text));
    return std::move(items_);
  }

 private:
  /// How many characters were understood.
  std::size_t takeOne(std::string_view text) {
    if (startsWithAnyCase(text, "FM")) {
      padded_ = !padded_;
      return 2;
    }
    if (text[0] == '"') {
      const std::size_t end = text.find('"', 1);
      if (end == std::string_view::npos) throw FunctionError(1821, "date format not recognized");
      add(DateElement::Literal).text = text.substr(1, end - 1);
      return end + 1;
    }
    for (const std::string_view name : kRefused) {
      if (startsWithAnyCase(text, name)) raiseUnsupported(name);
    }
    for (const Name& name : kNames) {
      if (startsWithAnyCase(text, name.name)) return takeElement(text, name);
    }
    if (isAsciiLetter(text[0]) || isAsciiDigit(text[0]) || static_cast<unsigned char>(text[0]) >= 0x80)
      throw FunctionError(1821, "date format not recognized");
    add(DateElement::Punctuation).text = text.substr(0, 1);
    return 1;
  }

  std::size_t takeElement(std::string_view text, const Name& name) {
    DateItem& item = add(name.element);
    item.digits = name.digits;
    item.letters = lettersOf(text.substr(0, name.name.size()));
    item.dotted = name.name.find('.') != std::string_view::npos;
    for (const char* suffix : {"TH", "SP"}) {
      if (name.digits != 0 && startsWithAnyCase(text.substr(name.name.size()), suffix))
        raiseUnsupported(std::string(name.name) + suffix);
    }
    return name.name.size();
  }

  DateItem& add(DateElement element) {
    DateItem item;
    item.element = element;
    item.padded = padded_;
    items_.push_back(std::move(item));
    return items_.back();
  }

  DateModel items_;
  bool padded_ = true;
};

}  // namespace

const DateModel& dateModel(std::string_view text) {
  thread_local ModelCache<DateModel> cache;
  return cache.get(text, [](std::string_view model) { return Parser().parse(model); });
}

std::string inCase(std::string_view word, LetterCase letters) {
  std::string out(word);
  bool start = true;
  for (char& c : out) {
    const bool upper = letters == LetterCase::Upper || (letters == LetterCase::Capital && start);
    c = upper ? asciiUpper(c) : asciiLower(c);
    start = !isAsciiLetter(c);
  }
  return out;
}

}  // namespace oracle_sql

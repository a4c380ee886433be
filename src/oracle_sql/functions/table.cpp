#include <algorithm>
#include <string>

#include "oracle_sql/functions/library.h"
#include "oracle_sql/functions/result_types.h"
#include "oracle_sql/text/ascii_case.h"

namespace oracle_sql {
namespace {

using Implementation = Value (*)(Arguments, const Context&);

/// NULL for any NULL argument: what most functions do.
template <Implementation F>
Value strict(Arguments arguments, const Context& context) {
  for (const Value& argument : arguments) {
    if (argument.isNull()) return {};
  }
  return F(arguments, context);
}

constexpr int kAny = Function::kAnyNumber;
constexpr Implementation kLazy = nullptr;
// No text is longer, and no year or character code is greater.
constexpr double kLongest = 1e10;

/// In the order of their names: findFunction searches by halves.
constexpr Function kTable[] = {
    {"ABS", 1, 1, true, types::number, strict<library::absolute>},
    {"ADD_MONTHS", 2, 2, true, types::date, strict<library::addMonths>},
    {"ASCII", 1, 1, true, types::wholeNumber, strict<library::ascii>, kLongest},
    {"BITAND", 2, 2, true, types::number, strict<library::bitAnd>},
    {"CEIL", 1, 1, true, types::firstAsNumber, strict<library::ceiling>},
    {"CHR", 1, 1, true, types::varchar, strict<library::character>},
    {"COALESCE", 2, kAny, true, types::coalesce, kLazy},
    {"CONCAT", 2, 2, true, types::varchar, library::concat},
    {"DECODE", 3, kAny, true, types::decode, kLazy},
    {"EXP", 1, 1, true, types::number, strict<library::exponential>},
    {"EXTRACT", 2, 2, true, types::wholeNumber, strict<library::extract>, kLongest},
    {"FLOOR", 1, 1, true, types::firstAsNumber, strict<library::floor>},
    {"GREATEST", 1, kAny, true, types::likeFirst, strict<library::greatest>},
    {"HEXTORAW", 1, 1, true, types::raw, strict<library::hexToRaw>},
    {"INITCAP", 1, 1, true, types::sameText, strict<library::initialCapitals>},
    {"INSTR", 2, 4, true, types::wholeNumber, strict<library::position>, kLongest},
    {"INSTRB", 2, 4, true, types::wholeNumber, strict<library::positionBytes>, kLongest},
    {"LAST_DAY", 1, 1, true, types::date, strict<library::lastDay>},
    {"LEAST", 1, kAny, true, types::likeFirst, strict<library::least>},
    {"LENGTH", 1, 1, true, types::wholeNumber, strict<library::length>, kLongest},
    {"LENGTHB", 1, 1, true, types::wholeNumber, strict<library::lengthBytes>, kLongest},
    {"LN", 1, 1, true, types::number, strict<library::naturalLogarithm>},
    {"LOG", 2, 2, true, types::number, strict<library::logarithm>},
    {"LOWER", 1, 1, true, types::sameText, strict<library::lower>},
    {"LPAD", 2, 3, true, types::varchar, strict<library::padLeft>},
    {"LTRIM", 1, 2, true, types::varchar, strict<library::trimLeft>},
    {"MOD", 2, 2, true, types::bothWhole, strict<library::modulo>},
    {"MONTHS_BETWEEN", 2, 2, true, types::number, strict<library::monthsBetween>},
    {"NEXT_DAY", 2, 2, true, types::date, strict<library::nextDay>},
    {"NULLIF", 2, 2, true, types::first, kLazy},
    {"NVL", 2, 2, true, types::nvl, kLazy},
    {"NVL2", 3, 3, true, types::nvl2, kLazy},
    {"POWER", 2, 2, true, types::number, strict<library::power>},
    {"RAWTOHEX", 1, 1, true, types::varchar, strict<library::rawToHex>},
    {"REMAINDER", 2, 2, true, types::bothWhole, strict<library::remainder>},
    {"REPLACE", 2, 3, true, types::varchar, library::replace},
    {"ROUND", 1, 2, true, types::dateOrNumber, strict<library::round>},
    {"RPAD", 2, 3, true, types::varchar, strict<library::padRight>},
    {"RTRIM", 1, 2, true, types::varchar, strict<library::trimRight>},
    {"SIGN", 1, 1, true, types::wholeNumber, strict<library::sign>, 1},
    {"SQRT", 1, 1, true, types::number, strict<library::squareRoot>},
    {"SUBSTR", 2, 3, true, types::varchar, strict<library::substring>},
    {"SUBSTRB", 2, 3, true, types::varchar, strict<library::substringBytes>},
    {"SYSDATE", 0, 0, false, types::date, library::systemDate},
    {"TO_CHAR", 1, 2, true, types::varchar, strict<library::toCharacter>},
    // What a model leaves out comes from the running month.
    {"TO_DATE", 1, 2, false, types::date, strict<library::toDateValue>},
    {"TO_NUMBER", 1, 2, true, types::number, strict<library::toNumeric>},
    {"TRANSLATE", 3, 3, true, types::varchar, strict<library::translate>},
    {"TRIM", 1, 3, true, types::varchar, strict<library::trim>},
    {"TRUNC", 1, 2, true, types::dateOrNumber, strict<library::truncate>},
    {"UPPER", 1, 1, true, types::sameText, strict<library::upper>},
};

static_assert(std::ranges::is_sorted(kTable, {}, &Function::name));

}  // namespace

std::span<const Function> functionTable() { return kTable; }

const Function* findFunction(std::string_view name) {
  const std::string upper = asciiUpper(name);
  const auto* const found = std::ranges::lower_bound(kTable, std::string_view(upper), {}, &Function::name);
  return found != std::end(kTable) && found->name == upper ? found : nullptr;
}

}  // namespace oracle_sql

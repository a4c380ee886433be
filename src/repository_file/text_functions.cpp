// LIKE, blank-padded comparison and the casts to text.
#include <string>
#include <string_view>

#include "oracle_sql/functions/functions.h"
#include "repository_file/function_frame.h"
#include "repository_file/storage.h"

namespace kestrelix::repository_file {
namespace {

void like(sqlite3_context* context, int, Values arguments) {
  if (anyNull(2, arguments)) return sqlite3_result_null(context);
  guarded(context, arguments[3], [&] {
    if (isNull(arguments[2])) values::raiseEscape();  // '' is no character
    sqlite3_result_int(context,
                       values::like(textOf(arguments[0]), textOf(arguments[1]), textOf(arguments[2])));
  });
}

void paddedCompare(sqlite3_context* context, int, Values arguments) {
  if (anyNull(2, arguments)) return sqlite3_result_null(context);
  sqlite3_result_int(context, values::compareBlankPadded(textOf(arguments[0]), textOf(arguments[1])));
}

bool startsCharacter(char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }

/// The beginning of `text` that fits `length` characters or bytes; no character is cut in two.
std::string_view fitting(std::string_view text, std::size_t length, bool inCharacters, std::size_t& used) {
  used = 0;
  std::size_t end = 0;
  while (end < text.size()) {
    std::size_t next = end + 1;
    while (next < text.size() && !startsCharacter(text[next])) ++next;
    const std::size_t cost = inCharacters ? 1 : next - end;
    if (used + cost > length) break;
    used += cost;
    end = next;
  }
  return text.substr(0, end);
}

/// A text that is too long is cut; what another type has turned into must fit.
void castText(sqlite3_context* context, Values arguments, bool padded) {
  if (isNull(arguments[0])) return sqlite3_result_null(context);
  guarded(context, arguments[4], [&] {
    const auto length = static_cast<std::size_t>(sqlite3_value_int64(arguments[1]));
    std::size_t used = 0;
    const std::string_view whole = textOf(arguments[0]);
    std::string text(fitting(whole, length, sqlite3_value_int(arguments[2]) != 0, used));
    if (text.size() < whole.size() && sqlite3_value_int(arguments[3]) == 0)
      throw values::FunctionError(25137, "Data value out of range");
    if (padded) text.append(length - used, ' ');
    giveValue(context, values::Value::text(std::move(text)));
  });
}

void castVarchar(sqlite3_context* context, int, Values arguments) { castText(context, arguments, false); }
void castChar(sqlite3_context* context, int, Values arguments) { castText(context, arguments, true); }

}  // namespace

void registerTextFunctions(sqlite3* connection, Evaluation& evaluation) {
  addFunction(connection, "ora_like", 4, like, evaluation);
  addFunction(connection, "padded_cmp", 2, paddedCompare, evaluation);
  addFunction(connection, "cast_varchar", 5, castVarchar, evaluation);
  addFunction(connection, "cast_char", 5, castChar, evaluation);
}

}  // namespace kestrelix::repository_file

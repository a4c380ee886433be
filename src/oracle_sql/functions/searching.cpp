#include <algorithm>
#include <vector>

#include "oracle_sql/functions/library.h"
#include "oracle_sql/text/utf8.h"

namespace oracle_sql::library {
namespace {

std::size_t stepOver(std::string_view text, std::size_t at, bool bytes) {
  return bytes ? at + 1 : at + utf8::sizeAt(text, at);
}

/// The byte where the `occurrence`th match begins, from `at` on to the right. Matches may overlap.
std::size_t findForward(std::string_view text, std::string_view part, std::size_t at, std::int64_t occurrence,
                        bool bytes) {
  while (true) {
    at = text.find(part, at);
    if (at == std::string_view::npos || --occurrence == 0) return at;
    at = stepOver(text, at, bytes);
  }
}

/// The same to the left, beginning with a match at `at` itself.
std::size_t findBackward(std::string_view text, std::string_view part, std::size_t at,
                         std::int64_t occurrence) {
  while (true) {
    at = text.rfind(part, at);
    if (at == std::string_view::npos || --occurrence == 0) return at;
    if (at == 0) return std::string_view::npos;
    --at;
  }
}

Value positionIn(Arguments arguments, bool bytes) {
  const TextOf text(arguments[0]);
  const TextOf part(arguments[1]);
  const std::int64_t start = arguments.size() > 2 ? toWhole(arguments[2]) : 1;
  const std::int64_t occurrence = arguments.size() > 3 ? toWhole(arguments[3]) : 1;
  if (occurrence < 1) raiseArgumentOutOfRange(Number(occurrence).toText());
  const std::string_view view = text.view();
  const bool unitsAreBytes = bytes || utf8::isAscii(view);
  const auto size = static_cast<std::int64_t>(unitsAreBytes ? view.size() : utf8::length(view));
  const std::int64_t first = start > 0 ? start - 1 : size + start;
  if (start == 0 || first < 0 || first >= size) return 0;
  const auto unit = static_cast<std::size_t>(first);
  const std::size_t begin = unitsAreBytes ? unit : utf8::offset(view, unit);
  const std::size_t found = start > 0 ? findForward(view, part.view(), begin, occurrence, unitsAreBytes)
                                      : findBackward(view, part.view(), begin, occurrence);
  if (found == std::string_view::npos) return 0;
  return static_cast<std::int64_t>(unitsAreBytes ? found : utf8::length(view.substr(0, found))) + 1;
}

}  // namespace

Value position(Arguments arguments, const Context&) { return positionIn(arguments, false); }

Value positionBytes(Arguments arguments, const Context&) { return positionIn(arguments, true); }

Value replace(Arguments arguments, const Context&) {
  if (arguments[0].isNull() || arguments[1].isNull()) return arguments[0];
  const TextOf text(arguments[0]);
  const TextOf search(arguments[1]);
  const Value none;
  const TextOf replacement(arguments.size() > 2 ? arguments[2] : none);
  std::string out;
  std::string_view rest = text.view();
  for (std::size_t at = rest.find(search.view()); at != std::string_view::npos;
       at = rest.find(search.view())) {
    out += rest.substr(0, at);
    out += replacement.view();
    rest.remove_prefix(at + search.view().size());
  }
  out += rest;
  return Value::text(std::move(out));
}

/// Each character of the second text becomes the one at its place in the third, or goes if there is none.
Value translate(Arguments arguments, const Context&) {
  const TextOf text(arguments[0]);
  const TextOf from(arguments[1]);
  const TextOf to(arguments[2]);
  std::vector<std::pair<std::string_view, std::string_view>> pairs;
  for (std::size_t i = 0, j = 0; i < from.view().size();) {
    const std::string_view source = from.view().substr(i, utf8::sizeAt(from.view(), i));
    const std::string_view target =
        j < to.view().size() ? to.view().substr(j, utf8::sizeAt(to.view(), j)) : std::string_view();
    pairs.emplace_back(source, target);
    i += source.size();
    j += target.size();
  }
  std::string out;
  for (std::size_t at = 0; at < text.view().size();) {
    const std::string_view one = text.view().substr(at, utf8::sizeAt(text.view(), at));
    const auto pair =
        std::find_if(pairs.begin(), pairs.end(), [one](const auto& p) { return p.first == one; });
    out += pair == pairs.end() ? one : pair->second;
    at += one.size();
  }
  return Value::text(std::move(out));
}

}  // namespace oracle_sql::library

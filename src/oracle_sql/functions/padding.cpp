#include "oracle_sql/functions/library.h"
#include "oracle_sql/text/ascii_case.h"
#include "oracle_sql/text/utf8.h"

namespace oracle_sql::library {
namespace {

constexpr std::int64_t kLongestText = 4000;  // bytes of a VARCHAR2

/// As much of `text`, again and again if `repeat`, as `columns` of a screen hold; adds what it took to
/// `used`.
std::string fitting(std::string_view text, std::int64_t columns, bool repeat, std::int64_t& used) {
  std::string out;
  std::size_t at = 0;
  while (!text.empty()) {
    if (at == text.size()) {
      if (!repeat) break;
      at = 0;
    }
    const std::string_view one = text.substr(at, utf8::sizeAt(text, at));
    const int width = utf8::displayWidth(utf8::decode(one));
    if (used + width > columns) break;
    used += width;
    out += one;
    at += one.size();
  }
  return out;
}

/// Cut on the right if it is too long; a wide character that would stand half outside becomes a blank.
Value padded(Arguments arguments, bool left) {
  const TextOf text(arguments[0]);
  const std::int64_t columns = std::min(toWhole(arguments[1]), kLongestText);
  if (columns < 1) return {};
  std::int64_t used = 0;
  std::string kept = fitting(text.view(), columns, false, used);
  if (kept.size() < text.view().size())
    return Value::text(kept.append(static_cast<std::size_t>(columns - used), ' '));
  const Value blank = Value::textView(" ");
  const TextOf filler(arguments.size() > 2 ? arguments[2] : blank);
  std::string fill = fitting(filler.view(), columns, true, used);
  fill.append(static_cast<std::size_t>(columns - used), ' ');
  return Value::text(left ? fill + kept : kept + fill);
}

bool contains(std::string_view set, std::string_view one) {
  for (std::size_t at = 0; at < set.size(); at += utf8::sizeAt(set, at)) {
    if (set.substr(at, utf8::sizeAt(set, at)) == one) return true;
  }
  return false;
}

Value trimmed(const TextOf& text, std::string_view set, bool left, bool right) {
  std::string_view view = text.view();
  while (left && !view.empty()) {
    const std::size_t size = utf8::sizeAt(view, 0);
    if (!contains(set, view.substr(0, size))) break;
    view.remove_prefix(size);
  }
  while (right && !view.empty()) {
    const std::size_t last = utf8::before(view, view.size());
    if (!contains(set, view.substr(last))) break;
    view.remove_suffix(view.size() - last);
  }
  return text.piece(view);
}

Value trimmedBySet(Arguments arguments, bool left, bool right) {
  const Value blank = Value::textView(" ");
  const TextOf set(arguments.size() > 1 ? arguments[1] : blank);
  return trimmed(TextOf(arguments[0]), set.view(), left, right);
}

}  // namespace

Value padLeft(Arguments arguments, const Context&) { return padded(arguments, true); }

Value padRight(Arguments arguments, const Context&) { return padded(arguments, false); }

Value trimLeft(Arguments arguments, const Context&) { return trimmedBySet(arguments, true, false); }

Value trimRight(Arguments arguments, const Context&) { return trimmedBySet(arguments, false, true); }

Value trim(Arguments arguments, const Context&) {
  bool left = true;
  bool right = true;
  if (arguments.size() > 1) {
    const TextOf set(arguments[1]);
    if (utf8::length(set.view()) != 1) throw FunctionError(30001, "trim set should have only one character");
  }
  if (arguments.size() > 2) {
    const std::string side = asciiUpper(TextOf(arguments[2]).view());
    left = side != "TRAILING";
    right = side != "LEADING";
  }
  return trimmedBySet(arguments.first(std::min<std::size_t>(arguments.size(), 2)), left, right);
}

}  // namespace oracle_sql::library

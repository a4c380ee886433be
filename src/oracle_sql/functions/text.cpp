#include <algorithm>

#include "oracle_sql/functions/library.h"
#include "oracle_sql/text/ascii_case.h"
#include "oracle_sql/text/utf8.h"

namespace oracle_sql::library {
namespace {

/// What SUBSTR keeps of `size` units: from the first (0: as 1, negative: from the end) as many as asked.
struct Slice {
  std::size_t begin = 0;
  std::size_t count = 0;  // 0: nothing
};

Slice sliceOf(Arguments arguments, std::size_t size) {
  const auto total = static_cast<std::int64_t>(size);
  std::int64_t begin = toWhole(arguments[1]);
  std::int64_t count = arguments.size() > 2 ? toWhole(arguments[2]) : total;
  begin = begin > 0 ? begin - 1 : begin == 0 ? 0 : begin < -total ? -1 : begin + total;
  if (begin < 0 || begin >= total || count < 1) return {};
  count = std::min(count, total - begin);
  return {static_cast<std::size_t>(begin), static_cast<std::size_t>(count)};
}

template <typename Change>
Value mapped(const Value& argument, Change change) {
  const TextOf text(argument);
  std::string out;
  out.reserve(text.view().size());
  for (std::size_t at = 0; at < text.view().size();) {
    const std::size_t size = utf8::sizeAt(text.view(), at);
    const std::string_view one = text.view().substr(at, size);
    const std::uint32_t code = utf8::decode(one);
    const std::uint32_t changed = change(code);
    if (changed == code)
      out += one;
    else
      utf8::append(out, changed);
    at += size;
  }
  return Value::text(std::move(out));
}

}  // namespace

Value length(Arguments arguments, const Context&) {
  return static_cast<std::int64_t>(utf8::length(TextOf(arguments[0]).view()));
}

Value lengthBytes(Arguments arguments, const Context&) {
  return static_cast<std::int64_t>(TextOf(arguments[0]).view().size());
}

Value substring(Arguments arguments, const Context&) {
  const TextOf text(arguments[0]);
  const std::string_view view = text.view();
  const bool ascii = utf8::isAscii(view);
  const Slice slice = sliceOf(arguments, ascii ? view.size() : utf8::length(view));
  if (ascii) return text.piece(view.substr(slice.begin, slice.count));
  const std::string_view rest = view.substr(utf8::offset(view, slice.begin));
  return text.piece(rest.substr(0, utf8::offset(rest, slice.count)));
}

/// The bytes of a character that is cut through become blanks, so that the result is text again.
Value substringBytes(Arguments arguments, const Context&) {
  const TextOf text(arguments[0]);
  const std::string_view view = text.view();
  const Slice slice = sliceOf(arguments, view.size());
  const std::size_t end = slice.begin + slice.count;
  if (slice.count == 0 || utf8::isAscii(view)) return text.piece(view.substr(slice.begin, slice.count));
  std::string out;
  for (std::size_t at = 0; at < end;) {
    const std::size_t next = at + utf8::sizeAt(view, at);
    if (at >= slice.begin && next <= end)
      out += view.substr(at, next - at);
    else if (next > slice.begin)
      out.append(std::min(next, end) - std::max(at, slice.begin), ' ');
    at = next;
  }
  return Value::text(std::move(out));
}

Value upper(Arguments arguments, const Context&) { return mapped(arguments[0], utf8::upper); }

Value lower(Arguments arguments, const Context&) { return mapped(arguments[0], utf8::lower); }

Value initialCapitals(Arguments arguments, const Context&) {
  bool start = true;
  return mapped(arguments[0], [&start](std::uint32_t code) {
    const std::uint32_t changed = start ? utf8::upper(code) : utf8::lower(code);
    start = !utf8::isAlphanumeric(code);
    return changed;
  });
}

Value concat(Arguments arguments, const Context&) { return concatenate(arguments[0], arguments[1]); }

/// The bytes of the first character as one number.
Value ascii(Arguments arguments, const Context&) {
  const TextOf text(arguments[0]);
  std::int64_t code = 0;
  for (const char c : text.view().substr(0, utf8::sizeAt(text.view(), 0)))
    code = code * 256 + static_cast<unsigned char>(c);
  return code;
}

Value character(Arguments arguments, const Context&) {
  const std::int64_t code = toWhole(arguments[0]);
  if (code < 0 || code > 0xFFFFFFFF) raiseArgumentOutOfRange(Number(code).toText());
  std::string bytes;
  for (std::int64_t rest = code; rest != 0 || bytes.empty(); rest /= 256)
    bytes.insert(0, 1, static_cast<char>(rest % 256));
  return Value::text(std::move(bytes));
}

}  // namespace oracle_sql::library

#include "oracle_sql/functions/library.h"
#include "oracle_sql/text/utf8.h"

namespace oracle_sql {

Value add(const Value& a, const Value& b) {
  if (a.isNull() || b.isNull()) return {};
  if (a.isDate() && b.isDate()) throw FunctionError(975, "date + date not allowed");
  if (a.isDate()) return a.date() + toNumber(b);
  return b.isDate() ? Value(b.date() + toNumber(a)) : Value(toNumber(a) + toNumber(b));
}

Value subtract(const Value& a, const Value& b) {
  if (a.isNull() || b.isNull()) return {};
  if (a.isDate()) return b.isDate() ? Value(a.date() - b.date()) : Value(a.date() - toNumber(b));
  return toNumber(a) - toNumber(b);
}

Value multiply(const Value& a, const Value& b) {
  return a.isNull() || b.isNull() ? Value() : Value(toNumber(a) * toNumber(b));
}

Value divide(const Value& a, const Value& b) {
  return a.isNull() || b.isNull() ? Value() : Value(toNumber(a) / toNumber(b));
}

Value negate(const Value& a) { return a.isNull() ? Value() : Value(-toNumber(a)); }

Value concatenate(const Value& a, const Value& b) {
  const library::TextOf left(a);
  const library::TextOf right(b);
  std::string text;
  text.reserve(left.view().size() + right.view().size());
  text += left.view();
  text += right.view();
  return Value::text(std::move(text));
}

namespace {

/// The pattern's unit at a place: a character to match, or a wildcard.
struct PatternUnit {
  std::string_view text;
  bool any = false;  // %
  bool one = false;  // _
  std::size_t next = 0;
};

PatternUnit unitAt(std::string_view pattern, std::size_t at, std::string_view escape) {
  PatternUnit unit;
  std::size_t size = utf8::sizeAt(pattern, at);
  unit.text = pattern.substr(at, size);
  if (!escape.empty() && unit.text == escape) {
    at += size;
    size = at < pattern.size() ? utf8::sizeAt(pattern, at) : 0;
    unit.text = pattern.substr(at, size);
    if (unit.text != "%" && unit.text != "_" && unit.text != escape)
      throw FunctionError(1424, "missing or illegal character following the escape character");
  } else {
    unit.any = unit.text == "%";
    unit.one = unit.text == "_";
  }
  unit.next = at + size;
  return unit;
}

}  // namespace

bool like(std::string_view text, std::string_view pattern, std::string_view escape) {
  if (!escape.empty()) {
    if (utf8::length(escape) != 1) raiseEscape();
    for (std::size_t at = 0; at < pattern.size();) {
      at = unitAt(pattern, at, escape).next;  // a broken escape fails wherever it stands
    }
  }
  constexpr std::size_t kNone = std::string_view::npos;
  std::size_t t = 0;
  std::size_t p = 0;
  std::size_t afterAny = kNone;  // behind the last %, and how much of the text that one has taken
  std::size_t taken = 0;
  while (t < text.size()) {
    if (p < pattern.size()) {
      const PatternUnit unit = unitAt(pattern, p, escape);
      if (unit.any) {
        p = unit.next;
        afterAny = p;
        taken = t;
        continue;
      }
      if (unit.one || text.substr(t).starts_with(unit.text)) {
        t += unit.one ? utf8::sizeAt(text, t) : unit.text.size();
        p = unit.next;
        continue;
      }
    }
    if (afterAny == kNone) return false;
    taken += utf8::sizeAt(text, taken);
    t = taken;
    p = afterAny;
  }
  while (p < pattern.size()) {
    const PatternUnit unit = unitAt(pattern, p, escape);
    if (!unit.any) return false;
    p = unit.next;
  }
  return true;
}

}  // namespace oracle_sql

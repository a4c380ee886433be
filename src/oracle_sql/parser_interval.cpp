// INTERVAL '1 12:30' DAY TO MINUTE.
#include <charconv>

#include "oracle_sql/parser_state.h"

namespace oracle_sql {

namespace {

constexpr std::string_view kFields[] = {"YEAR", "MONTH", "DAY", "HOUR", "MINUTE", "SECOND"};

}  // namespace

IntervalField Parser::intervalField() {
  for (std::size_t i = 0; i < std::size(kFields); ++i) {
    if (isWord(kFields[i])) {
      take();
      return static_cast<IntervalField>(i);
    }
  }
  fail(30089, "missing or invalid <datetime field>");
}

// The digits of a field, `otherwise` if none are written.
int Parser::intervalDigits(int otherwise) {
  if (!accept(Symbol::LeftParen)) return otherwise;
  const auto digits = [&] {
    int n = -1;
    const std::string_view text = now().text;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), n);
    if (now().kind != TokenKind::Number || failure != std::errc() || end != text.data() + text.size() ||
        n > 9)
      fail(30088, "datetime/interval precision is out of range");
    take();
    return n;
  };
  const int first = digits();
  if (accept(Symbol::Comma)) digits();  // of fractions of a second
  expectRightParen();
  return first;
}

Expr* Parser::interval() {
  auto* node = this->node<IntervalLiteral>(take().place);
  node->value = tree_.copy(stringValue(take()));
  IntervalFields& fields = node->fields;
  fields.first = intervalField();
  fields.last = fields.first;
  fields.digits = intervalDigits(2);
  if (accept(Keyword::To)) {
    fields.last = intervalField();
    if (fields.last == IntervalField::Second) intervalDigits(6);
    const bool ofMonths = fields.last <= IntervalField::Month;
    if (fields.last <= fields.first || ofMonths != (fields.first <= IntervalField::Month))
      fail(30089, "missing or invalid <datetime field>");
  }
  return node;
}

}  // namespace oracle_sql

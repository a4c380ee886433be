// Reads lines "a b places" and prints, one line each: a+b a-b a*b a/b, the comparison, a rounded and
// truncated to the places, a and a/b as text, and the order of the byte forms. An error prints as "!" and its
// number.
#include <cstdio>
#include <cstring>
#include <iostream>
#include <iterator>
#include <string>
#include <string_view>

#include "oracle_sql/function_error.h"
#include "oracle_sql/number/number.h"

namespace {

using oracle_sql::Number;

std::string_view nextWord(std::string_view& text, char end) {
  const std::size_t at = text.find(end);
  const std::string_view word = text.substr(0, at);
  text.remove_prefix(at == std::string_view::npos ? text.size() : at + 1);
  return word;
}

template <typename Compute>
std::string told(Compute compute) {
  try {
    return compute();
  } catch (const oracle_sql::FunctionError& error) {
    return "!" + std::to_string(error.code());
  }
}

int byteOrder(const Number& a, const Number& b) {
  std::uint8_t x[Number::kMaxBytes];
  std::uint8_t y[Number::kMaxBytes];
  const std::size_t m = a.toBytes(x);
  const std::size_t n = b.toBytes(y);
  if (*Number::fromBytes({x, m}) != a || *Number::fromBytes({y, n}) != b) {
    return 9;
  }
  const int order = std::memcmp(x, y, std::min(m, n));
  return order != 0 ? (order < 0 ? -1 : 1) : m < n ? -1 : m > n ? 1 : 0;
}

std::string answer(std::string_view line) {
  const Number a = *Number::parse(nextWord(line, ' '));
  const Number b = *Number::parse(nextWord(line, ' '));
  const int places = static_cast<int>(*Number::parse(line)->toInt64());
  std::string out;
  const auto add = [&](const std::string& word) {
    out += word;
    out += ' ';
  };
  add(told([&] { return (a + b).toPlainText(); }));
  add(told([&] { return (a - b).toPlainText(); }));
  add(told([&] { return (a * b).toPlainText(); }));
  add(told([&] { return (a / b).toPlainText(); }));
  add(std::to_string(compare(a, b)));
  add(told([&] { return a.round(places).toPlainText(); }));
  add(told([&] { return a.trunc(places).toPlainText(); }));
  add(a.toText());
  add(told([&] { return (a / b).toText(); }));
  add(std::to_string(byteOrder(a, b)));
  out.back() = '\n';
  return out;
}

}  // namespace

int main() {
  std::ios::sync_with_stdio(false);
  const std::string input(std::istreambuf_iterator<char>(std::cin), {});
  std::string_view rest = input;
  std::string output;
  while (!rest.empty()) {
    output += answer(nextWord(rest, '\n'));
  }
  std::cout << output;
  return 0;
}

// As much of JSON as test data needs: one value from one text.
#pragma once

#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace kestrelix::testing_support {

struct Json {
  enum class Kind { Null, Bool, Number, Text, Array, Object };
  Kind kind = Kind::Null;
  bool truth = false;
  std::string text;  ///< of a Text, or a Number as it is written
  std::vector<Json> items;
  std::map<std::string, Json> members;

  bool has(const std::string& name) const { return members.contains(name); }
  const Json& operator[](const std::string& name) const { return members.at(name); }

  static Json parse(std::string_view text) {
    Reader reader{text};
    Json value = reader.value();
    reader.blanks();
    if (reader.at != text.size()) throw std::runtime_error("JSON: more than one value");
    return value;
  }

 private:
  struct Reader {
    std::string_view source;
    std::size_t at = 0;

    [[noreturn]] void fail() const {
      throw std::runtime_error("JSON: cannot be read at " + std::to_string(at));
    }
    char peek() const { return at < source.size() ? source[at] : '\0'; }
    void blanks() {
      while (peek() == ' ' || peek() == '\t' || peek() == '\n' || peek() == '\r') ++at;
    }
    void expect(char c) {
      if (peek() != c) fail();
      ++at;
    }
    bool word(std::string_view text) {
      if (source.substr(at, text.size()) != text) return false;
      at += text.size();
      return true;
    }

    Json value() {
      blanks();
      Json result;
      if (peek() == '{') {
        result.kind = Kind::Object;
        list('{', '}', [&] {
          const std::string name = string();
          blanks();
          expect(':');
          result.members[name] = value();
        });
      } else if (peek() == '[') {
        result.kind = Kind::Array;
        list('[', ']', [&] { result.items.push_back(value()); });
      } else if (peek() == '"') {
        result.kind = Kind::Text;
        result.text = string();
      } else if (word("true") || word("false")) {
        result.kind = Kind::Bool;
        result.truth = source[at - 2] == 'u';
      } else if (!word("null")) {
        result.kind = Kind::Number;
        while (std::string_view("+-.eE0123456789").find(peek()) != std::string_view::npos && peek())
          result.text += source[at++];
        if (result.text.empty()) fail();
      }
      return result;
    }

    template <class Item>
    void list(char open, char close, Item item) {
      expect(open);
      blanks();
      if (peek() == close) {
        ++at;
        return;
      }
      while (true) {
        blanks();
        item();
        blanks();
        if (peek() == close) break;
        expect(',');
      }
      ++at;
    }

    unsigned hex() {
      unsigned code = 0;
      for (int i = 0; i < 4; ++i) {
        const char c = peek();
        const char* digits = "0123456789abcdef";
        const auto digit =
            std::string_view(digits).find(c >= 'A' && c <= 'F' ? static_cast<char>(c + 32) : c);
        if (digit == std::string_view::npos || c == '\0') fail();
        code = code * 16 + static_cast<unsigned>(digit);
        ++at;
      }
      return code;
    }

    static void append(std::string& text, unsigned code) {
      const auto tail = [&](int shift) { text += static_cast<char>(0x80 | ((code >> shift) & 0x3F)); };
      if (code < 0x80) {
        text += static_cast<char>(code);
      } else if (code < 0x800) {
        text += static_cast<char>(0xC0 | (code >> 6));
        tail(0);
      } else if (code < 0x10000) {
        text += static_cast<char>(0xE0 | (code >> 12));
        tail(6);
        tail(0);
      } else {
        text += static_cast<char>(0xF0 | (code >> 18));
        tail(12);
        tail(6);
        tail(0);
      }
    }

    std::string string() {
      expect('"');
      std::string text;
      while (peek() != '"') {
        if (at >= source.size()) fail();
        char c = source[at++];
        if (c != '\\') {
          text += c;
          continue;
        }
        c = source[at++];
        if (c == 'u') {
          unsigned code = hex();
          if (code >= 0xD800 && code < 0xDC00 && word("\\u"))
            code = 0x10000 + ((code - 0xD800) << 10) + hex() - 0xDC00;
          append(text, code);
        } else {
          const std::string_view from = "bfnrt";
          const auto known = from.find(c);
          text += known == std::string_view::npos ? c : "\b\f\n\r\t"[known];
        }
      }
      ++at;
      return text;
    }
  };
};

}  // namespace kestrelix::testing_support

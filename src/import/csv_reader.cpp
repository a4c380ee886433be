#include "import/csv_reader.h"

#include <string_view>

namespace kestrelix::importing {

namespace {

constexpr std::size_t kBufferBytes = 1 << 18;
constexpr int kEnd = -1;

// Length of the UTF-8 sequence at the start of the text; 0 where it is none. Surrogates and overlong forms
// are none.
std::size_t sequenceLength(std::string_view text) {
  const auto byte = [&](std::size_t i) { return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U; };
  const auto follows = [&](std::size_t i, unsigned low = 0x80, unsigned high = 0xBF) {
    return byte(i) >= low && byte(i) <= high;
  };
  const unsigned lead = byte(0);
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead <= 0xDF) return follows(1) ? 2 : 0;
  if (lead >= 0xE0 && lead <= 0xEF)
    return follows(1, lead == 0xE0 ? 0xA0 : 0x80, lead == 0xED ? 0x9F : 0xBF) && follows(2) ? 3 : 0;
  if (lead >= 0xF0 && lead <= 0xF4)
    return follows(1, lead == 0xF0 ? 0x90 : 0x80, lead == 0xF4 ? 0x8F : 0xBF) && follows(2) && follows(3) ? 4
                                                                                                          : 0;
  return 0;
}

bool isUtf8(std::string_view text) {
  while (!text.empty()) {
    const std::size_t length = sequenceLength(text);
    if (length == 0) return false;
    text.remove_prefix(length);
  }
  return true;
}

}  // namespace

CsvReader::CsvReader(std::istream& in) : in_(in), buffer_(kBufferBytes) {
  if (peek() != 0xEF) return;
  take();
  if (take() != 0xBB || take() != 0xBF) fail(1, "not UTF-8");
}

int CsvReader::peek() {
  if (at_ == end_) {
    in_.read(buffer_.data(), static_cast<std::streamsize>(buffer_.size()));
    end_ = static_cast<std::size_t>(in_.gcount());
    at_ = 0;
    if (end_ == 0) return kEnd;
  }
  return static_cast<unsigned char>(buffer_[at_]);
}

int CsvReader::take() {
  const int c = peek();
  if (c == kEnd) return kEnd;
  ++at_;
  ++bytes_;
  last_ = c;
  if (c == '\n') ++line_;
  return c;
}

void CsvReader::fail(std::int64_t line, const std::string& why) const {
  throw CsvError(line, count_ == 0 ? 0 : count_ - 1, why);
}

void CsvReader::readQuoted(std::string& text) {
  const std::int64_t start = line_;
  take();
  for (;;) {
    const int c = take();
    if (c == kEnd) fail(start, "a quote that is not closed");
    if (c == '"') {
      if (peek() != '"') return;
      take();
    }
    text += static_cast<char>(c);
  }
}

void CsvReader::readField() {
  if (count_ == record_.size()) record_.emplace_back();
  CsvField& field = record_[count_++];
  field.text.clear();
  field.line = line_;
  if (peek() == '"') {
    readQuoted(field.text);
    const int c = peek();
    if (c != ',' && c != '\r' && c != '\n' && c != kEnd) fail(line_, "text behind a closing quote");
  } else {
    for (int c = peek(); c != ',' && c != '\n' && c != kEnd; c = peek()) {
      if (c == '"') fail(line_, "a quote inside a field that does not begin with one");
      field.text += static_cast<char>(take());
    }
    // The CR of a line end was taken for text.
    if (peek() != ',' && field.text.ends_with('\r')) field.text.pop_back();
  }
  if (field.text.find('\0') != std::string::npos) fail(field.line, "a NUL byte");
  if (!isUtf8(field.text)) fail(field.line, "not UTF-8");
}

bool CsvReader::next() {
  for (;;) {
    if (peek() == kEnd) return false;
    const bool quoted = peek() == '"';
    count_ = 0;
    readField();
    while (peek() == ',') {
      take();
      readField();
    }
    if (peek() == '\r') take();
    if (peek() != '\n' && peek() != kEnd) fail(line_, "a CR that does not end the line");
    take();
    if (count_ > 1 || quoted || !record_[0].text.empty()) {
      record_.resize(count_);
      return true;
    }
  }
}

}  // namespace kestrelix::importing

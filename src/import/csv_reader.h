// Reads comma-separated values as RFC 4180 has them.
#pragma once

#include <cstdint>
#include <istream>
#include <stdexcept>
#include <string>
#include <vector>

namespace kestrelix::importing {

/// What is wrong with the text, and where.
class CsvError : public std::runtime_error {
 public:
  CsvError(std::int64_t line, std::size_t field, const std::string& why)
      : std::runtime_error(why), line_(line), field_(field) {}

  std::int64_t line() const { return line_; }   // from 1
  std::size_t field() const { return field_; }  // of the record, from 0

 private:
  std::int64_t line_;
  std::size_t field_;
};

struct CsvField {
  std::string text;
  std::int64_t line = 0;  // where it begins
};

/// One record after the other. Lines end in LF or CR LF; a quoted field may hold commas, line ends and
/// doubled quotes; a byte order mark at the start and lines without a character are passed over.
class CsvReader {
 public:
  explicit CsvReader(std::istream& in);

  /// Moves to the next record; false behind the last one. Throws CsvError for a quote in the wrong place, an
  /// open quote at the end, a NUL byte, and text that is no UTF-8.
  bool next();
  /// The fields of the record, at least one.
  const std::vector<CsvField>& record() const { return record_; }
  std::int64_t bytesRead() const { return bytes_; }
  /// Whether what was read so far ends with its last line's end, which a file that was cut seldom does.
  bool atLineEnd() const { return last_ == '\n'; }

 private:
  int take();
  int peek();
  void readField();
  void readQuoted(std::string& text);
  [[noreturn]] void fail(std::int64_t line, const std::string& why) const;

  std::istream& in_;
  std::vector<char> buffer_;
  std::size_t at_ = 0;
  std::size_t end_ = 0;
  std::int64_t bytes_ = 0;
  int last_ = '\n';
  std::int64_t line_ = 1;
  std::size_t count_ = 0;  // fields of the record being read
  std::vector<CsvField> record_;
};

}  // namespace kestrelix::importing

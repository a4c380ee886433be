#include "sections/sql/clsSQLShaping.h"

#include <algorithm>

#include "platform/code_page.h"

namespace kestrelix {
namespace {

constexpr std::size_t kPieceBytes = 64;
constexpr int kTextColumn = 4;
const std::string kLineBreak = "\r\n";

/// The last character of a UTF-8 text; bytes of a character that the text's end has cut are none.
std::string_view lastCharacter(std::string_view text) {
  std::size_t at = text.size();
  std::size_t following = 0;
  while (at > 0 && (static_cast<unsigned char>(text[at - 1]) & 0xC0) == 0x80) --at, ++following;
  if (at == 0) return {};
  const auto lead = static_cast<unsigned char>(text[at - 1]);
  const std::size_t expected = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : 0;
  return following == expected ? text.substr(at - 1) : std::string_view();
}

/// The server cuts a statement every 64 bytes and drops the blanks at a piece's end: they are put back, so
/// that two words don't run together. What ends in a double-byte character had no blank there.
std::string filledUp(std::string piece) {
  if (codePageLength(lastCharacter(piece)) == 1 && codePageLength(piece) < kPieceBytes)
    piece.append(kPieceBytes - codePageLength(piece), ' ');
  return piece;
}

std::string trimmed(const std::string& text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

/// Each run of `unit` as one.
std::string collapsed(const std::string& text, const std::string& unit) {
  std::string result;
  for (std::size_t at = 0; at < text.size();) {
    if (text.compare(at, unit.size(), unit) != 0) {
      result += text[at++];
      continue;
    }
    result += unit;
    while (text.compare(at, unit.size(), unit) == 0) at += unit.size();
  }
  return result;
}

}  // namespace

/// `cell` gives a cell as a grid counts: the headings are row 0, the running numbers column 0.
template <class Cell>
bool clsSQLShaping::take(int rows, Cell cell, Failures& failures) {
  for (auto* texts : {&pieces_, &lines_, &headings_, &keys_}) texts->clear();
  joined_.clear();
  shaped_.clear();
  return guarded(failures, "clsSQLShaping", "Initialize", [&] {
    for (int c = 1; c <= kTextColumn; ++c) headings_.push_back(cell(0, c));
    for (int c = 1; c < kTextColumn; ++c) keys_.push_back(cell(1, c));
    for (int r = 1; r < rows; ++r) pieces_.push_back(cell(r, kTextColumn));
  });
}

bool clsSQLShaping::Initialize(const Grid& grid, Failures& failures) {
  return take(
      grid.Rows(), [&](int row, int c) { return grid.TextMatrix(row, c); }, failures);
}

bool clsSQLShaping::Initialize(const ReportTable& pieces, Failures& failures) {
  const auto cell = [&](int row, int c) {
    const auto column = static_cast<std::size_t>(c - 1);
    return row == 0 ? pieces.columns.at(column).heading
                    : pieces.rows.at(static_cast<std::size_t>(row - 1)).at(column);
  };
  return take(static_cast<int>(pieces.rows.size()) + 1, cell, failures);
}

bool clsSQLShaping::ExecShaping(Failures& failures) {
  const bool done = guarded(failures, "clsSQLShaping", "InputSqlJoin", [this] { InputSqlJoin(); }) &&
                    guarded(failures, "clsSQLShaping", "ShapingMain", [this] { ShapingMain(); }) &&
                    guarded(failures, "clsSQLShaping", "MakeOutBuffer", [this] { MakeOutBuffer(); });
  if (!done) failures.push_back({failureText("clsSQLShaping", "ExecShaping")});
  return done;
}

/// The keys stand in the first row alone.
ReportTable clsSQLShaping::table(const std::vector<std::string>& texts) const {
  ReportTable table;
  table.read = true;
  for (const std::string& heading : headings_) table.columns.push_back({heading, {Kind::Key, unit::number}});
  table.columns.back().measure = {Kind::Text};
  for (const std::string& text : texts) {
    std::vector<std::string>& row = table.rows.emplace_back();
    if (table.rows.size() == 1)
      row = keys_;
    else
      row.resize(keys_.size());
    row.push_back(text);
  }
  return table;
}

void clsSQLShaping::InputSqlJoin() {
  std::string buffer;
  for (std::size_t i = 0; i < pieces_.size(); ++i)
    buffer += i + 1 < pieces_.size() ? filledUp(pieces_[i]) : pieces_[i];
  joined_ = collapsed(trimmed(buffer), " ");
}

void clsSQLShaping::ShapingMain() {
  shaped_ = joined_;
  // The first break goes wherever it stands: the first two lines run together.
  if (const std::size_t first = shaped_.find(kLineBreak); first != std::string::npos)
    shaped_.erase(first, kLineBreak.size());
  shaped_ = collapsed(shaped_, kLineBreak) + kLineBreak;
}

void clsSQLShaping::MakeOutBuffer() {
  lines_.clear();
  for (std::size_t at = 0; at < shaped_.size();) {
    const std::size_t end = shaped_.find(kLineBreak, at);
    lines_.push_back(shaped_.substr(at, end - at));
    at = end + kLineBreak.size();
  }
}

}  // namespace kestrelix

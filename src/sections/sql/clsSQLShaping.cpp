#include "sections/sql/clsSQLShaping.h"

#include <algorithm>

#include "platform/code_page.h"
#include "platform/guarded.h"

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

bool clsSQLShaping::Initialize(const Grid& grid) {
  for (auto* texts : {&pieces_, &lines_, &headings_, &keys_}) texts->clear();
  joined_.clear();
  shaped_.clear();
  return guarded(boxes_, "clsSQLShaping", "Initialize", [&] {
    for (int c = 1; c <= kTextColumn; ++c) headings_.push_back(grid.TextArray(c));
    for (int c = 1; c < kTextColumn; ++c) keys_.push_back(grid.TextMatrix(1, c));
    for (int r = 1; r < grid.Rows(); ++r) pieces_.push_back(grid.TextMatrix(r, kTextColumn));
  });
}

bool clsSQLShaping::ExecShaping() {
  const bool done = guarded(boxes_, "clsSQLShaping", "InputSqlJoin", [this] { InputSqlJoin(); }) &&
                    guarded(boxes_, "clsSQLShaping", "ShapingMain", [this] { ShapingMain(); }) &&
                    guarded(boxes_, "clsSQLShaping", "MakeOutBuffer", [this] { MakeOutBuffer(); });
  if (!done) boxes_.show(BoxIcon::Critical, failureText("clsSQLShaping", "ExecShaping"));
  return done;
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

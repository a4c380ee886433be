#include <charconv>
#include <cstdint>

#include "chm/HelpFile.h"
#include "platform/ascii.h"

namespace kestrelix {
namespace {

void appendUtf8(std::string& text, std::uint32_t character) {
  const auto put = [&](std::uint32_t byte) { text += static_cast<char>(byte); };
  if (character < 0x80) return put(character);
  if (character < 0x800) {
    put(0xC0 | character >> 6);
  } else {
    if (character < 0x10000) {
      put(0xE0 | character >> 12);
    } else {
      put(0xF0 | character >> 18);
      put(0x80 | (character >> 12 & 0x3F));
    }
    put(0x80 | (character >> 6 & 0x3F));
  }
  put(0x80 | (character & 0x3F));
}

/// Appends what the reference between "&" and ";" stands for; false for one that isn't known.
bool appendReference(std::string& text, std::string_view reference) {
  if (reference.starts_with('#')) {
    reference.remove_prefix(1);
    std::uint32_t character = 0;
    const auto [end, error] =
        std::from_chars(reference.data(), reference.data() + reference.size(), character);
    if (error != std::errc() || end != reference.data() + reference.size() || character > 0x10FFFF)
      return false;
    appendUtf8(text, character);
    return true;
  }
  if (reference == "amp")
    text += '&';
  else if (reference == "lt")
    text += '<';
  else if (reference == "gt")
    text += '>';
  else if (reference == "quot")
    text += '"';
  else
    return false;
  return true;
}

std::string decoded(std::string_view html) {
  std::string text;
  while (!html.empty()) {
    const auto end = html.front() == '&' ? html.find(';') : std::string_view::npos;
    if (end != std::string_view::npos && appendReference(text, html.substr(1, end - 1))) {
      html.remove_prefix(end + 1);
    } else {
      text += html.front();
      html.remove_prefix(1);
    }
  }
  return text;
}

/// The value of a quoted attribute of a tag, empty if it has none.
std::string_view attribute(std::string_view tag, std::string_view name) {
  const auto at = tag.find(std::string(" ") + std::string(name) + "=\"");
  if (at == std::string_view::npos) return {};
  tag.remove_prefix(at + name.size() + 3);
  return tag.substr(0, tag.find('"'));
}

}  // namespace

std::vector<HelpTopic> helpTopics(std::string_view file) {
  std::vector<HelpTopic> topics;
  HelpTopic topic;
  int depth = -1;  // the first list is level 0
  while (true) {
    const auto begin = file.find('<');
    if (begin == std::string_view::npos) return topics;
    const auto end = file.find('>', begin);
    if (end == std::string_view::npos) return topics;
    const std::string_view tag = file.substr(begin + 1, end - begin - 1);
    file.remove_prefix(end + 1);
    const std::string kind = asciiUpper(tag.substr(0, tag.find(' ')));
    if (kind == "UL") {
      ++depth;
    } else if (kind == "/UL") {
      --depth;
    } else if (kind == "OBJECT") {
      topic = {};
    } else if (kind == "PARAM") {
      const std::string_view name = attribute(tag, "name");
      if (name == "Name") topic.title = decoded(attribute(tag, "value"));
      if (name == "Local") topic.address = decoded(attribute(tag, "value"));
    } else if (kind == "/OBJECT" && !topic.title.empty() && !topic.address.empty()) {
      topic.depth = std::max(depth, 0);
      topics.push_back(topic);
    }
  }
}

}  // namespace kestrelix

#include "chm/HelpFile.h"

#include <chm_lib.h>

#include <algorithm>

namespace kestrelix {
namespace {

/// No page comes near it: a length beyond is a damaged file's.
constexpr LONGUINT64 kLargestObject = 16u << 20;

}  // namespace

void HelpFile::Close::operator()(chmFile* file) const { chm_close(file); }

std::unique_ptr<HelpFile> HelpFile::open(const std::string& path) {
  Handle handle(chm_open(path.c_str()));
  if (!handle) return nullptr;
  return std::unique_ptr<HelpFile>(new HelpFile(std::move(handle)));
}

std::optional<std::string> HelpFile::read(const std::string& name) const {
  chmUnitInfo object{};
  if (name.size() >= sizeof object.path ||
      chm_resolve_object(handle_.get(), name.c_str(), &object) != CHM_RESOLVE_SUCCESS ||
      object.length > kLargestObject)
    return std::nullopt;
  std::string bytes(static_cast<std::size_t>(object.length), '\0');
  if (bytes.empty()) return bytes;
  const LONGINT64 read =
      chm_retrieve_object(handle_.get(), &object, reinterpret_cast<unsigned char*>(bytes.data()), 0,
                          static_cast<LONGINT64>(bytes.size()));
  if (read != static_cast<LONGINT64>(bytes.size())) return std::nullopt;
  // The library leaves zeros where it can't unpack a block; no text holds any.
  if (bytes.find('\0') != std::string::npos) return std::nullopt;
  return bytes;
}

std::vector<std::string> HelpFile::names() const {
  std::vector<std::string> names;
  const auto take = [](chmFile*, chmUnitInfo* object, void* into) {
    static_cast<std::vector<std::string>*>(into)->emplace_back(object->path);
    return CHM_ENUMERATOR_CONTINUE;
  };
  chm_enumerate(handle_.get(), CHM_ENUMERATE_NORMAL | CHM_ENUMERATE_FILES, take, &names);
  return names;
}

std::vector<HelpTopic> HelpFile::contents() const {
  for (const std::string& name : names())
    if (name.ends_with(".hhc")) return helpTopics(read(name).value_or(""));
  return {};
}

bool HelpFile::complete() const {
  const std::vector<HelpTopic> topics = contents();
  return !topics.empty() && std::all_of(topics.begin(), topics.end(), [this](const HelpTopic& topic) {
    return read("/" + topic.address.substr(0, topic.address.find('#'))).has_value();
  });
}

}  // namespace kestrelix

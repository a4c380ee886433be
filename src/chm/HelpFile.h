// Compiled help files (.chm), read with libchm.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct chmFile;

namespace kestrelix {

/// An entry of the table of contents: `address` is a page, with an anchor or without
/// ("waits.html#section-20").
struct HelpTopic {
  std::string title;  ///< UTF-8
  std::string address;
  int depth = 0;  ///< 0 for the outermost entries

  bool operator==(const HelpTopic&) const = default;
};

/// The entries of a contents file (.hhc), nested lists of sitemap objects. Objects without a title or an
/// address are passed over.
std::vector<HelpTopic> helpTopics(std::string_view contentsFile);

/// A help file that is open for reading.
class HelpFile {
 public:
  /// Null if there is no such file or it isn't one.
  static std::unique_ptr<HelpFile> open(const std::string& path);

  /// The text of a file inside ("/index.html"); nothing if it is missing or damaged.
  std::optional<std::string> read(const std::string& name) const;
  /// The names of the files inside, each with a leading "/".
  std::vector<std::string> names() const;
  /// The table of contents; empty without one.
  std::vector<HelpTopic> contents() const;
  /// Is there a table of contents, and can every page that it names be read?
  bool complete() const;

 private:
  struct Close {
    void operator()(chmFile* file) const;
  };
  using Handle = std::unique_ptr<chmFile, Close>;

  explicit HelpFile(Handle handle) : handle_(std::move(handle)) {}

  Handle handle_;
};

}  // namespace kestrelix

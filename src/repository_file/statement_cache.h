// Statements translated and prepared once, and kept.
#pragma once

#include <sqlite3.h>

#include <list>
#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/database.h"
#include "repository_file/evaluation.h"
#include "repository_file/file_catalogue.h"
#include "repository_file/sqlite_handle.h"

namespace kestrelix::repository_file {

struct BoundParameter {
  int position;  ///< of SQLite's parameter
  std::string bind;
};

struct PreparedStatement {
  LoweredStatement lowered;
  StatementHandle handle;
  std::vector<BoundParameter> parameters;
  std::shared_ptr<const std::vector<std::string>> names;  ///< of the columns
  bool asksClock = false;  ///< SYSDATE, or a date model that leaves the month out
};

class StatementCache {
 public:
  StatementCache(sqlite3* connection, const FileCatalogue& catalogue, Evaluation& evaluation);

  /// The statement for these binds: what is known of a bind's value (its type, whether it is whole, how
  /// large) is part of the translation. Throws SqlError, or DatabaseError when a bind is no number.
  /// `wideSums` asks for the form whose sums have no bounds.
  PreparedStatement& get(const std::string& text, const Parameters& binds, bool wideSums = false);

 private:
  struct PerText {
    std::vector<std::string> binds;  ///< named in the text, each once
    std::map<std::string, std::unique_ptr<PreparedStatement>> byBindClasses;
    std::list<std::string>::iterator age;
  };

  PerText& perText(const std::string& text);
  std::unique_ptr<PreparedStatement> translate(const std::string& text, const PerText& known,
                                               const std::string& classes, bool wideSums);

  sqlite3* connection_;
  const FileCatalogue& catalogue_;
  Evaluation& evaluation_;
  std::unordered_map<std::string, PerText> texts_;
  std::list<std::string> ages_;  ///< of the texts, the last used in front
  std::set<std::string> registered_;
};

}  // namespace kestrelix::repository_file

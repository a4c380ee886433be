#pragma once

#include <string>
#include <vector>

#include "report/statement.h"

namespace kestrelix {

/// A statement that the program can send, and from where.
struct SentStatement {
  std::string owner;   ///< the class: clsLoadProfile
  std::string member;  ///< its member: getREDO_SIZE
  /// "All", "Col", "All and Col" for a metric; "bind" for the query behind a bind; "list" for what fills the
  /// lists of instances and pairs
  std::string view;
  Versions versions;  ///< that send it
  std::string text;
  std::vector<Bind> binds;  ///< beside B1 to B4, which are numbers unless they stand here
};

/// Every statement of every class that talks to the repository, each class once: those of the lists of
/// instances and pairs, then the Sections' in the order of the catalogue, then those of the SQL panels.
std::vector<SentStatement> everyStatement();

}  // namespace kestrelix

#pragma once

#include <string>
#include <vector>

#include "report/statement.h"

namespace kestrelix {

/// A statement that the program can send, and from where.
struct SentStatement {
  std::string owner;   ///< the class: clsLoadProfile
  std::string member;  ///< its member: getREDO_SIZE
  std::string view;    ///< "All", "Col", "All and Col" for a metric, "bind" for the query behind a bind
  Versions versions;   ///< that send it
  std::string text;
  std::vector<Bind> binds;  ///< beside B1 to B4, which are numbers unless they stand here
};

/// Every statement of every class that talks to the repository, each class once, in the order of the catalogue.
std::vector<SentStatement> everyStatement();

}  // namespace kestrelix

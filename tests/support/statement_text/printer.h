// From tree to text.
#pragma once

#include <string>

#include "oracle_sql/syntax/tree.h"

namespace oracle_sql {

/// Oracle text of the tree on one line. Parsing it again gives an equal tree.
std::string print(const Query& query);
std::string print(const Expr& expr);

/// The tree as indented lines, one node each, with types where it is resolved: for golden files.
std::string dump(const Query& query);

/// Same structure, names and literals; places and what resolving adds do not count.
bool equal(const Query& a, const Query& b);
bool equal(const Expr& a, const Expr& b);

}  // namespace oracle_sql

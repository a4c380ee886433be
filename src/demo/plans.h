// Execution plans of the demo's statements.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "demo/statements.h"

namespace kestrelix::demo {

struct PlanLine {
  int depth = 0;
  int parent = -1;  // id of the line above; -1 for the first
  std::string operation;
  std::string options;
  std::string object;
  std::int64_t rows = -1;  // -1 for none, also below
  std::int64_t bytes = -1;
  std::int64_t cost = -1;
};

struct Plan {
  std::int64_t hash = 0;
  std::vector<PlanLine> lines;
};

/// The usual plan of a statement, or its other one. A statement of PL/SQL has neither.
Plan planOf(const Statement& statement, bool other);

}  // namespace kestrelix::demo

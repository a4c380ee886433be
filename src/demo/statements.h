// The SQL statements that the demo's databases run.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "demo/scene.h"

namespace kestrelix::demo {

/// When a statement runs: with the users through the day, in the nightly batch, in the three hours of the
/// reports, at the same pace all day, in the bad hour alone, or in the first half of every day, so that it
/// ages out of the shared pool and comes back at another address.
enum class Pace { Users, Night, Reports, Steady, Bad, Mornings };

/// The shape of an execution plan; `objects` of the statement fill it. None is a block of PL/SQL.
enum class PlanShape {
  None,
  UniqueLookup,
  RangeScan,
  NestedLoops,
  HashJoin,
  FullScan,
  Insert,
  Update,
  Delete,
  Partitions
};

struct Statement {
  std::string_view text;  // lines end in LF here; those of the business's clients get CR LF
  std::string_view module;
  Pace pace = Pace::Users;
  int share = 10;   // of the processors' time at full pace, in thousandths of what is planned
  int perHour = 0;  // executions at full pace, for what has a schedule; its share counts for nothing then
  int gets = 10;    // blocks read per execution
  int misses = 20;  // of 10000 of these from disk
  int rows = 1;     // per execution
  int changes = 0;  // of blocks per execution
  bool commits = false;  // each execution ends a transaction
  int parses = 10;       // per 100 executions
  PlanShape plan = PlanShape::None;
  std::string_view objects;  // tables, each with its index behind it, parted by blanks
  int sharableKb = 24;
  int versions = 1;
  bool twoPlans = false;  // from the bad hour on another plan is in use as well
  bool client = true;     // from the business's clients, not from the server itself
};

/// The statements of a business with those that every database runs.
std::vector<Statement> statementsOf(Business business);

std::vector<Statement> orderStatements();
std::vector<Statement> bankStatements();
std::vector<Statement> shopStatements();
std::vector<Statement> warehouseStatements();
std::vector<Statement> serverStatements();

}  // namespace kestrelix::demo

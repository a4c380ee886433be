// What a back end brings to the conformance suite of the database interface.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/database.h"

namespace kestrelix::conformance {

struct TestColumn {
  std::string name;
  /// NUMBER, VARCHAR2, CHAR, DATE or RAW.
  std::string type;
};

/// Cells: numbers in plain decimal text, dates as YYYY-MM-DD HH24:MI:SS, RAW as hex, nothing for NULL.
using TestRow = std::vector<std::optional<std::string>>;

struct TestTable {
  std::string name;
  std::vector<TestColumn> columns;
  std::vector<TestRow> rows;
};

/// One back end under test. The predicates name what it may do otherwise than the others.
class BackEnd {
 public:
  virtual ~BackEnd() = default;

  /// Makes the tables that the connections opened afterwards see.
  virtual void createTables(const std::vector<TestTable>& tables) = 0;
  virtual Session& session() = 0;
  /// The name under which OpenDatabase finds the tables.
  virtual std::string databaseName() const = 0;
  virtual std::string user() const = 0;
  virtual std::string password() const = 0;

  /// Whether a statement that is not a query can be told apart before it reaches the data.
  virtual bool refusesChangesItself() const { return true; }
  /// Whether an unknown name of a database is refused with ORA-12154.
  virtual bool namesUnknownAlias() const { return true; }
  /// Whether it is Oracle's SQL: its functions, '' as NULL, upper-case names, days as numbers, ORA- codes.
  virtual bool speaksOracle() const { return true; }
  /// Whether it formats dates by TO_CHAR.
  virtual bool hasToChar() const { return true; }
  /// Whether it has accounts at all.
  virtual bool checksAccounts() const { return true; }
  /// Whether a number keeps all its digits, and a column its type, on the way through the driver.
  virtual bool keepsNumbers() const { return true; }
};

}  // namespace kestrelix::conformance

// The STATSPACK schema of each Oracle release that is read: tables, columns, types, keys, idle events.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kestrelix::statspack {

enum class Type { Number, Varchar2, Char, Date, Raw };

/// The name that Oracle has for a type, without its length: "NUMBER", "VARCHAR2", "CHAR", "DATE", "RAW".
std::string_view typeName(Type type);

struct Column {
  std::string name;  // in lower case
  Type type = Type::Number;
  int length = 0;  // bytes of a VARCHAR2, CHAR or RAW; 0 for the others
  bool nullable = true;
  int keyPlace = 0;  // place in the primary key from 1; 0 outside it
};

struct Table {
  std::string name;  // in lower case, as in "stats$sysstat"
  bool view = false;
  std::vector<Column> columns;

  /// The column of that name without regard to case, or null.
  const Column* column(std::string_view columnName) const;
  /// Names of the primary key's columns in its order; empty where the table has none.
  std::vector<std::string> key() const;
};

/// What the tables of one release look like. Views count as tables, and so does v$lock_type, which is no
/// table of STATSPACK but is read beside them.
class Release {
 public:
  Release(std::vector<Table> tables, std::vector<std::string> idleEvents);

  /// By name.
  const std::vector<Table>& tables() const { return tables_; }
  /// The table of that name without regard to case, or null.
  const Table* table(std::string_view name) const;
  /// The rows of stats$idle_event as that release's scripts make them.
  const std::vector<std::string>& idleEvents() const { return idleEvents_; }

 private:
  std::vector<Table> tables_;
  std::vector<std::string> idleEvents_;
};

/// The schema of a major version: "9" (9.2), "10" (10.2) or "11" (11.2). Fails with std::out_of_range for any
/// other.
const Release& release(std::string_view major);

/// All releases in one: every table and column that any of them has, of the widest type. Its tables have no
/// keys, since the releases differ in them.
const Release& everyRelease();

}  // namespace kestrelix::statspack

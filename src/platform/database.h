// The one connection of the program: what every back end (an Oracle server, a local repository file) offers.
#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace kestrelix {

/// Type under which a bind reaches the server. The numbers are those of Oracle's client libraries.
enum class ServerType { Number = 2, String = 5 };

/// The failure of any operation of this interface. The member that asked catches it and shows its own box;
/// what() goes to standard error and never into a box.
class DatabaseError : public std::runtime_error {
 public:
  DatabaseError(std::string sqlState, int nativeCode, const std::string& driverText,
                std::string statement = {});

  const std::string& sqlState() const { return sqlState_; }
  int nativeCode() const { return nativeCode_; }
  const std::string& statement() const { return statement_; }

 private:
  std::string sqlState_;
  int nativeCode_;
  std::string statement_;
};

/// One bind variable. Its value is always given as text; the empty text binds NULL, as in Oracle.
class Parameter {
 public:
  void serverType(ServerType type) { type_ = type; }
  /// Fails when the type is Number and the text, without blanks around it, is neither empty nor a number.
  void value(std::string_view text);

  ServerType serverType() const { return type_; }
  const std::string& value() const { return value_; }

 private:
  ServerType type_ = ServerType::Number;
  std::string value_ = "0";
};

/// The binds of a database object. They live on it and not on a statement: every class that adds them removes
/// them again. Names are matched without regard to case.
class Parameters {
 public:
  /// Adds an input bind; `direction` is 1 (input only) in every call. Fails when the name is there already.
  void Add(std::string_view name, int initialValue, int direction);
  /// Fails when there is no such bind.
  void Remove(std::string_view name);
  /// Fails when there is no such bind.
  Parameter& operator()(std::string_view name);

  /// The bind of that name, or null: for back ends.
  const Parameter* find(std::string_view name) const;
  /// Drops every bind, as before a new rendering when an earlier one failed with its binds in place.
  void clear() { items_.clear(); }
  std::size_t count() const { return items_.size(); }

 private:
  std::map<std::string, Parameter, std::less<>> items_;  // by upper-case name
};

/// One column of the current row.
class Field {
 public:
  Field(std::string_view column, const std::optional<std::string>* value) : column_(column), value_(value) {}

  /// The column's text. A character column as it is; a NUMBER column as plain decimal text with a digit
  /// before the point ("0.5"). NULL fails, as the conversion of a null does.
  const std::string& value() const;
  bool isNull() const { return !value_->has_value(); }

 private:
  std::string_view column_;
  const std::optional<std::string>* value_;
};

/// A read-only forward cursor over a result, positioned on its first row when it is made.
class Dynaset {
 public:
  virtual ~Dynaset() = default;

  /// True past the last row.
  virtual bool Eof() const = 0;
  virtual void MoveNext() = 0;
  /// Rows of the whole result.
  virtual long RecordCount() = 0;
  /// The field of that column alias, without regard to case. An unknown alias fails, and so does a field past
  /// the last row.
  virtual Field Fields(std::string_view alias) const = 0;
  virtual void Close() = 0;
  /// Column names in the order of the select list, as the server gives them.
  virtual const std::vector<std::string>& columns() const = 0;
};

/// Options of DbCreateDynaset: read-only (4), no client-side cache (8), Oracle mode (16). No other value
/// occurs.
inline constexpr long kDynasetOptions = 28;
/// Option of OpenDatabase: Oracle mode.
inline constexpr long kDatabaseOptions = 1;

/// An open connection. All but cancel() is for one thread.
class Database {
 public:
  virtual ~Database() = default;

  /// Runs a query with the binds that stand in parameters(). Binds that the statement does not name are
  /// harmless. Only queries run: anything else fails.
  virtual std::unique_ptr<Dynaset> DbCreateDynaset(const std::string& sql, long options) = 0;

  /// Ends the statement that runs now, from its sending to its last row: it fails with Cancelled, or still
  /// gives its result if that was there. The connection stays usable. May be called from any thread at any
  /// time of the connection's life. Where no statement runs it does nothing, and never to the next one; a
  /// driver may also overlook it at a statement's very beginning. So who wants an action to end calls it
  /// again and again until the action has. A driver that gets no answer can keep it waiting: not to be called
  /// by a thread that must not wait.
  virtual void cancel() = 0;

  Parameters& parameters() { return parameters_; }
  const Parameters& parameters() const { return parameters_; }

 private:
  Parameters parameters_;
};

/// Makes connections.
class Session {
 public:
  virtual ~Session() = default;

  /// `name` is the TNS alias; `connect` is user, "/", password, split at the first "/".
  virtual std::unique_ptr<Database> OpenDatabase(const std::string& name, const std::string& connect,
                                                 long options) = 0;
};

/// `connect` split at its first "/". Without one all of it is the user.
struct Credentials {
  std::string user;
  std::string password;
};
Credentials splitConnect(std::string_view connect);

}  // namespace kestrelix

#include "platform/database.h"

#include "platform/ascii.h"
#include "platform/numeric_text.h"

namespace kestrelix {

DatabaseError::DatabaseError(std::string sqlState, int nativeCode, const std::string& driverText,
                             std::string statement)
    : std::runtime_error(driverText),
      sqlState_(std::move(sqlState)),
      nativeCode_(nativeCode),
      statement_(std::move(statement)) {}

void Parameter::value(std::string_view text) {
  if (type_ == ServerType::String) {
    value_ = text;
    return;
  }
  const std::string_view trimmed = trimBlanks(text);
  if (!text.empty() && !isNumericText(trimmed))
    throw DatabaseError("22018", 1722, "a number bind can't take the text '" + std::string(text) + "'");
  value_ = trimmed;
}

void Parameters::Add(std::string_view name, int initialValue, int /*direction*/) {
  Parameter parameter;
  parameter.value(std::to_string(initialValue));
  if (!items_.emplace(asciiUpper(name), std::move(parameter)).second)
    throw DatabaseError("HY000", 0, "the bind " + std::string(name) + " has been added already");
}

void Parameters::Remove(std::string_view name) {
  if (items_.erase(asciiUpper(name)) == 0)
    throw DatabaseError("HY000", 0, "there is no bind " + std::string(name) + " to remove");
}

Parameter& Parameters::operator()(std::string_view name) {
  const auto found = items_.find(asciiUpper(name));
  if (found == items_.end()) throw DatabaseError("HY000", 0, "there is no bind " + std::string(name));
  return found->second;
}

const Parameter* Parameters::find(std::string_view name) const {
  const auto found = items_.find(asciiUpper(name));
  return found == items_.end() ? nullptr : &found->second;
}

const std::string& Field::value() const {
  if (isNull()) throw DatabaseError("22002", 0, "the column " + std::string(column_) + " is null");
  return **value_;
}

Credentials splitConnect(std::string_view connect) {
  const auto slash = connect.find('/');
  if (slash == std::string_view::npos) return {std::string(connect), {}};
  return {std::string(connect.substr(0, slash)), std::string(connect.substr(slash + 1))};
}

}  // namespace kestrelix

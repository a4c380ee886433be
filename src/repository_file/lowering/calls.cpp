#include "oracle_sql/functions/functions.h"
#include "repository_file/lowering/rules.h"

namespace kestrelix::repository_file {
namespace {

bool isConversionToItself(const sql::Call& call, const Value& argument) {
  return call.args.size() == 1 && ((call.name == "TO_NUMBER" && argument.kind == sql::TypeKind::Number) ||
                                   (call.name == "TO_CHAR" && sql::Type{argument.kind}.isText()) ||
                                   (call.name == "TO_DATE" && argument.kind == sql::TypeKind::Date));
}

/// GREATEST and LEAST of more arguments than SQLite takes are those of the first ones and the rest.
void foldExtremes(Lowerer& to, const sql::Call& call, std::vector<Value>& arguments) {
  if (call.name != "GREATEST" && call.name != "LEAST") return;
  while (arguments.size() > lite::kMostArguments) {
    const auto rest = arguments.begin() + lite::kMostArguments;
    const Value first = to.function(call.name, {arguments.begin(), rest}, call.type, call.place);
    arguments.erase(arguments.begin() + 1, rest);
    arguments.front() = first;
  }
}

}  // namespace

Lowered lowerCall(Lowerer& to, const sql::Call& call) {
  const std::string name = call.package.empty() ? std::string(call.name)
                                                : std::string(call.package) + "." + std::string(call.name);
  if (call.role == sql::CallRole::Aggregate || call.role == sql::CallRole::Window)
    throw sql::SqlError::unsupported("the aggregate " + name, call.place);
  std::vector<Value> arguments;
  for (const sql::Expr* argument : call.args) arguments.push_back(to.lower(*argument));
  if (!call.option.empty()) {
    // TRIM(LEADING x FROM y) and EXTRACT(YEAR FROM d): the word goes behind as a text; without an x it is a
    // blank.
    if (call.name == "TRIM" && arguments.size() == 1)
      arguments.push_back({to.text(" "), sql::TypeKind::Char});
    arguments.push_back({to.text(call.option), sql::TypeKind::Char});
  }
  if (!call.function || !call.function->call)
    throw sql::SqlError::unsupported("the function " + name, call.place);
  if (name == "TO_NUMBER" && arguments.front().kind == sql::TypeKind::Null) {
    Value& first = arguments.front();
    first.kind = sql::TypeKind::Number;
    first.number = {true, 0};
    return first;
  }
  if (arguments.size() == 1 && isConversionToItself(call, arguments.front())) {
    Value& first = arguments.front();
    first.kind = call.type.kind;
    return first;
  }
  foldExtremes(to, call, arguments);
  Value value = to.function(name, arguments, call.type, call.place);
  if (call.type.integral) value.number = {true, call.function->largest};
  return value;
}

}  // namespace kestrelix::repository_file

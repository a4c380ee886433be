#include "oracle_sql/functions.h"
#include "platform/embedded/lowering/rules.h"

namespace kestrelix::embedded {
namespace {

/// The functions whose results are whole numbers, with the largest of them.
struct WholeFunction {
  std::string_view name;
  double largest;
};
constexpr WholeFunction kWholeFunctions[] = {
    {"LENGTH", 1e10}, {"LENGTHB", 1e10}, {"INSTR", 1e10},        {"INSTRB", 1e10},
    {"SIGN", 1},      {"ASCII", 1e10},   {"REGEXP_COUNT", 1e10}, {"REGEXP_INSTR", 1e10},
};

Piece text(std::string_view value) {
  Piece piece;
  piece.text = textLiteral(value);
  piece.kind = sql::TypeKind::Char;
  return piece;
}

bool isConversionToItself(const sql::Call& call, const Piece& argument) {
  return call.args.size() == 1 && ((call.name == "TO_NUMBER" && argument.kind == sql::TypeKind::Number) ||
                                   (call.name == "TO_CHAR" && sql::Type{argument.kind}.isText()) ||
                                   (call.name == "TO_DATE" && argument.kind == sql::TypeKind::Date));
}

/// Of the 127 arguments of a function in SQLite, those that are given to one.
constexpr std::size_t kMostArguments = 100;

/// GREATEST and LEAST of more arguments than SQLite takes are those of the first ones and the rest.
void foldExtremes(Emitter& emitter, const sql::Call& call, std::vector<Piece>& arguments) {
  if (call.name != "GREATEST" && call.name != "LEAST") return;
  while (arguments.size() > kMostArguments) {
    const auto rest = arguments.begin() + kMostArguments;
    Piece first = emitter.call(call.name, {arguments.begin(), rest}, call.type, call.place);
    arguments.erase(arguments.begin() + 1, rest);
    arguments.front() = std::move(first);
  }
}

}  // namespace

Piece lowerCall(Emitter& emitter, const sql::Call& call) {
  const std::string name = call.package.empty() ? std::string(call.name)
                                                : std::string(call.package) + "." + std::string(call.name);
  std::vector<Piece> arguments;
  for (const sql::Expr* argument : call.args) arguments.push_back(emitter.expression(*argument));
  if (!call.option.empty()) {
    // TRIM(LEADING x FROM y) and EXTRACT(YEAR FROM d): the word goes behind as a text; without an x it is a
    // blank.
    if (call.name == "TRIM" && arguments.size() == 1) arguments.push_back(text(" "));
    arguments.push_back(text(call.option));
  }
  const values::Function* known = values::findFunction(name);
  if (!known || !known->call) throw sql::SqlError::unsupported("the function " + name, call.place);
  if (name == "TO_NUMBER" && arguments.front().kind == sql::TypeKind::Null) {
    arguments.front().kind = sql::TypeKind::Number;
    arguments.front().number = {true, 0};
    return arguments.front();
  }
  if (arguments.size() == 1 && isConversionToItself(call, arguments.front())) {
    arguments.front().kind = call.type.kind;
    return arguments.front();
  }
  foldExtremes(emitter, call, arguments);
  Piece piece = emitter.call(name, arguments, call.type, call.place);
  piece.number.integral = piece.kind == sql::TypeKind::Number && call.type.integral;
  for (const auto& whole : kWholeFunctions)
    if (whole.name == name) piece.number = {true, whole.largest};
  return piece;
}

}  // namespace kestrelix::embedded

#include "repository_file/statement_cache.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "oracle_sql/functions/functions.h"
#include "oracle_sql/meaning/resolver.h"
#include "oracle_sql/number/number.h"
#include "oracle_sql/syntax/parser.h"
#include "oracle_sql/syntax/token.h"
#include "platform/cancelled.h"
#include "repository_file/functions.h"
#include "repository_file/lowering/sqlite_printer.h"

namespace kestrelix::repository_file {
namespace {

constexpr std::size_t kMostTexts = 256;

/// The classes of bind values that are translated apart.
enum BindClass : char { kText = 't', kSmall = 's', kMedium = 'm', kWhole = 'w', kNumber = 'n' };

constexpr double kLargestSmall = 2147483648.0;
constexpr double kLargestMedium = 9007199254740992.0;

char classOf(std::int64_t whole) {
  const double size = std::abs(static_cast<double>(whole));
  return size <= kLargestSmall ? kSmall : size <= kLargestMedium ? kMedium : kWhole;
}

char classOf(const Parameter& bind) {
  if (bind.serverType() == ServerType::String) return kText;
  if (bind.value().empty()) return kSmall;
  std::int64_t plain = 0;
  const char* const end = bind.value().data() + bind.value().size();
  const auto parsed = std::from_chars(bind.value().data(), end, plain);
  if (parsed.ec == std::errc() && parsed.ptr == end) return classOf(plain);
  const auto number = values::Number::parse(bind.value());
  if (!number)
    throw DatabaseError("22018", 1722, "ORA-01722: invalid number: the bind '" + bind.value() + "'");
  const auto whole = number->toInt64();
  if (!whole) return kNumber;
  return classOf(*whole);
}

NumberFacts factsOf(char bindClass) {
  switch (bindClass) {
    case kSmall:
      return {true, kLargestSmall};
    case kMedium:
      return {true, kLargestMedium};
    case kWhole:
      return {true, 9.3e18};
    default:
      return {};
  }
}

}  // namespace

StatementCache::StatementCache(sqlite3* connection, const FileCatalogue& catalogue, Evaluation& evaluation)
    : connection_(connection), catalogue_(catalogue), evaluation_(evaluation) {
  registerFunctions(connection, evaluation);
}

StatementCache::PerText& StatementCache::perText(const std::string& text) {
  if (const auto found = texts_.find(text); found != texts_.end()) {
    ages_.splice(ages_.begin(), ages_, found->second.age);
    return found->second;
  }
  PerText known;
  for (const auto& use : sql::bindUses(text))
    if (std::find(known.binds.begin(), known.binds.end(), use.name) == known.binds.end())
      known.binds.push_back(use.name);
  if (texts_.size() >= kMostTexts) {
    texts_.erase(ages_.back());
    ages_.pop_back();
  }
  ages_.push_front(text);
  known.age = ages_.begin();
  return texts_.emplace(text, std::move(known)).first->second;
}

PreparedStatement& StatementCache::get(const std::string& text, const Parameters& binds, bool wideSums) {
  PerText& known = perText(text);
  std::string classes;
  for (const auto& name : known.binds) {
    const Parameter* bind = binds.find(name);
    if (!bind) throw DatabaseError("07002", 1008, "ORA-01008: not all variables bound: " + name, text);
    classes += classOf(*bind);
  }
  const std::string form = classes + (wideSums ? "+" : "");
  auto& prepared = known.byBindClasses[form];
  if (!prepared) {
    try {
      prepared = translate(text, known, classes, wideSums);
    } catch (...) {
      known.byBindClasses.erase(form);
      throw;
    }
  }
  return *prepared;
}

std::unique_ptr<PreparedStatement> StatementCache::translate(const std::string& text, const PerText& known,
                                                             const std::string& classes, bool wideSums) {
  const auto classOfName = [&](std::string_view name) {
    const auto found = std::find(known.binds.begin(), known.binds.end(), name);
    return found == known.binds.end() ? '\0' : classes[static_cast<std::size_t>(found - known.binds.begin())];
  };
  sql::Tree tree = sql::parse(text);
  sql::resolve(tree, catalogue_, [&](std::string_view name) -> std::optional<sql::TypeKind> {
    const char found = classOfName(name);
    if (!found) return std::nullopt;
    return found == kText ? sql::TypeKind::Varchar2 : sql::TypeKind::Number;
  });
  const LoweringFacts facts{
      [&](const sql::CatalogueTable& table, int index) { return catalogue_.facts(table, index); },
      [&](std::string_view bind) { return factsOf(classOfName(bind)); }, wideSums};

  auto prepared = std::make_unique<PreparedStatement>();
  prepared->lowered = lower(tree, facts);
  for (const auto& use : prepared->lowered.functions) {
    if (registered_.insert(use.name).second) registerFunction(connection_, use, evaluation_);
    prepared->asksClock = prepared->asksClock || !functionNamed(use.function)->deterministic;
  }
  try {
    prepared->handle = prepare(connection_, prepared->lowered.text);
  } catch (const Cancelled&) {
    throw;
  } catch (const DatabaseError& error) {
    const int code = sqlite3_errcode(connection_);
    if (code == SQLITE_TOOBIG || code == SQLITE_NOMEM || prepared->lowered.nearBounds)
      throw sql::SqlError::unsupported(std::string("a statement of this size (") + error.what() + ")", {});
    throw sql::SqlError::internal(error.what());
  }
  std::vector<std::string> names;
  for (const auto& column : prepared->lowered.columns) names.push_back(column.name);
  prepared->names = std::make_shared<const std::vector<std::string>>(std::move(names));
  const int count = sqlite3_bind_parameter_count(prepared->handle.get());
  for (int i = 1; i <= count; ++i)
    prepared->parameters.push_back({i, lite::bindOf(sqlite3_bind_parameter_name(prepared->handle.get(), i))});
  return prepared;
}

}  // namespace kestrelix::repository_file

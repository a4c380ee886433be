#include "odbc/statement_text.h"

#include <algorithm>
#include <array>

#include "oracle_sql/syntax/error.h"
#include "oracle_sql/syntax/token.h"
#include "platform/ascii.h"
#include "platform/database.h"

namespace kestrelix::odbc {
namespace {

/// Words that are no names in a query: each could change something, or lock it.
constexpr std::array kChanging{"INSERT", "UPDATE", "DELETE", "MERGE",    "INTO", "CREATE", "DROP",
                               "ALTER",  "GRANT",  "REVOKE", "TRUNCATE", "CALL", "LOCK",   "EXECUTE"};

void refuseChanges(const std::vector<oracle_sql::Token>& tokens, std::string_view statement) {
  const auto refuse = [&] {
    throw DatabaseError("42000", 900, "only queries run: " + std::string(statement.substr(0, 80)),
                        std::string(statement));
  };
  const auto first = std::find_if(tokens.begin(), tokens.end(), [](const oracle_sql::Token& token) {
    return token.symbol != oracle_sql::Symbol::LeftParen;
  });
  const std::string word = first == tokens.end() ? std::string() : asciiUpper(first->text);
  if (word != "SELECT" && word != "WITH") refuse();
  for (const oracle_sql::Token& token : tokens)
    if (token.kind == oracle_sql::TokenKind::Name &&
        std::find(kChanging.begin(), kChanging.end(), asciiUpper(token.text)) != kChanging.end())
      refuse();
}

}  // namespace

MarkedStatement markBinds(std::string_view statement) {
  try {
    refuseChanges(oracle_sql::tokenize(statement), statement);
    MarkedStatement marked;
    std::size_t copied = 0;
    for (const oracle_sql::BindUse& use : oracle_sql::bindUses(statement)) {
      marked.text += statement.substr(copied, use.offset - copied);
      marked.text += '?';
      marked.binds.push_back(use.name);
      copied = use.offset + use.length;
    }
    marked.text += statement.substr(copied);
    return marked;
  } catch (const oracle_sql::SqlError& error) {
    throw DatabaseError("42000", error.oraCode(), error.render(statement), std::string(statement));
  }
}

}  // namespace kestrelix::odbc

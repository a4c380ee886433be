// Any bytes as a statement: lexer, parser, printer, resolver and the lowering to SQLite either take it or
// refuse it with an error that can be shown; what is printed reads as an equal tree.
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string_view>

#include "oracle_sql/syntax/parser.h"
#include "repository_file/lowering/lowering.h"
#include "support/small_catalogue.h"
#include "support/statement_text/printer.h"

namespace {

[[noreturn]] void fault(std::string_view what, std::string_view statement) {
  std::cerr << what << "\n" << statement << "\n";
  std::abort();
}

/// Every other column holds small whole numbers, and so does every other bind.
kestrelix::repository_file::LoweringFacts facts() {
  using kestrelix::repository_file::NumberFacts;
  return {[](const auto&, int index) {
            return index % 2 == 0 ? NumberFacts{true, 1e6} : NumberFacts{};
          },
          [](std::string_view bind) {
            return bind.size() % 2 == 0 ? NumberFacts{true, 1e6} : NumberFacts{};
          }};
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace oracle_sql;
  static const testing_support::SmallCatalogue catalogue;
  const std::string_view statement(reinterpret_cast<const char*>(data), size);
  try {
    Tree tree = parse(statement);
    const std::string printed = print(*tree.query());
    try {
      const Tree again = parse(printed);
      if (!equal(*tree.query(), *again.query())) fault("reads differently: " + printed, statement);
    } catch (const SqlError& e) {
      // Printing a deep tree adds brackets, and may so pass the bound on nesting.
      if (e.oraCode() != 0) fault(e.render(printed), statement);
    }
    resolve(tree, catalogue, &testing_support::SmallCatalogue::bind);
    if (dump(*tree.query()).empty()) fault("empty dump", statement);
    if (kestrelix::repository_file::lower(tree, facts()).text.empty()) fault("lowered to nothing", statement);
  } catch (const SqlError& e) {
    if (e.kind() == ErrorKind::Internal) fault(e.what(), statement);
    if (e.render(statement).empty() || e.place().offset > size) fault("no place", statement);
  }
  return 0;
}

#include "oracle_sql/keywords.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "oracle_sql/ascii_case.h"

namespace oracle_sql {

namespace {

struct Entry {
  std::string_view text;
  Keyword keyword;
  bool reserved;
};

// Sorted by text.
constexpr Entry kWords[] = {
    {"ACCESS", Keyword::Other, true},
    {"ADD", Keyword::Other, true},
    {"ALL", Keyword::All, true},
    {"ALTER", Keyword::Other, true},
    {"AND", Keyword::And, true},
    {"ANY", Keyword::Any, true},
    {"AS", Keyword::As, true},
    {"ASC", Keyword::Asc, true},
    {"AUDIT", Keyword::Other, true},
    {"BETWEEN", Keyword::Between, true},
    {"BOTH", Keyword::Both, false},
    {"BY", Keyword::By, true},
    {"CASE", Keyword::Case, false},
    {"CAST", Keyword::Cast, false},
    {"CHAR", Keyword::Other, true},
    {"CHECK", Keyword::Other, true},
    {"CLUSTER", Keyword::Other, true},
    {"COLUMN", Keyword::Other, true},
    {"COMMENT", Keyword::Other, true},
    {"COMPRESS", Keyword::Other, true},
    {"CONNECT", Keyword::Connect, true},
    {"CREATE", Keyword::Other, true},
    {"CROSS", Keyword::Cross, false},
    {"CUBE", Keyword::Cube, false},
    {"CURRENT", Keyword::Current, true},
    {"DATE", Keyword::Date, true},
    {"DECIMAL", Keyword::Other, true},
    {"DEFAULT", Keyword::Other, true},
    {"DELETE", Keyword::Other, true},
    {"DENSE_RANK", Keyword::DenseRank, false},
    {"DESC", Keyword::Desc, true},
    {"DISTINCT", Keyword::Distinct, true},
    {"DROP", Keyword::Other, true},
    {"ELSE", Keyword::Else, true},
    {"END", Keyword::End, false},
    {"ESCAPE", Keyword::Escape, false},
    {"EXCEPT", Keyword::Except, false},
    {"EXCLUSIVE", Keyword::Other, true},
    {"EXISTS", Keyword::Exists, true},
    {"EXTRACT", Keyword::Extract, false},
    {"FETCH", Keyword::Fetch, false},
    {"FILE", Keyword::Other, true},
    {"FIRST", Keyword::First, false},
    {"FLOAT", Keyword::Other, true},
    {"FOLLOWING", Keyword::Following, false},
    {"FOR", Keyword::For, true},
    {"FROM", Keyword::From, true},
    {"FULL", Keyword::Full, false},
    {"GRANT", Keyword::Other, true},
    {"GROUP", Keyword::Group, true},
    {"GROUPING", Keyword::Grouping, false},
    {"HAVING", Keyword::Having, true},
    {"IDENTIFIED", Keyword::Other, true},
    {"IGNORE", Keyword::Ignore, false},
    {"IMMEDIATE", Keyword::Other, true},
    {"IN", Keyword::In, true},
    {"INCREMENT", Keyword::Other, true},
    {"INDEX", Keyword::Other, true},
    {"INITIAL", Keyword::Other, true},
    {"INNER", Keyword::Inner, false},
    {"INSERT", Keyword::Other, true},
    {"INTEGER", Keyword::Other, true},
    {"INTERSECT", Keyword::Intersect, true},
    {"INTERVAL", Keyword::Interval, false},
    {"INTO", Keyword::Other, true},
    {"IS", Keyword::Is, true},
    {"JOIN", Keyword::Join, false},
    {"KEEP", Keyword::Keep, false},
    {"LAST", Keyword::Last, false},
    {"LATERAL", Keyword::Lateral, false},
    {"LEADING", Keyword::Leading, false},
    {"LEFT", Keyword::Left, false},
    {"LEVEL", Keyword::Level, true},
    {"LIKE", Keyword::Like, true},
    {"LIKE2", Keyword::Like2, false},
    {"LIKE4", Keyword::Like4, false},
    {"LIKEC", Keyword::Likec, false},
    {"LISTAGG", Keyword::Listagg, false},
    {"LOCK", Keyword::Other, true},
    {"LONG", Keyword::Other, true},
    {"MAXEXTENTS", Keyword::Other, true},
    {"MINUS", Keyword::Minus, true},
    {"MLSLABEL", Keyword::Other, true},
    {"MODE", Keyword::Other, true},
    {"MODEL", Keyword::Model, false},
    {"MODIFY", Keyword::Other, true},
    {"NATURAL", Keyword::Natural, false},
    {"NOAUDIT", Keyword::Other, true},
    {"NOCOMPRESS", Keyword::Other, true},
    {"NOT", Keyword::Not, true},
    {"NOWAIT", Keyword::Other, true},
    {"NULL", Keyword::Null, true},
    {"NULLS", Keyword::Nulls, false},
    {"NUMBER", Keyword::Other, true},
    {"OF", Keyword::Of, true},
    {"OFFLINE", Keyword::Other, true},
    {"OFFSET", Keyword::Offset, false},
    {"ON", Keyword::On, true},
    {"ONLINE", Keyword::Other, true},
    {"OPTION", Keyword::Other, true},
    {"OR", Keyword::Or, true},
    {"ORDER", Keyword::Order, true},
    {"OUTER", Keyword::Outer, false},
    {"OVER", Keyword::Over, false},
    {"PARTITION", Keyword::Partition, false},
    {"PCTFREE", Keyword::Other, true},
    {"PIVOT", Keyword::Pivot, false},
    {"PRECEDING", Keyword::Preceding, false},
    {"PRIOR", Keyword::Prior, true},
    {"PUBLIC", Keyword::Other, true},
    {"RANGE", Keyword::Range, false},
    {"RAW", Keyword::Other, true},
    {"RENAME", Keyword::Other, true},
    {"RESOURCE", Keyword::Other, true},
    {"RESPECT", Keyword::Respect, false},
    {"REVOKE", Keyword::Other, true},
    {"RIGHT", Keyword::Right, false},
    {"ROLLUP", Keyword::Rollup, false},
    {"ROW", Keyword::Row, true},
    {"ROWID", Keyword::Other, true},
    {"ROWNUM", Keyword::Rownum, true},
    {"ROWS", Keyword::Rows, true},
    {"SAMPLE", Keyword::Sample, false},
    {"SELECT", Keyword::Select, true},
    {"SESSION", Keyword::Other, true},
    {"SET", Keyword::Other, true},
    {"SETS", Keyword::Sets, false},
    {"SHARE", Keyword::Other, true},
    {"SIBLINGS", Keyword::Siblings, false},
    {"SIZE", Keyword::Other, true},
    {"SMALLINT", Keyword::Other, true},
    {"SOME", Keyword::Some, false},
    {"START", Keyword::Start, true},
    {"SUCCESSFUL", Keyword::Other, true},
    {"SYNONYM", Keyword::Other, true},
    {"SYSDATE", Keyword::Sysdate, true},
    {"TABLE", Keyword::Table, true},
    {"THEN", Keyword::Then, true},
    {"TIMESTAMP", Keyword::Timestamp, false},
    {"TO", Keyword::To, true},
    {"TRAILING", Keyword::Trailing, false},
    {"TRIGGER", Keyword::Other, true},
    {"TRIM", Keyword::Trim, false},
    {"UID", Keyword::Uid, true},
    {"UNBOUNDED", Keyword::Unbounded, false},
    {"UNION", Keyword::Union, true},
    {"UNIQUE", Keyword::Unique, true},
    {"UNPIVOT", Keyword::Unpivot, false},
    {"UPDATE", Keyword::Other, true},
    {"USER", Keyword::User, true},
    {"USING", Keyword::Using, false},
    {"VALIDATE", Keyword::Other, true},
    {"VALUES", Keyword::Other, true},
    {"VARCHAR", Keyword::Other, true},
    {"VARCHAR2", Keyword::Other, true},
    {"VERSIONS", Keyword::Versions, false},
    {"VIEW", Keyword::Other, true},
    {"WHEN", Keyword::When, false},
    {"WHENEVER", Keyword::Other, true},
    {"WHERE", Keyword::Where, true},
    {"WITH", Keyword::With, true},
    {"WITHIN", Keyword::Within, false},
};

constexpr bool sorted() {
  for (std::size_t i = 1; i < std::size(kWords); ++i)
    if (!(kWords[i - 1].text < kWords[i].text)) return false;
  return true;
}
static_assert(sorted());

constexpr std::size_t kLongest = 10;
constexpr bool longestIsRight() {
  std::size_t longest = 0;
  for (const Entry& e : kWords) longest = std::max(longest, e.text.size());
  return longest == kLongest;
}
static_assert(longestIsRight());

// Where the words of each first letter begin.
constexpr std::array<std::uint8_t, 27> kFirst = [] {
  std::array<std::uint8_t, 27> first{};
  std::size_t at = 0;
  for (int letter = 0; letter < 27; ++letter) {
    while (at < std::size(kWords) && kWords[at].text[0] < 'A' + letter) ++at;
    first[static_cast<std::size_t>(letter)] = static_cast<std::uint8_t>(at);
  }
  return first;
}();

}  // namespace

Word wordOf(std::string_view text) {
  if (text.size() < 2 || text.size() > kLongest) return {};
  char buffer[kLongest];
  for (std::size_t i = 0; i < text.size(); ++i) buffer[i] = asciiUpper(text[i]);
  const std::string_view word(buffer, text.size());
  if (word[0] < 'A' || word[0] > 'Z') return {};
  const auto letter = static_cast<std::size_t>(word[0] - 'A');
  for (std::size_t i = kFirst[letter]; i < kFirst[letter + 1]; ++i)
    if (kWords[i].text == word) return {kWords[i].keyword, kWords[i].reserved};
  return {};
}

bool startsOtherStatement(std::string_view word) {
  static constexpr std::string_view kStarts[] = {
      "ALTER",   "ANALYZE", "AUDIT",  "BEGIN",   "CALL",     "COMMENT",   "COMMIT", "CREATE",   "DECLARE",
      "DELETE",  "DROP",    "EXEC",   "EXECUTE", "EXPLAIN",  "GRANT",     "INSERT", "LOCK",     "MERGE",
      "NOAUDIT", "PURGE",   "RENAME", "REVOKE",  "ROLLBACK", "SAVEPOINT", "SET",    "TRUNCATE", "UPDATE",
  };
  char buffer[kLongest];
  if (word.empty() || word.size() > kLongest) return false;
  for (std::size_t i = 0; i < word.size(); ++i) buffer[i] = asciiUpper(word[i]);
  const std::string_view given(buffer, word.size());
  return std::any_of(std::begin(kStarts), std::end(kStarts), [&](std::string_view w) { return w == given; });
}

}  // namespace oracle_sql

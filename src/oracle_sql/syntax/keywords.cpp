#include "oracle_sql/syntax/keywords.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>

#include "oracle_sql/text/ascii_case.h"

namespace oracle_sql {

namespace {

struct Entry {
  std::string_view text;
  Keyword keyword;
  bool reserved;
};

/// Sorted by text.
constexpr Entry kWords[] = {
    {"ALL", Keyword::All, true},
    {"AND", Keyword::And, true},
    {"ANY", Keyword::Any, true},
    {"AS", Keyword::As, true},
    {"ASC", Keyword::Asc, true},
    {"BETWEEN", Keyword::Between, true},
    {"BOTH", Keyword::Both, false},
    {"BY", Keyword::By, true},
    {"CASE", Keyword::Case, false},
    {"CAST", Keyword::Cast, false},
    {"CONNECT", Keyword::Connect, true},
    {"CROSS", Keyword::Cross, false},
    {"CUBE", Keyword::Cube, false},
    {"CURRENT", Keyword::Current, true},
    {"DATE", Keyword::Date, true},
    {"DENSE_RANK", Keyword::DenseRank, false},
    {"DESC", Keyword::Desc, true},
    {"DISTINCT", Keyword::Distinct, true},
    {"ELSE", Keyword::Else, true},
    {"END", Keyword::End, false},
    {"ESCAPE", Keyword::Escape, false},
    {"EXCEPT", Keyword::Except, false},
    {"EXISTS", Keyword::Exists, true},
    {"EXTRACT", Keyword::Extract, false},
    {"FETCH", Keyword::Fetch, false},
    {"FIRST", Keyword::First, false},
    {"FOLLOWING", Keyword::Following, false},
    {"FOR", Keyword::For, true},
    {"FROM", Keyword::From, true},
    {"FULL", Keyword::Full, false},
    {"GROUP", Keyword::Group, true},
    {"GROUPING", Keyword::Grouping, false},
    {"HAVING", Keyword::Having, true},
    {"IGNORE", Keyword::Ignore, false},
    {"IN", Keyword::In, true},
    {"INNER", Keyword::Inner, false},
    {"INTERSECT", Keyword::Intersect, true},
    {"INTERVAL", Keyword::Interval, false},
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
    {"MINUS", Keyword::Minus, true},
    {"MODEL", Keyword::Model, false},
    {"NATURAL", Keyword::Natural, false},
    {"NOT", Keyword::Not, true},
    {"NULL", Keyword::Null, true},
    {"NULLS", Keyword::Nulls, false},
    {"OF", Keyword::Of, true},
    {"OFFSET", Keyword::Offset, false},
    {"ON", Keyword::On, true},
    {"OR", Keyword::Or, true},
    {"ORDER", Keyword::Order, true},
    {"OUTER", Keyword::Outer, false},
    {"OVER", Keyword::Over, false},
    {"PARTITION", Keyword::Partition, false},
    {"PIVOT", Keyword::Pivot, false},
    {"PRECEDING", Keyword::Preceding, false},
    {"PRIOR", Keyword::Prior, true},
    {"RANGE", Keyword::Range, false},
    {"RESPECT", Keyword::Respect, false},
    {"RIGHT", Keyword::Right, false},
    {"ROLLUP", Keyword::Rollup, false},
    {"ROW", Keyword::Row, true},
    {"ROWNUM", Keyword::Rownum, true},
    {"ROWS", Keyword::Rows, true},
    {"SAMPLE", Keyword::Sample, false},
    {"SELECT", Keyword::Select, true},
    {"SETS", Keyword::Sets, false},
    {"SIBLINGS", Keyword::Siblings, false},
    {"SOME", Keyword::Some, false},
    {"START", Keyword::Start, true},
    {"SYSDATE", Keyword::Sysdate, true},
    {"TABLE", Keyword::Table, true},
    {"THEN", Keyword::Then, true},
    {"TIMESTAMP", Keyword::Timestamp, false},
    {"TO", Keyword::To, true},
    {"TRAILING", Keyword::Trailing, false},
    {"TRIM", Keyword::Trim, false},
    {"UID", Keyword::Uid, true},
    {"UNBOUNDED", Keyword::Unbounded, false},
    {"UNION", Keyword::Union, true},
    {"UNIQUE", Keyword::Unique, true},
    {"UNPIVOT", Keyword::Unpivot, false},
    {"USER", Keyword::User, true},
    {"USING", Keyword::Using, false},
    {"VERSIONS", Keyword::Versions, false},
    {"WHEN", Keyword::When, false},
    {"WHERE", Keyword::Where, true},
    {"WITH", Keyword::With, true},
    {"WITHIN", Keyword::Within, false},
};

/// What is reserved and means nothing here, a blank around each.
constexpr std::string_view kReserved =
    " ACCESS ADD ALTER AUDIT CHAR CHECK CLUSTER COLUMN COMMENT COMPRESS CREATE DECIMAL DEFAULT DELETE DROP"
    " EXCLUSIVE FILE FLOAT GRANT IDENTIFIED IMMEDIATE INCREMENT INDEX INITIAL INSERT INTEGER INTO LOCK"
    " LONG MAXEXTENTS MLSLABEL MODE MODIFY NOAUDIT NOCOMPRESS NOWAIT NUMBER OFFLINE ONLINE OPTION PCTFREE"
    " PUBLIC RAW RENAME RESOURCE REVOKE ROWID SESSION SET SHARE SIZE SMALLINT SUCCESSFUL SYNONYM TRIGGER"
    " UPDATE VALIDATE VALUES VARCHAR VARCHAR2 VIEW WHENEVER ";

/// The words that start a statement which is no query, likewise.
constexpr std::string_view kStarts =
    " ALTER ANALYZE AUDIT BEGIN CALL COMMENT COMMIT CREATE DECLARE DELETE DROP EXEC EXECUTE EXPLAIN GRANT"
    " INSERT LOCK MERGE NOAUDIT PURGE RENAME REVOKE ROLLBACK SAVEPOINT SET TRUNCATE UPDATE ";

bool isListed(std::string_view list, const std::string& word) {
  return list.find(" " + word + " ") != std::string_view::npos;
}

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

/// Where the words of each first letter begin.
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
  const std::string word = asciiUpper(text);
  if (word[0] < 'A' || word[0] > 'Z') return {};
  const auto letter = static_cast<std::size_t>(word[0] - 'A');
  for (std::size_t i = kFirst[letter]; i < kFirst[letter + 1]; ++i)
    if (kWords[i].text == word) return {kWords[i].keyword, kWords[i].reserved};
  if (isListed(kReserved, word)) return {Keyword::Other, true};
  return {};
}

bool startsOtherStatement(std::string_view word) { return isListed(kStarts, asciiUpper(word)); }

}  // namespace oracle_sql

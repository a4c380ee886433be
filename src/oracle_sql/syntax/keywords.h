// The words that mean something in a query.
#pragma once

#include <cstdint>
#include <string_view>

namespace oracle_sql {

/// Words that the grammar asks for. Words that Oracle reserves and the grammar never asks for are Other.
// clang-format off
enum class Keyword : std::uint8_t {
  None, Other,
  All, And, Any, As, Asc, Between, Both, By, Case, Cast, Connect, Cross, Cube, Current, Date, DenseRank, Desc,
  Distinct, Else, End, Escape, Except, Exists, Extract, Fetch, First, Following, For, From, Full, Group, Grouping,
  Having, Ignore, In, Inner, Intersect, Interval, Is, Join, Keep, Last, Lateral, Leading, Left, Level, Like, Like2,
  Like4, Likec, Listagg, Minus, Model, Natural, Not, Null, Nulls, Of, Offset, On, Or, Order, Outer, Over, Partition,
  Pivot, Preceding, Prior, Range, Respect, Right, Rollup, Row, Rownum, Rows, Sample, Select, Sets, Siblings, Some,
  Start, Sysdate, Table, Then, Timestamp, To, Trailing, Trim, Uid, Unbounded, Union, Unique, Unpivot, User, Using,
  Versions, When, Where, With, Within,
};
// clang-format on

/// What a word is, without regard to case. A reserved word is a name only if it is quoted; NAME, VALUE, TYPE,
/// LIMIT and the like are ordinary names.
struct Word {
  Keyword keyword = Keyword::None;
  bool reserved = false;
};
Word wordOf(std::string_view text);

/// The words that start a statement which is no query (INSERT, CREATE, BEGIN, ...).
bool startsOtherStatement(std::string_view word);

}  // namespace oracle_sql

// The rules by which a function's type follows from those of its arguments.
#pragma once

#include "oracle_sql/functions/functions.h"

namespace oracle_sql::types {

Type number(ArgumentTypes types);
/// A NUMBER that is whole and fits 64 bits.
Type wholeNumber(ArgumentTypes types);
Type varchar(ArgumentTypes types);
/// CHAR of CHAR, else VARCHAR2.
Type sameText(ArgumentTypes types);
Type date(ArgumentTypes types);
Type raw(ArgumentTypes types);
/// NUMBER; whole if the first argument is.
Type firstAsNumber(ArgumentTypes types);
/// NUMBER; whole if both arguments are.
Type bothWhole(ArgumentTypes types);
/// ROUND and TRUNC: a DATE of a DATE, else NUMBER.
Type dateOrNumber(ArgumentTypes types);
/// GREATEST and LEAST: the first argument decides; text is VARCHAR2.
Type likeFirst(ArgumentTypes types);
Type first(ArgumentTypes types);
Type nvl(ArgumentTypes types);
Type nvl2(ArgumentTypes types);
Type coalesce(ArgumentTypes types);
/// That of the first result, VARCHAR2 if it is a bare NULL.
Type decode(ArgumentTypes types);

}  // namespace oracle_sql::types

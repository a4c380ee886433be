#include "oracle_sql/functions/result_types.h"

namespace oracle_sql::types {
namespace {

constexpr Type kVarchar{TypeKind::Varchar2};

bool isWhole(Type type) {
  return type.kind == TypeKind::Null || (type.kind == TypeKind::Number && type.integral);
}

/// The type of a value chosen among several: text loses its padding, a number is whole if every choice is.
Type chosen(Type decisive, bool allWhole) {
  if (decisive.isText() || decisive.kind == TypeKind::Null) return kVarchar;
  return {decisive.kind, decisive.kind == TypeKind::Number && allWhole, 0};
}

}  // namespace

Type number(ArgumentTypes) { return {TypeKind::Number}; }

Type wholeNumber(ArgumentTypes) { return {TypeKind::Number, true}; }

Type varchar(ArgumentTypes) { return kVarchar; }

Type sameText(ArgumentTypes types) { return types[0].kind == TypeKind::Char ? types[0] : kVarchar; }

Type date(ArgumentTypes) { return {TypeKind::Date}; }

Type raw(ArgumentTypes) { return {TypeKind::Raw}; }

Type firstAsNumber(ArgumentTypes types) { return {TypeKind::Number, types[0].integral}; }

Type bothWhole(ArgumentTypes types) { return {TypeKind::Number, types[0].integral && types[1].integral}; }

Type dateOrNumber(ArgumentTypes types) {
  if (types[0].kind == TypeKind::Date) return {TypeKind::Date};
  return {TypeKind::Number, types[0].integral && types.size() == 1};
}

Type likeFirst(ArgumentTypes types) {
  bool whole = true;
  for (const Type& type : types) whole = whole && isWhole(type);
  return chosen(types[0], whole);
}

Type first(ArgumentTypes types) { return types[0]; }

Type nvl(ArgumentTypes types) {
  const Type decisive = types[0].kind == TypeKind::Null ? types[1] : types[0];
  return chosen(decisive, isWhole(types[0]) && isWhole(types[1]));
}

Type nvl2(ArgumentTypes types) {
  const Type decisive = types[1].kind == TypeKind::Null ? types[2] : types[1];
  return chosen(decisive, isWhole(types[1]) && isWhole(types[2]));
}

Type coalesce(ArgumentTypes types) {
  Type decisive = types[0];
  bool whole = true;
  for (const Type& type : types) {
    decisive = decisive.kind == TypeKind::Null ? type : decisive;
    whole = whole && isWhole(type);
  }
  return chosen(decisive, whole);
}

Type decode(ArgumentTypes types) {
  bool whole = true;
  for (std::size_t i = 2; i < types.size(); i += 2) whole = whole && isWhole(types[i]);
  if (types.size() % 2 == 0) whole = whole && isWhole(types.back());
  return chosen(types[2], whole);
}

}  // namespace oracle_sql::types

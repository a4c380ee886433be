#include "repository_file/lowering/rules.h"

namespace kestrelix::repository_file {

Lowered lowerColumn(Lowerer& to, const sql::ColumnRef& ref) {
  if (ref.source) return to.column(ref.source, ref.column);
  if (ref.output < 0 || !to.outputs) throw sql::SqlError::internal("a column without a source", ref.place);
  return to.outputs->at(static_cast<std::size_t>(ref.output));
}

Lowered lowerRownum(Lowerer& to, const sql::RownumExpr& rownum) {
  if (!to.rownum) throw sql::SqlError::unsupported("ROWNUM in this place", rownum.place);
  return Value{to.rownum, sql::TypeKind::Number, {true, 1e15}};
}

}  // namespace kestrelix::repository_file

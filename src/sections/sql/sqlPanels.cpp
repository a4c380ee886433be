#include "sections/sql/sqlPanels.h"

#include "sections/sql/clsSQLPlan.h"
#include "sections/sql/clsSQLText.h"

namespace kestrelix {
namespace {

const std::vector<Column<clsSQLText>> kTextColumns{{"SQL_TEXT", clsSQLText::Field::SQL_TEXT, Kind::Text}};

// The figures of a plan are the optimizer's estimates.
const std::vector<Column<clsSQLPlan>> kPlanColumns{
    {"OPERATION", clsSQLPlan::Field::OPERATION, Kind::Text},
    {"PHV_OBJECTNAME", clsSQLPlan::Field::PHV_OBJECTNAME, Kind::Text},
    {"ROWS", clsSQLPlan::Field::ROWS_VALUE, Kind::Level},
    {"BYTES", clsSQLPlan::Field::BYTES_VALUE, Kind::Level, unit::bytes},
    {"COST", clsSQLPlan::Field::COST_VALUE, Kind::Level}};

template <class Object, class Fetch>
ReportTable read(const ReportSource& source, int pair, const std::string& hash,
                 const std::vector<Column<Object>>& columns, Fetch fetch) {
  ReportTable table;
  const bool restarted = source.pairs.restarted(pair);
  const PairKeys keys = source.pairs.keys(pair);
  // A reading that failed has left its binds in place.
  source.database.parameters().clear();
  Object object;
  object.Initialize(source.database, source.pairs, table.failures, source.version);
  if (!object.setBAIND_VALUE(keys, {restarted ? std::string() : hash}) || !fetch(object)) return table;
  object.unsetBAIND_VALUE();
  table.read = true;
  table.status = source.pairs.REPORT_STATUS(pair);
  const Measure number{Kind::Key, unit::number};
  table.columns = {{source.version == "9" ? "HASH_VALUE" : "OLD_HASH_VALUE", number},
                   {"START_ID", number},
                   {"END_ID", number}};
  for (const auto& column : columns) table.columns.push_back({column.heading, column.measure});
  if (restarted) return table;
  for (int i = 0; i < object.rownum(); ++i) {
    std::vector<std::string>& row = table.rows.emplace_back();
    if (i == 0)
      row = {hash, keys.startSnapId, keys.endSnapId};
    else
      row.resize(3);
    for (const auto& column : columns) row.push_back(object.value(column.field, i, pair));
  }
  return table;
}

}  // namespace

ReportTable readSqlText(const ReportSource& source, int pair, const std::string& hash) {
  return read(source, pair, hash, kTextColumns,
              [&](clsSQLText& object) { return object.get("getSQL_TEXT", pair); });
}

ReportTable readSqlPlan(const ReportSource& source, int pair, const std::string& hash) {
  return read(source, pair, hash, kPlanColumns, [&](clsSQLPlan& object) { return object.getSQL_PLAN(pair); });
}

}  // namespace kestrelix

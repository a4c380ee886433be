#include "sections/sql/clsSQLText.h"

namespace kestrelix {
namespace {

std::string text(const std::string& hash) {
  return fold(R"sql(
    select st.sql_text AS SQL_TEXT
      from stats$sql_summary e, stats$sqltext st
     where e.snap_id = :B4
       and e.dbid = :B1
       and e.instance_number = :B2
       and e.)sql" +
              hash + R"sql( = :B5
       and st.text_subset = e.text_subset
       and st.)sql" +
              hash + " = e." + hash + " order by st.piece");
}

}  // namespace

clsSQLText::clsSQLText() : SectionObject("clsSQLText", fieldNames(), {argument("B5", ServerType::Number)}) {
  for (const auto& [versions, hash] : {std::pair{V10_11, "old_hash_value"}, std::pair{V9, "hash_value"}})
    add({"getSQL_TEXT", text(hash), Fetch::AllRows, allFields(), versions});
}

}  // namespace kestrelix

#include "sections/activity_io/clsIOStatbyFunctiondetail.h"

#include "sections/activity_io/ioFunctions.h"

namespace kestrelix {
namespace {

std::string statement() {
  const auto grown = [](const std::string& counter, const std::string& alias) {
    return ", " + ioDelta(counter) + " AS " + alias;
  };
  return "select func AS FUNC" + countText("small_rr", 0, "S_RR") + countText("large_rr", 0, "L_RR") +
         sizeText("small_rm", 0, "S_RM") + sizeText("large_rm", 0, "L_RM") +
         countText("small_wr", 0, "S_WR") + countText("large_wr", 0, "L_WR") +
         sizeText("small_wm", 0, "S_WM") + sizeText("large_wm", 0, "L_WM") +
         " from (select n.function_name AS func" + grown("small_read_reqs", "small_rr") +
         grown("large_read_reqs", "large_rr") + grown("small_read_megabytes", "small_rm") +
         grown("large_read_megabytes", "large_rm") + grown("small_write_reqs", "small_wr") +
         grown("large_write_reqs", "large_wr") + grown("small_write_megabytes", "small_wm") +
         grown("large_write_megabytes", "large_wm") + readingFunctions() + ")";
}

}  // namespace

clsIOStatbyFunctiondetail::clsIOStatbyFunctiondetail()
    : ListSectionObject("clsIOStatbyFunctiondetail", fieldNames(), {argument("B5", ServerType::String)}) {
  all("getIO_STAT_BY_FUNCTION_DETAIL_ALL",
      fold(statement() + " order by small_rm + small_wm + large_rm + large_wm desc"));
  col("getIO_STAT_BY_FUNCTION_DETAIL_COL", fold("select * from (" + statement() + ") Z where Z.FUNC = :B5"));
}

}  // namespace kestrelix

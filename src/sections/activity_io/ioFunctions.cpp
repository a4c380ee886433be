#include "sections/activity_io/ioFunctions.h"

namespace kestrelix {
namespace {

/// The repository's own formatting function; it makes a blank of 0 and of null.
std::string unitText(const std::string& column, const std::string& arguments, const std::string& alias) {
  return ", statspack.v1024(" + column + ", " + arguments + ") AS " + alias;
}

}  // namespace

std::string ioDelta(const std::string& counter) { return "(e." + counter + " - b." + counter + ")"; }

std::string readingFunctions() {
  return R"sql(
        from stats$iostat_function b, stats$iostat_function e, stats$iostat_function_name n
       where b.snap_id = :B3
         and e.snap_id = :B4
         and b.dbid = :B1
         and e.dbid = :B1
         and b.instance_number = :B2
         and e.instance_number = :B2
         and b.function_id = e.function_id
         and n.function_id = e.function_id
         and (e.small_read_reqs + e.large_read_reqs) - (b.small_read_reqs + b.large_read_reqs) > 0)sql";
}

std::string countText(const std::string& column, int decimals, const std::string& alias) {
  return unitText(column, "'B','B'," + std::to_string(decimals) + ",1000", alias);
}

std::string sizeText(const std::string& column, int decimals, const std::string& alias) {
  return unitText(column, "'M','M'," + std::to_string(decimals) + ",1024", alias);
}

}  // namespace kestrelix

// Short names for the two halves of the language room.
#pragma once

namespace oracle_sql {}

namespace kestrelix::repository_file {

namespace values = ::oracle_sql;  // NUMBER, dates, functions
namespace sql = ::oracle_sql;     // statements

}  // namespace kestrelix::repository_file

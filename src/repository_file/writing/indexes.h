// Which indexes a repository file gets, so that no statement's look-up scans a table.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kestrelix::repository_file {

/// The column lists of the indexes that serve a table with these columns (in lower case). Each begins with
/// dbid, instance_number and snap_id as far as the table has them and is completed by its natural key; a
/// table that no release has is served by these three alone. Never one that is the beginning of another.
std::vector<std::vector<std::string>> indexesOf(std::string_view table,
                                                const std::vector<std::string>& columns);

}  // namespace kestrelix::repository_file

// Small repository files for tests.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "conformance/back_end.h"
#include "support/test_folder.h"

namespace kestrelix::repository_file {

using testing_support::TestFolder;

/// Writes a repository with these tables; the account is PERFSTAT / perfstat.
void writeRepository(const std::filesystem::path& file, const std::vector<conformance::TestTable>& tables);

}  // namespace kestrelix::repository_file

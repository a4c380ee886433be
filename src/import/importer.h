// Makes a repository from a folder of CSV files, one for each table.
#pragma once

#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/progress.h"
#include "repository_file/writing/repository_writer.h"

namespace kestrelix::importing {

/// A file that cannot be imported: what() names the file and, for a bad value, its line, column and text.
class ImportError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct ImportOptions {
  repository_file::NewAccount account;
  bool keepUnknown = false;  // keep tables that no release has
  repository_file::Existing existing = repository_file::Existing::Replace;
};

struct ImportedTable {
  std::string name;
  std::int64_t rows = 0;
  bool endsInLine = false;  // the file's last line has no end: it may have been cut
};

/// Reads every *.csv of `folder` into the repository `path`, which takes its name only when it is whole. A
/// file that is cut or grows meanwhile is an error.
///
/// A file bears its table's name in any case ("STATS$SYSSTAT.csv"); its first line is the column names.
/// Columns have the types of the releases. A column that no release has is a NUMBER if every value of it is a
/// number as Oracle prints one in full ("-12.5", no exponent, no zeros in front), else a VARCHAR2. An empty
/// field is NULL, a DATE is YYYY-MM-DD HH24:MI:SS, a RAW is hex digits. Where stats$bg_event_summary is
/// missing and stats$system_event tells the foreground apart, it is made of the difference.
///
/// `progress` is told the bytes read and those to read, and called on while the file is finished. Returns the
/// tables with their rows, by name. Throws ImportError, RepositoryError and Cancelled; nothing is left behind
/// then.
std::vector<ImportedTable> importFolder(const std::filesystem::path& folder,
                                        const std::filesystem::path& path, const ImportOptions& options,
                                        Progress& progress = Progress::none());

}  // namespace kestrelix::importing

// Pieces of the statements on physical I/O of files.
#pragma once

#include <string>

namespace kestrelix {

/// Growth of a counter in the pair, from 0 where the file has no row at the start.
std::string grown(const std::string& counter);

/// Operations of the pair a second, whole; blank for a pair of no seconds. Names the bind `ela`.
std::string operationsPerSecond(const std::string& operations);

/// The conditions that pair the end row e with the start row b of the same dbid and instance, if there is
/// one.
std::string endAndPerhapsStart();

/// From the tables to the filter: the files of `table` (stats$filestatxs, stats$tempstatxs) that were read or
/// written in the pair. `further` is a table more in the FROM list, `conditions` join it.
std::string activeFiles(const std::string& table, const std::string& further = {},
                        const std::string& conditions = {});

/// The statement of a file's series, folded: the rows of `files` whose FILENAME is B5.
std::string ofOneFile(const std::string& files);

}  // namespace kestrelix

#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// Physical reads, writes and buffer waits of the pair by file (stats$filestatxs, stats$tempstatxs), from
/// release 10 on with the slowest single-block reads (stats$file_histogram).
class clsFileIOStats : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(TABLESPACE, FILENAME, PHY_READNUM, PHY_READNUM_PAR_SEC, READTIME_PER_PHY_READNUM, MRT,
                   PHY_READBLK_PER_PHY_READNUM, PHY_WRITENUM, PHY_WRITENUM_PAR_SEC, WAIT_NUM,
                   DBFILE_WAIT_TIME_PER_WAIT_NUM)
  clsFileIOStats();
};

}  // namespace kestrelix

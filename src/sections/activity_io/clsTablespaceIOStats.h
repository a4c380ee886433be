#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// Physical reads, writes and buffer waits of the pair by tablespace (stats$filestatxs, stats$tempstatxs).
class clsTablespaceIOStats : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(TABLESPACE, PHY_READNUM, PHY_READNUM_PAR_SEC, READTIME_PER_PHY_READNUM,
                   PHY_READBLK_PER_PHY_READNUM, PHY_WRITENUM, PHY_WRITENUM_PAR_SEC, WAIT_NUM,
                   DBFILE_WAIT_TIME_PER_WAIT_NUM, TOTAL_PHY_NUM)
  clsTablespaceIOStats();
};

}  // namespace kestrelix

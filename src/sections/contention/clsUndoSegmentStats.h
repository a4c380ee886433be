#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// The newest undo intervals that overlap the pair, one a row (stats$undostat). Eight fields from release 10
/// on, the eight behind them for release 9.
class clsUndoSegmentStats : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(END_TIME, NUM_UNDO_BLOCKS, NUMBER_OF_TRANSACTIONS, MAX_QRY_LEN_SEC, MAX_TX_CONCY,
                   TUN_RET_MINS, STO_OOS, US_UR_UU_ES_ER_EU, ENDT, UNDOB, TXCNT, MAXQ, MAXC, SNOL, NOSP,
                   BLKST)
  clsUndoSegmentStats();
};

}  // namespace kestrelix

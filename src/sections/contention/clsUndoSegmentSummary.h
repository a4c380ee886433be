#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// Undo of the pair by tablespace: blocks, transactions, longest query (s), retention (minutes), errors and
/// steals (stats$undostat). Eight fields from release 10 on, the eight behind them for release 9.
class clsUndoSegmentSummary : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(UNDO_TS, NUM_UNDO_BLOCKS_K, NUMBER_OF_TRANSACTIONS, MAX_QRY_LEN_SEC, MAX_TX_CONCY,
                   MIN_MAX_TR_MINS, STO_OOS, US_UR_UU_ES_ER_EU, UNDOTSN, UNDOOB, TXCNT, MAXQ, MAXC, SNOL,
                   NOSP, BLKST)
  clsUndoSegmentSummary();
};

}  // namespace kestrelix

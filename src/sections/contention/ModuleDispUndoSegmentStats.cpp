#include "sections/contention/ModuleDispUndoSegmentStats.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using U = clsUndoSegmentStats;

/// Rows stay below this number: 34 at most.
const char* const kLimit = "35";

const ListView kView{{{"END TIME", &U::END_TIME},
                      {"NUM UNDO BLOCKS", &U::NUM_UNDO_BLOCKS},
                      {"NUMBER OF TRANSACTIONS", &U::NUMBER_OF_TRANSACTIONS},
                      {"MAX QRY LEN(S)", &U::MAX_QRY_LEN_SEC},
                      {"MAX TX CONCY", &U::MAX_TX_CONCY},
                      {"TUN RET(MINS)", &U::TUN_RET_MINS},
                      {"STO/OOS", &U::STO_OOS},
                      {"US/UR/UU/ES/ER/EU", &U::US_UR_UU_ES_ER_EU}}};

const ListView kView9{{{"END TIME", &U::ENDT},
                       {"UNDO BLOCKS", &U::UNDOB},
                       {"NUM TRANS", &U::TXCNT},
                       {"MAX QRY LEN(S)", &U::MAXQ},
                       {"MAX TX CONCY", &U::MAXC},
                       {"SNAP TOO OLD", &U::SNOL},
                       {"OUT OF SPACE", &U::NOSP},
                       {"US/UR/UU/ES/ER/EU", &U::BLKST}}};

const ListView& view(const std::string& version) { return version == "9" ? kView9 : kView; }

}  // namespace

void gDispUndoSegmentStats_All(Workspace& workspace, const std::string& version) {
  clsUndoSegmentStats object;
  renderListAll(workspace, object, "getUNDO_SEGMENT_STATS_ALL", view(version), version, {kLimit});
}

}  // namespace kestrelix

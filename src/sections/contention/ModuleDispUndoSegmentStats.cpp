#include "sections/contention/ModuleDispUndoSegmentStats.h"

#include "sections/contention/clsUndoSegmentStats.h"

namespace kestrelix {
namespace {

using F = clsUndoSegmentStats::Field;

/// Rows stay below this number: 34 at most.
const char* const kLimit = "35";

/// A row is an interval in time already: there is no Col view.
const ListView<clsUndoSegmentStats> kView{
    .all = "getUNDO_SEGMENT_STATS_ALL",
    .columns = {{"END TIME", F::END_TIME, Kind::Time},
                {"NUM UNDO BLOCKS", F::NUM_UNDO_BLOCKS, Kind::Count, unit::blocks},
                {"NUMBER OF TRANSACTIONS", F::NUMBER_OF_TRANSACTIONS, Kind::Count},
                {"MAX QRY LEN(S)", F::MAX_QRY_LEN_SEC, Kind::Level, unit::seconds},
                {"MAX TX CONCY", F::MAX_TX_CONCY, Kind::Level},
                {"TUN RET(MINS)", F::TUN_RET_MINS, Kind::Level, unit::minutes},
                {"STO/OOS", F::STO_OOS, Kind::Text},
                {"US/UR/UU/ES/ER/EU", F::US_UR_UU_ES_ER_EU, Kind::Text}},
    .allArguments = {kLimit},
};

const ListView<clsUndoSegmentStats> kViewOf9{
    .all = "getUNDO_SEGMENT_STATS_ALL",
    .columns = {{"END TIME", F::ENDT, Kind::Time},
                {"UNDO BLOCKS", F::UNDOB, Kind::Count, unit::blocks},
                {"NUM TRANS", F::TXCNT, Kind::Count},
                {"MAX QRY LEN(S)", F::MAXQ, Kind::Level, unit::seconds},
                {"MAX TX CONCY", F::MAXC, Kind::Level},
                {"SNAP TOO OLD", F::SNOL, Kind::Count},
                {"OUT OF SPACE", F::NOSP, Kind::Count},
                {"US/UR/UU/ES/ER/EU", F::BLKST, Kind::Text}},
    .allArguments = {kLimit},
};

}  // namespace

std::vector<ReleaseViews> undoSegmentStatsViews() { return {viewsOf(V9, kViewOf9), viewsOf(V10_11, kView)}; }

}  // namespace kestrelix

#include "sections/contention/ModuleDispUndoSegmentSummary.h"

#include "sections/contention/clsUndoSegmentSummary.h"

namespace kestrelix {
namespace {

using F = clsUndoSegmentSummary::Field;

/// No cell is a key of the series: "END TIME" stands right behind "NO".
const ListView<clsUndoSegmentSummary> kView{
    .all = "getUNDO_SEGMENT_SUMMARY_ALL",
    .col = "getUNDO_SEGMENT_SUMMARY_COL",
    .columns = {{"UNDO TS#", F::UNDO_TS, Kind::Key, unit::number},
                {"NUM UNDO BLOCKS(K)", F::NUM_UNDO_BLOCKS_K, Kind::Count, unit::thousands},
                {"NUMBER OF TRANSACTIONS", F::NUMBER_OF_TRANSACTIONS, Kind::Count},
                {"MAX QRY LEN(S)", F::MAX_QRY_LEN_SEC, Kind::Level, unit::seconds},
                {"MAX TX CONCY", F::MAX_TX_CONCY, Kind::Level},
                {"MIN/MAX TR(MINS)", F::MIN_MAX_TR_MINS, Kind::Text},
                {"STO/OOS", F::STO_OOS, Kind::Text},
                {"US/UR/UU/ES/ER/EU", F::US_UR_UU_ES_ER_EU, Kind::Text}},
    .keys = 0,
};

const ListView<clsUndoSegmentSummary> kViewOf9{
    .all = "getUNDO_SEGMENT_SUMMARY_ALL",
    .col = "getUNDO_SEGMENT_SUMMARY_COL",
    .columns = {{"UNDO TS#", F::UNDOTSN, Kind::Key, unit::number},
                {"UNDO BLOCKS", F::UNDOOB, Kind::Count, unit::blocks},
                {"NUM TRANS", F::TXCNT, Kind::Count},
                {"MAX QRY LEN(S)", F::MAXQ, Kind::Level, unit::seconds},
                {"MAX TX CONCURCY", F::MAXC, Kind::Level},
                {"SNAPSHOT TOO OLD", F::SNOL, Kind::Count},
                {"OUT OF SPACE", F::NOSP, Kind::Count},
                {"US/UR/UU/ES/ER/EU", F::BLKST, Kind::Text}},
    .keys = 0,
};

}  // namespace

std::vector<ReleaseViews> undoSegmentSummaryViews() {
  return {viewsOf(V9, kViewOf9), viewsOf(V10_11, kView)};
}

}  // namespace kestrelix

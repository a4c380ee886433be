#include "sections/contention/clsUndoSegmentSummary.h"

#include "sections/contention/undoIntervals.h"

namespace kestrelix {
namespace {

// What the steals column adds up: unexpired blocks stolen, released and reused, then the same of expired
// ones.
const std::string kSummary = R"sql(
    select ud.undotsn AS UNDO_TS,
           ROUND(sum(ud.undoblks) / 1000,1) AS NUM_UNDO_BLOCKS_K,
           sum(ud.txncount) AS NUMBER_OF_TRANSACTIONS,
           max(ud.maxquerylen) AS MAX_QRY_LEN_SEC,
           max(ud.maxconcurrency) AS MAX_TX_CONCY,
           round(min(ud.tuned_undoretention) / 60,1) || '/' || round(max(ud.tuned_undoretention) / 60,1)
               AS MIN_MAX_TR_MINS,
           sum(ud.ssolderrcnt) || '/' || sum(ud.nospaceerrcnt) AS STO_OOS,
           sum(ud.unxpstealcnt) || '/' || sum(ud.unxpblkrelcnt) || '/' || sum(ud.unxpblkreucnt) || '/' ||
           sum(ud.expstealcnt) || '/' || sum(ud.expblkrelcnt) || '/' || sum(ud.expblkreucnt) AS US_UR_UU_ES_ER_EU)sql" +
                             undoIntervals() + " group by ud.undotsn";

const std::string kSummary9 = R"sql(
    select ud.undotsn AS UNDOTSN,
           sum(ud.undoblks) AS UNDOOB,
           sum(ud.txncount) AS TXCNT,
           max(ud.maxquerylen) AS MAXQ,
           max(ud.maxconcurrency) AS MAXC,
           sum(ud.ssolderrcnt) AS SNOL,
           sum(ud.nospaceerrcnt) AS NOSP,
           sum(ud.unxpstealcnt) || '/' || sum(ud.unxpblkrelcnt) || '/' || sum(ud.unxpblkreucnt) || '/' ||
           sum(ud.expstealcnt) || '/' || sum(ud.expblkrelcnt) || '/' || sum(ud.expblkreucnt) AS BLKST)sql" +
                              undoIntervals() + " group by ud.undotsn";

}  // namespace

clsUndoSegmentSummary::clsUndoSegmentSummary()
    : ListSectionObject("clsUndoSegmentSummary", fieldNames(), {}) {
  const auto fields = {Field::UNDO_TS,         Field::NUM_UNDO_BLOCKS_K, Field::NUMBER_OF_TRANSACTIONS,
                       Field::MAX_QRY_LEN_SEC, Field::MAX_TX_CONCY,      Field::MIN_MAX_TR_MINS,
                       Field::STO_OOS,         Field::US_UR_UU_ES_ER_EU};
  const auto fields9 = {Field::UNDOTSN, Field::UNDOOB, Field::TXCNT, Field::MAXQ,
                        Field::MAXC,    Field::SNOL,   Field::NOSP,  Field::BLKST};
  // No key: of several undo tablespaces the series shows the first that comes.
  all("getUNDO_SEGMENT_SUMMARY_ALL", fold(kSummary)).only(V10_11).reading(fields);
  all("getUNDO_SEGMENT_SUMMARY_ALL", fold(kSummary9)).only(V9).reading(fields9);
  col("getUNDO_SEGMENT_SUMMARY_COL", fold(kSummary)).only(V10_11).reading(fields);
  col("getUNDO_SEGMENT_SUMMARY_COL", fold(kSummary9)).only(V9).reading(fields9);
}

}  // namespace kestrelix

#include "sections/contention/clsUndoSegmentStats.h"

#include "sections/contention/undoIntervals.h"

namespace kestrelix {
namespace {

const std::string kIntervals = R"sql(
    select * from
    (select to_char(ud.end_time,'YYYY-MM-DD HH24:MI') AS END_TIME,
           ud.undoblks AS NUM_UNDO_BLOCKS,
           ud.txncount AS NUMBER_OF_TRANSACTIONS,
           ud.maxquerylen AS MAX_QRY_LEN_SEC,
           ud.maxconcurrency AS MAX_TX_CONCY,
           ROUND(ud.tuned_undoretention / 60) AS TUN_RET_MINS,
           ud.ssolderrcnt ||'/'|| ud.nospaceerrcnt AS STO_OOS,
           ud.unxpstealcnt || '/' || ud.unxpblkrelcnt || '/' || ud.unxpblkreucnt || '/' ||
           ud.expstealcnt || '/' || ud.expblkrelcnt || '/' || ud.expblkreucnt AS US_UR_UU_ES_ER_EU)sql" +
                               undoIntervals() + " order by ud.begin_time desc) where rownum < :B5";

const std::string kIntervals9 = R"sql(
    select * from
    (select to_char(end_time,'YYYY-MM-DD HH24:MI') AS ENDT,
           undoblks AS UNDOB,
           txncount AS TXCNT,
           maxquerylen AS MAXQ,
           maxconcurrency AS MAXC,
           ssolderrcnt AS SNOL,
           nospaceerrcnt AS NOSP,
           unxpstealcnt || '/' || unxpblkrelcnt || '/' || unxpblkreucnt || '/' ||
           expstealcnt || '/' || expblkrelcnt || '/' || expblkreucnt AS BLKST)sql" +
                                undoIntervals() + " order by begin_time desc) where rownum < :B5";

}  // namespace

clsUndoSegmentStats::clsUndoSegmentStats()
    : ListSectionObject("clsUndoSegmentStats", fieldNames(), {argument("B5", ServerType::Number)}) {
  all("getUNDO_SEGMENT_STATS_ALL", fold(kIntervals))
      .only(V10_11)
      .reading({Field::END_TIME, Field::NUM_UNDO_BLOCKS, Field::NUMBER_OF_TRANSACTIONS,
                Field::MAX_QRY_LEN_SEC, Field::MAX_TX_CONCY, Field::TUN_RET_MINS, Field::STO_OOS,
                Field::US_UR_UU_ES_ER_EU});
  all("getUNDO_SEGMENT_STATS_ALL", fold(kIntervals9))
      .only(V9)
      .reading({Field::ENDT, Field::UNDOB, Field::TXCNT, Field::MAXQ, Field::MAXC, Field::SNOL, Field::NOSP,
                Field::BLKST});
}

}  // namespace kestrelix

#include "sections/contention/ModuleDispUndoSegmentSummary.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using U = clsUndoSegmentSummary;

/// There is no key column: "END TIME" stands right behind "NO".
const ListView kView{.columns = {{"UNDO TS#", &U::UNDO_TS},
                                 {"NUM UNDO BLOCKS(K)", &U::NUM_UNDO_BLOCKS_K},
                                 {"NUMBER OF TRANSACTIONS", &U::NUMBER_OF_TRANSACTIONS},
                                 {"MAX QRY LEN(S)", &U::MAX_QRY_LEN_SEC},
                                 {"MAX TX CONCY", &U::MAX_TX_CONCY},
                                 {"MIN/MAX TR(MINS)", &U::MIN_MAX_TR_MINS},
                                 {"STO/OOS", &U::STO_OOS},
                                 {"US/UR/UU/ES/ER/EU", &U::US_UR_UU_ES_ER_EU}},
                     .keys = 0};

const ListView kView9{.columns = {{"UNDO TS#", &U::UNDOTSN},
                                  {"UNDO BLOCKS", &U::UNDOOB},
                                  {"NUM TRANS", &U::TXCNT},
                                  {"MAX QRY LEN(S)", &U::MAXQ},
                                  {"MAX TX CONCURCY", &U::MAXC},
                                  {"SNAPSHOT TOO OLD", &U::SNOL},
                                  {"OUT OF SPACE", &U::NOSP},
                                  {"US/UR/UU/ES/ER/EU", &U::BLKST}},
                      .keys = 0};

const ListView& view(const std::string& version) { return version == "9" ? kView9 : kView; }

}  // namespace

void gDispUndoSegmentSummary_All(Workspace& workspace, const std::string& version) {
  clsUndoSegmentSummary object;
  renderListAll(workspace, object, "getUNDO_SEGMENT_SUMMARY_ALL", view(version), version);
}

void gDispUndoSegmentSummary_Col(Workspace& workspace, const std::string& version, const ColRequest&) {
  clsUndoSegmentSummary object;
  renderListCol(workspace, object, "getUNDO_SEGMENT_SUMMARY_COL", view(version), version, {});
}

}  // namespace kestrelix

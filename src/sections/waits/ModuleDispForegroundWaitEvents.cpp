#include "sections/waits/ModuleDispForegroundWaitEvents.h"

#include "sections/waits/clsForegroundWaitEvents.h"

namespace kestrelix {
namespace {

using F = clsForegroundWaitEvents::Field;

const ListView<clsForegroundWaitEvents> kView{
    .all = "getFOREGROUND_WAIT_EVENTS_ALL",
    .col = "getFOREGROUND_WAIT_EVENTS_COL",
    .columns = {{"EVENT", F::EVENT_NAME, Kind::Key},
                {"WAITS", F::WAITS, Kind::Count},
                {"%TIMEOUT", F::PCTTO, Kind::Share, unit::percent},
                {"TOTAL WAIT TIME(S)", F::TIME_SEC, Kind::Count, unit::seconds},
                {"AVG WAIT(MS)", F::AVWT_FMT, Kind::Average, unit::milliseconds},
                {"WAITS/TXN", F::TXWAITS, Kind::Ratio},
                {"%TOTAL CALL TIME", F::PCTTCT, Kind::Share, unit::percent}}};

}  // namespace

std::vector<ReleaseViews> foregroundWaitEventsViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix

#include "sections/waits/ModuleDispWaitEvents.h"

#include "sections/waits/clsWaitEvents.h"

namespace kestrelix {
namespace {

using F = clsWaitEvents::Field;

const ListView<clsWaitEvents> kView{
    .all = "getWAIT_EVENTS",
    .col = "getT_WAIT_EVENTS",
    .columns = {{"EVENT", F::EVENT_NAME, Kind::Key},
                {"WAITS", F::WAITS_VALUE, Kind::Count},
                {"%TIME-OUTS", F::TIME_OUTS_VALUE, Kind::Share, unit::percent},
                {"TOTAL WAIT TIME(S)", F::TOTAL_WAIT_TIME_VALUSE, Kind::Count, unit::seconds},
                {"AVG WAIT(MS)", F::AVG_WAIT_VALUE, Kind::Average, unit::milliseconds},
                {"WAITS/TXN", F::WAITS_TXN_VALUE, Kind::Ratio}}};

}  // namespace

std::vector<ReleaseViews> waitEventsViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix

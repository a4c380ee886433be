#include "sections/waits/ModuleDispTopNWaitEvents.h"

#include "sections/waits/clsTopNWaitEvents.h"

namespace kestrelix {
namespace {

using F = clsTopNWaitEvents::Field;

const std::string kListed = "5";
const std::string kNoLimit = "0";  // the statement of one event doesn't ask for it

std::vector<std::string> ofOneEvent(const std::vector<std::string>& keys) { return {kNoLimit, keys.at(0)}; }

const ListView<clsTopNWaitEvents> kView{
    .all = "getTOP_N_WAIT_EVENTS",
    .col = "getTOP_T_WAIT_EVENTS",
    .columns = {{"EVENT", F::EVENT_NAME, Kind::Key},
                {"WAITS", F::WAITS_VALUE, Kind::Count},
                {"TIME (S)", F::TIME_SECOND, Kind::Count, unit::seconds},
                {"AVG WAIT (MS)", F::AVWAIT_VALUE, Kind::Average, unit::milliseconds},
                {"%TOTAL CALL TIME", F::PCTWTT_VALUE, Kind::Share, unit::percent}},
    .allArguments = {kListed},
    .colArguments = ofOneEvent};

}  // namespace

std::vector<ReleaseViews> topNWaitEventsViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix

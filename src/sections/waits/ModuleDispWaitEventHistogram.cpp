#include "sections/waits/ModuleDispWaitEventHistogram.h"

#include "sections/waits/clsWaitEventHistogram.h"

namespace kestrelix {
namespace {

using F = clsWaitEventHistogram::Field;

const ListView<clsWaitEventHistogram> kView{.all = "getWAIT_EVENT_HISTOGRAM",
                                            .col = "getT_WAIT_EVENT_HISTOGRAM",
                                            .columns = {{"EVENT", F::EVENT_NAME, Kind::Key},
                                                        {"TOTAL WAITS", F::TOTAL_WAITS, Kind::Count},
                                                        {"<1ms", F::COL01MS, Kind::Share, unit::percent},
                                                        {"<2ms", F::COL02MS, Kind::Share, unit::percent},
                                                        {"<4ms", F::COL04MS, Kind::Share, unit::percent},
                                                        {"<8ms", F::COL08MS, Kind::Share, unit::percent},
                                                        {"<16ms", F::COL16MS, Kind::Share, unit::percent},
                                                        {"<32ms", F::COL32MS, Kind::Share, unit::percent},
                                                        {"<=1s", F::COL01S, Kind::Share, unit::percent},
                                                        {">1s", F::COL01SOVER, Kind::Share, unit::percent}}};

}  // namespace

std::vector<ReleaseViews> waitEventHistogramViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix

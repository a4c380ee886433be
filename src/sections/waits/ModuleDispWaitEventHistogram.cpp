#include "sections/waits/ModuleDispWaitEventHistogram.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using W = clsWaitEventHistogram;

const ListView kView{{{"EVENT", &W::EVENT_NAME},
                      {"TOTAL WAITS", &W::TOTAL_WAITS},
                      {"<1ms", &W::COL01MS},
                      {"<2ms", &W::COL02MS},
                      {"<4ms", &W::COL04MS},
                      {"<8ms", &W::COL08MS},
                      {"<16ms", &W::COL16MS},
                      {"<32ms", &W::COL32MS},
                      {"<=1s", &W::COL01S},
                      {">1s", &W::COL01SOVER}}};

}  // namespace

void gDispWaitEventHistogram_All(Workspace& workspace, const std::string& version) {
  clsWaitEventHistogram object;
  renderListAll(workspace, object, "getWAIT_EVENT_HISTOGRAM", kView, version);
}

void gDispWaitEventHistogram_Col(Workspace& workspace, const std::string& version,
                                 const ColRequest& request) {
  clsWaitEventHistogram object;
  renderListCol(workspace, object, "getT_WAIT_EVENT_HISTOGRAM", kView, version, request.keys);
}

}  // namespace kestrelix

#include "sections/summary/ModuleDispSnapshot.h"

#include "report/GridRendering.h"

namespace kestrelix {
namespace {

using S = clsSnapshot;

/// The rows of the two snapshots bring their own time column, so that their Col views need none of the pair.
const MetricView kView{
    {"SNAP TIME", "SNAP ID", "SESSIONS", "CURS/SESS", "LEVEL", "COMMENT", "OTHER VALUE"},
    {{.label = "Begin Snap:",
      .member = "getSTART_SNAPSHOT",
      .cells = {{"SNAP TIME", &S::START_SNAP_TIME},
                {"SNAP ID", &S::START_SNAP_ID},
                {"SESSIONS", &S::START_SESSIONS},
                {"CURS/SESS", &S::START_CURSOR_PER_SESSION},
                {"LEVEL", &S::START_LEVEL},
                {"COMMENT", &S::START_COMMENT}},
      .colCells = {{{"START TIME", &S::START_SNAP_TIME},
                    {"SNAP ID", &S::START_SNAP_ID},
                    {"SESSIONS", &S::START_SESSIONS},
                    {"CURS/SESS", &S::START_CURSOR_PER_SESSION},
                    {"LEVEL", &S::START_LEVEL},
                    {"COMMENT", &S::START_COMMENT}}},
      .pairColumns = false},
     {.label = "End Snap:",
      .member = "getEND_SNAPSHOT",
      .cells = {{"SNAP TIME", &S::END_SNAP_TIME},
                {"SNAP ID", &S::END_SNAP_ID},
                {"SESSIONS", &S::END_SESSIONS},
                {"CURS/SESS", &S::END_CURSOR_PER_SESSION},
                {"LEVEL", &S::END_LEVEL},
                {"COMMENT", &S::END_COMMENT}},
      .colCells = {{{"END TIME", &S::END_SNAP_TIME},
                    {"SNAP ID", &S::END_SNAP_ID},
                    {"SESSIONS", &S::END_SESSIONS},
                    {"CURS/SESS", &S::END_CURSOR_PER_SESSION},
                    {"LEVEL", &S::END_LEVEL},
                    {"COMMENT", &S::END_COMMENT}}},
      .pairColumns = false},
     {.label = "Elapsed(mins):", .member = "getELAPSED", .cells = {{"OTHER VALUE", &S::ELAPSED}}}}};

}  // namespace

void gDispSnapshot_All(Workspace& workspace, const std::string& version) {
  clsSnapshot object;
  renderMetricAll(workspace, object, kView, version);
}

void gDispSnapshot_Col(Workspace& workspace, const std::string& version, const ColRequest& request) {
  clsSnapshot object;
  renderMetricCol(workspace, object, kView, version, request.row);
}

}  // namespace kestrelix

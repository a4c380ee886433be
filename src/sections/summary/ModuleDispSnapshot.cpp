#include "sections/summary/ModuleDispSnapshot.h"

#include "sections/summary/clsSnapshot.h"

namespace kestrelix {
namespace {

using F = clsSnapshot::Field;

std::vector<Column<clsSnapshot>> startCells(std::string time) {
  return {{std::move(time), F::START_SNAP_TIME, Kind::Time},
          {"SNAP ID", F::START_SNAP_ID, Kind::Key, unit::number},
          {"SESSIONS", F::START_SESSIONS, Kind::Level},
          {"CURS/SESS", F::START_CURSOR_PER_SESSION, Kind::Ratio},
          {"LEVEL", F::START_LEVEL, Kind::Level},
          {"COMMENT", F::START_COMMENT, Kind::Text}};
}
std::vector<Column<clsSnapshot>> endCells(std::string time) {
  return {{std::move(time), F::END_SNAP_TIME, Kind::Time},
          {"SNAP ID", F::END_SNAP_ID, Kind::Key, unit::number},
          {"SESSIONS", F::END_SESSIONS, Kind::Level},
          {"CURS/SESS", F::END_CURSOR_PER_SESSION, Kind::Ratio},
          {"LEVEL", F::END_LEVEL, Kind::Level},
          {"COMMENT", F::END_COMMENT, Kind::Text}};
}

/// The rows of the two snapshots bring their own time column, so that their Col views need none of the pair.
const MetricView<clsSnapshot> kView{
    .headings = {"SNAP TIME", "SNAP ID", "SESSIONS", "CURS/SESS", "LEVEL", "COMMENT", "OTHER VALUE"},
    .rows = {{.label = "Begin Snap:",
              .member = "getSTART_SNAPSHOT",
              .cells = startCells("SNAP TIME"),
              .colCells = startCells("START TIME"),
              .pairColumns = false},
             {.label = "End Snap:",
              .member = "getEND_SNAPSHOT",
              .cells = endCells("SNAP TIME"),
              .colCells = endCells("END TIME"),
              .pairColumns = false},
             {.label = "Elapsed(mins):",
              .member = "getELAPSED",
              .cells = {{"OTHER VALUE", F::ELAPSED, Kind::Count, unit::minutes}}}}};

}  // namespace

std::vector<ReleaseViews> snapshotViews() { return {viewsOf(kAllVersions, kView)}; }

}  // namespace kestrelix

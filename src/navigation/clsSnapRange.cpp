#include "navigation/clsSnapRange.h"

#include "platform/guarded.h"

namespace kestrelix {

void clsSnapRange::Initialize(const clsSnapId& snapshots) {
  snapshots_ = &snapshots;
  startId_ = snapshots.START_SNAP_ID(0);
  endId_ = snapshots.END_SNAP_ID(static_cast<int>(snapshots.rownum()) - 1);
}

bool clsSnapRange::gSetStartId(int index) {
  return guarded(boxes_, "clsSnapRange", "gSetStartId", [&] { startId_ = snapshots_->START_SNAP_ID(index); });
}

bool clsSnapRange::gSetEndId(int index) {
  return guarded(boxes_, "clsSnapRange", "gSetEndId", [&] { endId_ = snapshots_->END_SNAP_ID(index); });
}

}  // namespace kestrelix

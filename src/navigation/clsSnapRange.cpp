#include "navigation/clsSnapRange.h"

namespace kestrelix {

void clsSnapRange::Initialize(const clsSnapId& pairs) {
  startId_ = pairs.START_SNAP_ID(0);
  endId_ = pairs.END_SNAP_ID(static_cast<int>(pairs.rownum()) - 1);
}

bool clsSnapRange::gSetStartId(const clsSnapId& pairs, int index, Failures& failures) {
  return guarded(failures, "clsSnapRange", "gSetStartId", [&] { startId_ = pairs.START_SNAP_ID(index); });
}

bool clsSnapRange::gSetEndId(const clsSnapId& pairs, int index, Failures& failures) {
  return guarded(failures, "clsSnapRange", "gSetEndId", [&] { endId_ = pairs.END_SNAP_ID(index); });
}

}  // namespace kestrelix

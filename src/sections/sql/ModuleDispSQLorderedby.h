#pragma once

#include "report/views.h"

namespace kestrelix {

/// The views of one of the ten rankings by its name in the members ("CPU"), of which the list is by the
/// measure itself ("TOTAL") or by the measure per execution ("EXEC"). A Col view's key is the hash.
std::vector<ReleaseViews> sqlRankingViews(const std::string& name, const std::string& list);

}  // namespace kestrelix

// Fill the lists of instances and of snapshot pairs.
#pragma once

#include <string>

#include "shell/workspace.h"

namespace kestrelix {

/// The headings above the two lists; they fit the columns in a fixed-pitch font only.
extern const std::string kDbInstanceHeading;
extern const std::string kSnapIdHeading;

/// Reads the instances and fills ComboDbInstance. No instance is a failure as well: shows a box and gives
/// false.
bool gDispDbInstance_Load(Workspace& workspace);

/// Reads the pairs of one instance (inside the range of gSnapRange if `useRange`) into a new gSnapId and
/// fills ListSnapId. Fewer than two snapshots are a failure as well: shows a box and gives false. Fails with
/// std::length_error for a snapshot id of more than 10 characters.
bool gDispSnapId_Load(Workspace& workspace, const std::string& dbid, const std::string& instanceNumber,
                      bool useRange);

}  // namespace kestrelix

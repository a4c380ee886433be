#pragma once

#include "report/SectionEntry.h"

namespace kestrelix {

/// All Sections of the catalogue, in its order.
SectionList sectionList();

}  // namespace kestrelix

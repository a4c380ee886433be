#pragma once

#include "report/Section.h"

namespace kestrelix {

/// All Sections of the catalogue, in its order.
SectionList sectionList();

/// The Section of that text. Fails with std::out_of_range where there is none.
const Section& section(std::string_view text);

}  // namespace kestrelix

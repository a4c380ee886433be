#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// Sizes of the parts of memory that grow and shrink by themselves, at both ends of the pair
/// (stats$memory_dynamic_comps), and how they last changed.
class clsMemoryDynamicComponents : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(COMP, BEG_SIZE, END_SIZE, OP_CNT, LOMOD, LOTIM)
  clsMemoryDynamicComponents();
};

}  // namespace kestrelix

#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// Resizes of parts of memory that began or ended in the pair (stats$memory_resize_ops), found by their times
/// and not by the snapshot that recorded them.
class clsMemoryResizeOperations : public ListSectionObject {
 public:
  KESTRELIX_FIELDS(OP_ST_TM, ELAPSD_S, COMP, INI_SZ, OP_TM, END_SZ, stat, NUM_OPS, OPER_TYPE)
  clsMemoryResizeOperations();
};

}  // namespace kestrelix

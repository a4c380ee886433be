#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// Four sizes of the instance from its parameters: buffer cache and shared pool in MB at both ends (the end
/// blank where it hasn't changed), standard block and log buffer in KB at the start.
class clsCacheSize : public MetricSectionObject {
 public:
  KESTRELIX_FIELDS(START_BC_MB, END_BC_MB, START_SP_MB, END_SP_MB, DB_BLOCK_KB, LOG_BUF_KB)
  clsCacheSize();
};

}  // namespace kestrelix

#pragma once

#include "report/SectionObject.h"

namespace kestrelix {

/// The stored text of one SQL statement, a record a piece of at most 64 bytes (stats$sqltext), as far as the
/// end snapshot has captured the statement. B5 is its hash.
class clsSQLText : public SectionObject {
 public:
  KESTRELIX_FIELDS(SQL_TEXT)
  clsSQLText();
};

}  // namespace kestrelix

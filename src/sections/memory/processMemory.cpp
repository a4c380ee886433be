#include "sections/memory/processMemory.h"

namespace kestrelix {

std::string megabytes(const std::string& column, int decimals, const std::string& alias) {
  return "DECODE(" + column + ", null,' ',ROUND(" + column + " / 1024 / 1024" +
         (decimals == 0 ? "" : "," + std::to_string(decimals)) + ")) AS " + alias;
}

}  // namespace kestrelix

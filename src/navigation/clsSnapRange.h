#pragma once

#include <string>

#include "navigation/clsSnapId.h"

namespace kestrelix {

/// The first and last snapshot of the pair list. It has no effect on the Sections: it is what a narrowing of
/// the list starts from.
class clsSnapRange {
 public:
  /// Takes the whole of the list. Fails with std::out_of_range when it is empty.
  void Initialize(const clsSnapId& pairs);
  /// Take the start (end) snapshot of a pair. False, after the member's failure, for an index off the list.
  bool gSetStartId(const clsSnapId& pairs, int index, Failures& failures);
  bool gSetEndId(const clsSnapId& pairs, int index, Failures& failures);

  const std::string& GET_START_ID() const { return startId_; }
  const std::string& GET_END_ID() const { return endId_; }

 private:
  std::string startId_;
  std::string endId_;
};

}  // namespace kestrelix

#pragma once

#include <string>

#include "navigation/clsSnapId.h"

namespace kestrelix {

/// The first and last snapshot of the pair list. It has no effect on the Sections: it is what a narrowing of
/// the list starts from.
class clsSnapRange {
 public:
  explicit clsSnapRange(MessageBoxes& boxes) : boxes_(boxes) {}

  /// Takes the whole of the loaded list. Fails with std::out_of_range when the list is empty.
  void Initialize(const clsSnapId& snapshots);
  /// Take the start (end) snapshot of a pair. An index off the list shows the member's box and gives false.
  bool gSetStartId(int index);
  bool gSetEndId(int index);

  const std::string& GET_START_ID() const { return startId_; }
  const std::string& GET_END_ID() const { return endId_; }

 private:
  MessageBoxes& boxes_;
  const clsSnapId* snapshots_ = nullptr;
  std::string startId_;
  std::string endId_;
};

}  // namespace kestrelix

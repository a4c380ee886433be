// Where the demo's databases keep their data.
#pragma once

#include <string>
#include <vector>

#include "demo/scene.h"

namespace kestrelix::demo {

struct Tablespace {
  std::string name;
  int number = 0;
  int files = 1;
  int readShare = 0;   // thousandths of the instance's reads of one block
  int scanShare = 0;   // thousandths of its reads of many
  int writeShare = 0;  // thousandths of its writes
};

/// In the order of their numbers, without the temporary one; the shares of an instance's tablespaces add up
/// to 1000.
std::vector<Tablespace> tablespacesOf(const Instance& instance);

inline constexpr int kTemporaryTablespace = 3;
inline constexpr int kDataTablespace = 6;
inline constexpr int kIndexTablespace = 7;

}  // namespace kestrelix::demo

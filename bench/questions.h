// The questions that are measured: each as the program asks it, and as one would write it for SQLite.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace kestrelix::bench {

struct BindValue {
  std::string name;
  std::string value;
  bool text = false;
};

struct Question {
  std::string name;
  std::string oracle;
  std::string sqlite;
  std::vector<BindValue> binds;  ///< besides B1 to B4
  int pairs = 1;                 ///< how many pairs of snapshots one run walks over
};

std::vector<Question> questions();
/// The longest statement that the program sends.
std::string longestStatement();

}  // namespace kestrelix::bench

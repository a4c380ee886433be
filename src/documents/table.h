#pragma once

#include <string>
#include <vector>

namespace kestrelix::documents {

/// What is to be written: lines of texts in UTF-8, headings among them. A line may be shorter than others.
using Table = std::vector<std::vector<std::string>>;

}  // namespace kestrelix::documents

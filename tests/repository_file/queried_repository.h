#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "repository_file/local_database.h"
#include "repository_file/test_repository.h"

namespace kestrelix::repository_file {

/// A small repository that a test writes into folder_ and opens as database_, to ask it queries.
class QueriedRepository : public testing::Test {
 protected:
  /// Every row as its cells joined by "|"; NULL is "-".
  std::vector<std::string> rows(const std::string& sql) {
    std::vector<std::string> lines;
    const auto result = database_->run(sql);
    for (; !result->Eof(); result->MoveNext()) {
      std::string line;
      for (std::size_t i = 0; i < result->columns().size(); ++i) {
        const auto field = result->field(i);
        line += (i ? "|" : "") + (field.isNull() ? std::string("-") : field.value());
      }
      lines.push_back(line);
    }
    return lines;
  }

  std::string failure(const std::string& sql) {
    try {
      rows(sql);
    } catch (const DatabaseError& error) {
      return error.what();
    }
    return "it ran";
  }

  TestFolder folder_;
  std::unique_ptr<LocalDatabase> database_;
};

}  // namespace kestrelix::repository_file

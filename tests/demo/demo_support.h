// One demo repository for all tests of it.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "demo/demo.h"
#include "support/sqlite_reading.h"

namespace kestrelix::demo {

using repository_file::readTexts;
using repository_file::Texts;

class DemoTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    if (!path().empty()) return;
    path() =
        std::filesystem::temp_directory_path() / ("kestrelix-demo-" + std::to_string(::getpid()) + ".sqlite");
    makeDemo(path(), {});
    static const struct Remover {
      ~Remover() {
        std::error_code ignored;
        std::filesystem::remove(path(), ignored);
      }
    } remover;
  }

  static Texts ask(const std::string& sql) { return readTexts(path(), sql); }

  /// The rows that break a rule, three at most.
  static Texts breaches(const std::string& sql) { return ask(sql + " limit 3"); }

  static std::filesystem::path& path() {
    static std::filesystem::path file;
    return file;
  }
};

inline const Texts kNone;

}  // namespace kestrelix::demo

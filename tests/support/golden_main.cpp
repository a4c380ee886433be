// The main of tests with golden files: a difference is written into the file with --update, else a failure.
#include <gmock/gmock.h>

#include <string_view>

#include "support/golden_file.h"

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  for (int i = 1; i < argc; ++i)
    if (std::string_view(argv[i]) == "--update") golden::updating() = true;
  return RUN_ALL_TESTS();
}

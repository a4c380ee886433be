#include "odbc/data_sources.h"

#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <stdexcept>

namespace kestrelix::testing_support {
namespace {

namespace fs = std::filesystem;

/// The file goes with the program.
class OwnConfiguration {
 public:
  OwnConfiguration()
      : file_(fs::temp_directory_path() / ("kestrelix-odbc-" + std::to_string(getpid()) + ".ini")) {
    std::ofstream(file_) << "";
    setenv("ODBCINI", file_.c_str(), 1);
  }
  ~OwnConfiguration() {
    std::error_code ignored;
    fs::remove(file_, ignored);
  }
  const fs::path& file() const { return file_; }

 private:
  fs::path file_;
};

}  // namespace

void addDataSource(const std::string& name, const std::string& lines) {
  static const OwnConfiguration own;
  std::ofstream(own.file(), std::ios::app) << '[' << name << "]\n" << lines << '\n';
}

fs::path odbcDriver(const std::string& library) {
  for (const char* folder :
       {"/usr/lib/x86_64-linux-gnu/odbc", "/usr/lib/aarch64-linux-gnu/odbc", "/usr/lib/odbc"})
    if (fs::exists(fs::path(folder) / library)) return fs::path(folder) / library;
  return {};
}

}  // namespace kestrelix::testing_support

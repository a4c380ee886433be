// The two windows without a screen, over a fake server and a folder of their own.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "shell/FormLogin.h"
#include "support/recording_boxes.h"
#include "support/recording_progress.h"
#include "support/recording_reader.h"
#include "support/snapshots.h"

namespace kestrelix::testing_support {

/// A folder of the system's temporary folder that goes with the object.
class ProgramFolder {
 public:
  ProgramFolder() {
    static int count = 0;
    path_ = std::filesystem::temp_directory_path() /
            ("kestrelix-shell-" + std::to_string(::getpid()) + "-" + std::to_string(++count));
    std::filesystem::create_directories(path_);
  }
  ProgramFolder(const ProgramFolder&) = delete;
  ProgramFolder& operator=(const ProgramFolder&) = delete;
  ~ProgramFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  const std::filesystem::path& path() const { return path_; }
  std::filesystem::path logins() const { return path_ / "Login.txt"; }

  void writeLogins(const std::string& bytes) const {
    std::ofstream(logins(), std::ios::binary | std::ios::trunc) << bytes;
  }
  /// The file's bytes; "(none)" without one.
  std::string readLogins() const {
    std::ifstream file(logins(), std::ios::binary);
    if (!file) return "(none)";
    return {std::istreambuf_iterator<char>(file), {}};
  }
  /// No user, root neither, can open a folder as the file of logins.
  void lockLogins() const {
    std::filesystem::remove(logins());
    std::filesystem::create_directory(logins());
  }

 private:
  std::filesystem::path path_;
};

class RecordingClipboard : public Clipboard {
 public:
  void Clear() override { steps.push_back("(clear)"); }
  void SetText(const std::string& text) override { steps.push_back(text); }
  std::vector<std::string> steps;
};

class RecordingHelp : public HelpViewer {
 public:
  explicit RecordingHelp(const FakeServer& server) : server_(server) {}
  void HtmlHelp(const std::string& path, int command) override {
    calls.emplace_back(path, command);
    connectionsAtCall = server_.openConnections;
  }
  std::vector<std::pair<std::string, int>> calls;
  int connectionsAtCall = -1;

 private:
  const FakeServer& server_;
};

class ShellTest : public testing::Test {
 protected:
  ShellTest() { server.accounts = {"DEMO PERFSTAT/perfstat"}; }

  ProgramFolder folder;
  FakeServer server;
  RecordingBoxes boxes;
  RecordingClipboard clipboard;
  RecordingHelp help{server};
  RecordingProgress progress;
  Workspace workspace{boxes, &progress};
  RecordingReader reader;
  ShellServices services{
      clipboard, help, folder.path(), [this] { return std::make_unique<FakeSession>(server); },
      {},        {},   &reader};
};

}  // namespace kestrelix::testing_support

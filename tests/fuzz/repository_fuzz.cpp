// A repository file with bytes overwritten and its end cut off: it opens and answers the report's questions,
// or says what is wrong with it.
#include <fuzzer/FuzzedDataProvider.h>

#include <cstdint>
#include <fstream>
#include <iterator>
#include <string>

#include "support/report_fixture.h"

namespace {

using namespace kestrelix;
using testing_support::FixtureRepository;
using testing_support::ReportFixture;

constexpr int kMostPatches = 40;
constexpr std::size_t kLongestPatch = 30;

/// Two snapshots of an instance, with what the Sections below read.
const FixtureRepository& repository() {
  static FixtureRepository fixture("9");
  static const bool written = [] {
    fixture.common({{"dbid", "1"}, {"instance_number", "1"}, {"startup_time", "2026-01-01 00:00:00"}});
    fixture.row("stats$database_instance", {{"snap_id", "1"},
                                            {"parallel", "NO"},
                                            {"version", "9.2.0.8.0"},
                                            {"db_name", "ORDERS"},
                                            {"instance_name", "ORDERS"},
                                            {"host_name", "db01"}});
    for (const char* id : {"1", "2", "3"}) {
      fixture.snapshot(id, std::string("2026-01-05 1") + id + ":00:00", "7", "2026-01-01 00:00:00");
      fixture.rows(
          "stats$sysstat", {"snap_id", "name", "value"},
          {{id, "redo size", std::string(id) + "00"}, {id, "user commits", std::string(id) + ".25"}});
      fixture.rows("stats$parameter", {"snap_id", "name", "value"},
                   {{id, "db_block_size", "8192"}, {id, "log_buffer", "1048576"}});
      fixture.rows("stats$system_event", {"snap_id", "event", "total_waits", "time_waited_micro"},
                   {{id, "db file sequential read", id, std::string(id) + "000000"}});
    }
    fixture.write();
    return true;
  }();
  static_cast<void>(written);
  return fixture;
}

const std::string& wholeFile() {
  static const std::string bytes = [] {
    std::ifstream in(repository().path(), std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
  }();
  return bytes;
}

void damage(std::string& bytes, FuzzedDataProvider& data) {
  const int patches = data.ConsumeIntegralInRange(1, kMostPatches);
  for (int i = 0; i < patches && data.remaining_bytes() > 0; ++i) {
    const auto at = data.ConsumeIntegralInRange<std::size_t>(0, bytes.size() - 1);
    const std::string patch = data.ConsumeRandomLengthString(kLongestPatch);
    bytes.replace(at, std::min(patch.size(), bytes.size() - at), patch);
  }
  if (data.ConsumeProbability<double>() < 0.1)
    bytes.resize(data.ConsumeIntegralInRange<std::size_t>(0, bytes.size()));
}

/// Every Section of the instance over its first pair, and each first row through all pairs.
void read(const std::string& path) {
  ReportFixture report(path);
  report.open(0);
  for (const char* section :
       {"Snapshot", "Cache Sizes", "Load Profile", "Wait Events", "Instance Activity Stats"}) {
    report.all(section, 0);
    report.col(1);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* input, std::size_t size) {
  FuzzedDataProvider data(input, size);
  std::string bytes = wholeFile();
  damage(bytes, data);
  const std::string path = repository().path().string() + ".damaged";
  std::ofstream(path, std::ios::binary) << bytes;
  try {
    read(path);
  } catch (const DatabaseError&) {
  } catch (const std::runtime_error& error) {
    // What the fixture itself says where there is nothing to open.
    if (!std::string_view(error.what()).starts_with("fixture: ")) throw;
  }
  return 0;
}

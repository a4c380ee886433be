// Time model, operating system statistics and I/O by function.
#include <array>

#include "demo/topic.h"

namespace kestrelix::demo {

namespace {

struct TimeStatistic {
  const char* name;
  std::int64_t (*micros)(const Work& work);
};

std::int64_t backgroundElapsed(const Work& w) {
  return w.backgroundCpu + w.logWrite.micros + w.writeRequests * 900 + w.seconds * 4000;
}

constexpr auto kTimeModel = std::to_array<TimeStatistic>({
    {"DB time", [](const Work& w) { return w.dbTime; }},
    {"DB CPU", [](const Work& w) { return w.cpu; }},
    {"background elapsed time", backgroundElapsed},
    {"background cpu time", [](const Work& w) { return w.backgroundCpu; }},
    {"sequence load elapsed time", [](const Work& w) { return w.commits * 14; }},
    {"parse time elapsed", [](const Work& w) { return w.parseElapsed; }},
    {"hard parse elapsed time", [](const Work& w) { return w.parseElapsed * 8 / 10; }},
    {"sql execute elapsed time", [](const Work& w) { return w.dbTime / 100 * 94 - w.commit.micros / 2; }},
    {"connection management call elapsed time", [](const Work& w) { return w.logons * 9200; }},
    {"failed parse elapsed time", [](const Work& w) { return w.hardParses * 30; }},
    {"failed parse (out of shared memory) elapsed time", [](const Work&) { return std::int64_t{0}; }},
    {"hard parse (sharing criteria) elapsed time", [](const Work& w) { return w.parseElapsed / 9; }},
    {"hard parse (bind mismatch) elapsed time", [](const Work& w) { return w.parseElapsed / 40; }},
    {"PL/SQL execution elapsed time", [](const Work& w) { return w.cpu / 23; }},
    {"inbound PL/SQL rpc elapsed time", [](const Work&) { return std::int64_t{0}; }},
    {"PL/SQL compilation elapsed time", [](const Work& w) { return w.hardParses * 55; }},
    {"Java execution elapsed time", [](const Work&) { return std::int64_t{0}; }},
    {"repeated bind elapsed time", [](const Work& w) { return w.executions / 60; }},
    {"RMAN cpu time (backup/restore)", [](const Work& w) { return w.load < 200 ? w.seconds * 700 : 0; }},
});

struct HostStatistic {
  int id;
  const char* name;
  const char* cumulative;
};

constexpr auto kHost = std::to_array<HostStatistic>({
    {0, "NUM_CPUS", "NO"},
    {1, "IDLE_TIME", "YES"},
    {2, "BUSY_TIME", "YES"},
    {3, "USER_TIME", "YES"},
    {4, "SYS_TIME", "YES"},
    {5, "IOWAIT_TIME", "YES"},
    {6, "NICE_TIME", "YES"},
    {7, "AVG_IDLE_TIME", "YES"},
    {8, "AVG_BUSY_TIME", "YES"},
    {9, "AVG_USER_TIME", "YES"},
    {10, "AVG_SYS_TIME", "YES"},
    {11, "AVG_IOWAIT_TIME", "YES"},
    {13, "OS_CPU_WAIT_TIME", "YES"},
    {14, "RSRC_MGR_CPU_WAIT_TIME", "YES"},
    {15, "LOAD", "NO"},
    {16, "NUM_CPU_CORES", "NO"},
    {17, "NUM_CPU_SOCKETS", "NO"},
    {1004, "VM_IN_BYTES", "YES"},
    {1005, "VM_OUT_BYTES", "YES"},
    {1008, "PHYSICAL_MEMORY_BYTES", "NO"},
    {2000, "TCP_SEND_SIZE_MIN", "NO"},
    {2001, "TCP_SEND_SIZE_DEFAULT", "NO"},
    {2002, "TCP_SEND_SIZE_MAX", "NO"},
    {2003, "TCP_RECEIVE_SIZE_MIN", "NO"},
    {2004, "TCP_RECEIVE_SIZE_DEFAULT", "NO"},
    {2005, "TCP_RECEIVE_SIZE_MAX", "NO"},
    {2006, "GLOBAL_SEND_SIZE_MAX", "NO"},
    {2007, "GLOBAL_RECEIVE_SIZE_MAX", "NO"},
});

constexpr auto kFunctions = std::to_array<const char*>(
    {"RMAN", "DBWR", "LGWR", "ARCH", "XDB", "Streams AQ", "Data Pump", "Recovery", "Buffer Cache Reads",
     "Direct Reads", "Direct Writes", "Smart Scan", "Archive Manager", "Others"});

struct FunctionIo {
  std::int64_t smallReads = 0, largeReads = 0, smallReadMb = 0, largeReadMb = 0;
  std::int64_t smallWrites = 0, largeWrites = 0, smallWriteMb = 0, largeWriteMb = 0;
  std::int64_t waits = 0, waitMicros = 0;
};

class HostAndTime : public Topic {
 public:
  explicit HostAndTime(const Setting& setting)
      : database_(setting.database()),
        random_(setting.random),
        model_(setting.tables.perSnapshot(database_, "stats$sys_time_model", "stat_id value")),
        host_(setting.tables.perSnapshot(database_, "stats$osstat", "osstat_id value")),
        functions_(setting.tables.perSnapshot(
            database_, "stats$iostat_function",
            "function_id small_read_megabytes small_write_megabytes large_read_megabytes "
            "large_write_megabytes small_read_reqs small_write_reqs large_read_reqs large_write_reqs "
            "number_of_waits wait_time")) {
    writeNames(setting.tables);
    // The host has been up for months.
    const std::int64_t up = random_.between(40, 160) * 86400;
    busy_ = up * database_.cpus * 28;
    idle_ = up * database_.cpus * 72;
    user_ = busy_ * 8 / 10;
    system_ = busy_ - user_;
    ioWait_ = idle_ / 14;
    pageOut_ = up * 900;
    pageIn_ = up * 2600;
  }

  void restart() override {
    times_.fill(0);
    io_ = {};
  }

  void advance(const Work& w) override {
    for (std::size_t i = 0; i < times_.size(); ++i) times_[i] += kTimeModel[i].micros(w);
    busy_ += w.hostBusy;
    idle_ += w.hostIdle;
    user_ += w.hostUser;
    system_ += w.hostSystem;
    ioWait_ += w.hostIoWait;
    runQueue_ += w.hostRunQueue;
    resource_ += w.bad ? w.dbTime / 10000 / 30 : 0;
    pageOut_ += w.seconds * (w.bad ? 190000 : 400);
    pageIn_ += w.seconds * (w.bad ? 260000 : 1100);
    load_ = (w.hostBusy + w.hostRunQueue) * 100 / std::max<std::int64_t>(1, w.seconds * 100);
    addIo(w);
  }

  void write(const Snapshot& snapshot) override {
    for (std::size_t i = 0; i < times_.size(); ++i) model_.at(snapshot, idOf(i), times_[i]);
    writeHost(snapshot);
    for (std::size_t i = 0; i < io_.size(); ++i) {
      const FunctionIo& f = io_[i];
      // Servers keep milliseconds in wait_time, and the report takes it for microseconds: there the average
      // wait of any disk that works is shown as 0. The demo keeps microseconds, so that the column is worth
      // reading.
      functions_.at(snapshot, i, f.smallReadMb / kKb, f.smallWriteMb / kKb, f.largeReadMb / kKb,
                    f.largeWriteMb / kKb, f.smallReads, f.smallWrites, f.largeReads, f.largeWrites, f.waits,
                    f.waitMicros);
    }
  }

 private:
  static constexpr std::int64_t kKb = 1024;

  static std::int64_t idOf(std::size_t place) {
    return static_cast<std::int64_t>(textHash(kTimeModel[place].name) & 0xFFFFFFFFu);
  }

  void writeNames(Tables& tables) {
    // Databases share these rows; the newest release tells most.
    if (!tables.first("names")) return;
    const Database& newest = databases().back();
    Rows names = tables.rows(newest, "stats$osstatname", "osstat_id stat_name cumulative");
    Rows times = tables.rows(newest, "stats$time_model_statname", "stat_id stat_name");
    Rows functions = tables.rows(newest, "stats$iostat_function_name", "function_id function_name");
    for (const HostStatistic& statistic : kHost)
      names.add(statistic.id, statistic.name, statistic.cumulative);
    for (std::size_t i = 0; i < kTimeModel.size(); ++i) times.add(idOf(i), kTimeModel[i].name);
    for (std::size_t i = 0; i < kFunctions.size(); ++i) functions.add(i, kFunctions[i]);
  }

  void writeHost(const Snapshot& snapshot) {
    const auto put = [&](int id, std::int64_t value) { host_.at(snapshot, id, value); };
    const std::int64_t cpus = database_.cpus;
    put(0, cpus);
    put(1, idle_);
    put(2, busy_);
    put(3, user_);
    put(4, system_);
    put(5, ioWait_);
    put(6, 0);
    put(7, idle_ / cpus);
    put(8, busy_ / cpus);
    put(9, user_ / cpus);
    put(10, system_ / cpus);
    put(11, ioWait_ / cpus);
    // Linux tells no time in the run queue.
    if (database_.platform.find("Linux") == std::string::npos) put(13, runQueue_);
    put(14, resource_);
    host_.at(snapshot, 15, Cell::decimal(load_ + random_.between(0, 60), 2));
    put(16, cpus / 2);
    put(17, (cpus + 7) / 8);
    put(1004, pageIn_);
    put(1005, pageOut_);
    put(1008, database_.memoryMb * 1048576);
    if (!database_.has(11)) return;
    constexpr std::array<std::int64_t, 8> kSizes = {4096,  16384,   4194304, 4096,
                                                    87380, 6291456, 1048576, 4194304};
    for (std::size_t i = 0; i < kSizes.size(); ++i) put(2000 + static_cast<int>(i), kSizes[i]);
  }

  // Megabytes are kept in KB, so that small hours are not lost in rounding.
  void addIo(const Work& w) {
    const std::int64_t block = w.blockSize / kKb;
    const auto reads = [&](std::size_t f, std::int64_t small, std::int64_t smallKb, std::int64_t large,
                           std::int64_t largeKb, std::int64_t waits, std::int64_t micros) {
      io_[f].smallReads += small;
      io_[f].smallReadMb += smallKb;
      io_[f].largeReads += large;
      io_[f].largeReadMb += largeKb;
      io_[f].waits += waits;
      io_[f].waitMicros += micros;
    };
    const auto writes = [&](std::size_t f, std::int64_t small, std::int64_t smallKb, std::int64_t large,
                            std::int64_t largeKb) {
      io_[f].smallWrites += small;
      io_[f].smallWriteMb += smallKb;
      io_[f].largeWrites += large;
      io_[f].largeWriteMb += largeKb;
    };
    if (w.load < 200) {
      reads(0, w.seconds * 3, w.seconds * 48, w.seconds * 6, w.seconds * 6144, w.seconds * 6,
            w.seconds * 30000);
      writes(0, w.seconds / 2, w.seconds * 8, w.seconds * 2, w.seconds * 2048);
    }
    writes(1, w.writeRequests, w.writes * block, 0, 0);
    reads(2, w.seconds / 10, w.seconds / 10 * 16, 0, 0, w.redoWrites, w.logWrite.micros);
    writes(2, w.redoWrites, w.redoBytes / kKb, w.redoBytes / 209715200, w.redoBytes / kKb / 50);
    reads(3, w.seconds / 60, w.seconds / 4, w.redoBytes / 1048576, w.redoBytes / kKb, w.redoBytes / 1048576,
          w.redoBytes / 200);
    writes(3, 0, 0, w.redoBytes / 1048576, w.redoBytes / kKb);
    reads(8, w.singleReads, w.singleReads * block, w.multiRequests, w.multiReads * block,
          w.singleReads + w.multiRequests, w.singleRead.micros + w.multiRead.micros);
    reads(9, w.tempReadRequests, w.tempReads * block, w.directRequests, w.directReads * block,
          w.directRead.waits + w.tempRead.waits, w.directRead.micros + w.tempRead.micros);
    reads(10, w.seconds / 120, w.seconds / 100, 0, 0, w.tempWrite.waits + w.directWrite.waits,
          w.tempWrite.micros + w.directWrite.micros);
    writes(10, w.tempWriteRequests, w.tempWrites * block, w.directWriteRequests, w.directWrites * block);
    reads(13, w.seconds * 4, w.seconds * 64, w.seconds / 20, w.seconds * 20, w.seconds * 4, w.seconds * 2600);
    writes(13, w.seconds * 2, w.seconds * 32, w.seconds / 40, w.seconds * 10);
  }

  const Database& database_;
  Random random_;
  Rows model_, host_, functions_;
  std::array<std::int64_t, kTimeModel.size()> times_{};
  std::array<FunctionIo, kFunctions.size()> io_{};
  std::int64_t busy_ = 0, idle_ = 0, user_ = 0, system_ = 0, ioWait_ = 0, runQueue_ = 0, resource_ = 0;
  std::int64_t pageIn_ = 0, pageOut_ = 0, load_ = 100;
};

}  // namespace

TopicPtr makeHostAndTime(const Setting& setting) { return std::make_unique<HostAndTime>(setting); }

}  // namespace kestrelix::demo

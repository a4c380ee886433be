// Memory of the processes: work areas and what each process holds.
#include <array>
#include <string>

#include "demo/memory_layout.h"
#include "demo/topic.h"

namespace kestrelix::demo {

namespace {

constexpr std::int64_t kKb = 1024;

struct Process {
  int pid;
  const char* program;  // behind the host's name
  bool background;
  int kilobytes;
};

constexpr auto kBackground = std::to_array<Process>({{2, "PMON", true, 1100},
                                                     {5, "DBW0", true, 16900},
                                                     {6, "DBW1", true, 15200},
                                                     {7, "LGWR", true, 19800},
                                                     {8, "CKPT", true, 2100},
                                                     {9, "SMON", true, 4300},
                                                     {10, "RECO", true, 1300},
                                                     {11, "CJQ0", true, 3100},
                                                     {14, "ARC0", true, 21500},
                                                     {15, "ARC1", true, 20900},
                                                     {16, "MMON", true, 9200}});
constexpr int kClients = 9;

struct Category {
  const char* name;
  int share;  // of a process's memory, in hundredths
};
constexpr auto kCategories =
    std::to_array<Category>({{"Other", 44}, {"Freeable", 21}, {"SQL", 20}, {"PL/SQL", 13}, {"JAVA", 2}});

class ProcessMemory : public Topic {
 public:
  explicit ProcessMemory(const Setting& setting)
      : instance_(setting.instance),
        random_(setting.random),
        statistics_(setting.tables.perSnapshot(setting.database(), "stats$pgastat", "name value")),
        workareas_(setting.tables.perSnapshot(setting.database(), "stats$sql_workarea_histogram",
                                              "low_optimal_size high_optimal_size optimal_executions "
                                              "onepass_executions multipasses_executions total_executions")),
        processes_(setting.tables.perSnapshot(
            setting.database(), "stats$process_rollup",
            "pid serial# spid program background pga_used_mem pga_alloc_mem pga_freeable_mem "
            "max_pga_alloc_mem max_pga_max_mem avg_pga_alloc_mem stddev_pga_alloc_mem num_processes")),
        categories_(setting.tables.perSnapshot(
            setting.database(), "stats$process_memory_rollup",
            "pid serial# category allocated used max_allocated max_max_allocated avg_allocated "
            "stddev_allocated non_zero_allocations")) {}

  void restart() override {
    bytes_ = extra_ = overallocations_ = 0;
    executions_.fill(0);
    onepass_.fill(0);
  }

  void advance(const Work& w) override {
    sessions_ = w.sessions;
    bytes_ += w.workareaBytes;
    extra_ += w.extraBytes;
    overallocations_ += w.bad ? 1 : 0;
    const std::int64_t all = w.memorySorts * 13 / 10;
    // Most work areas are small; each doubling is met by half as many or fewer.
    std::int64_t left = all;
    for (std::size_t i = 0; i + 1 < executions_.size(); ++i) {
      const std::int64_t part = left * (i == 0 ? 7 : 4) / 10;
      executions_[i] += part;
      left -= part;
    }
    executions_.back() += left;
    onepass_[onepass_.size() - 2] += w.diskSorts;
    executions_[executions_.size() - 2] += w.diskSorts;
  }

  void write(const Snapshot& snapshot) override {
    const MemoryLayout layout = memoryAt(*instance_.database, snapshot.time);
    for (std::size_t i = 0; i < executions_.size(); ++i) {
      if (executions_[i] == 0) continue;
      const std::int64_t low = std::int64_t{2048} << i;
      workareas_.at(snapshot, low, low * 2 - 1, executions_[i] - onepass_[i], onepass_[i], 0, executions_[i]);
    }
    const std::int64_t allocated = writeProcesses(snapshot);
    writeStatistics(snapshot, layout, allocated);
  }

 private:
  struct Totals {
    std::int64_t allocated = 0, used = 0, freeable = 0, largest = 0, count = 0;
  };

  std::int64_t writeProcesses(const Snapshot& snapshot) {
    Totals totals;
    for (const Process& process : kBackground)
      writeProcess(snapshot, process, random_.around(process.kilobytes * kKb, 15), totals);
    for (int i = 0; i < kClients; ++i)
      writeProcess(snapshot, {20 + i * 3, "", false, 0}, random_.between(1600, 26000) * kKb, totals);
    // The other sessions are not told one by one.
    const std::int64_t others = std::max<std::int64_t>(0, sessions_ - kClients) * 2150 * kKb;
    totals.allocated += others;
    totals.used += others * 7 / 10;
    totals.freeable += others * 2 / 10;
    totals.count += std::max(0, sessions_ - kClients);
    const std::int64_t average = totals.allocated / totals.count;
    processes_.at(snapshot, -9, -9, "", "", "", totals.used, totals.allocated, totals.freeable,
                  totals.largest, totals.largest * 12 / 10, average, average * 8 / 10, totals.count);
    for (const Category& category : kCategories) {
      const std::int64_t part = totals.allocated / 100 * category.share;
      const bool hasUse = std::string_view(category.name) != "Freeable";
      categories_.at(snapshot, -9, -9, category.name, part, hasUse ? Cell(part * 8 / 10) : Cell(),
                     totals.largest / 100 * category.share, totals.largest / 80 * category.share,
                     part / totals.count, part / totals.count * 7 / 10,
                     category.share > 5 ? totals.count : totals.count / 9 + 1);
    }
    return totals.allocated;
  }

  void writeProcess(const Snapshot& snapshot, const Process& process, std::int64_t bytes, Totals& totals) {
    const std::string program = process.background ? "oracle@" + instance_.host + " (" + process.program + ")"
                                                   : "oracle@" + instance_.host + " (TNS V1-V3)";
    const int serial = process.background ? 1 : 40 + process.pid * 7;
    processes_.at(snapshot, process.pid, serial, std::to_string(4000 + process.pid * 2), program,
                  process.background ? "1" : "", bytes * 7 / 10, bytes, bytes * 2 / 10, bytes,
                  bytes * 13 / 10, bytes, 0, 1);
    for (const Category& category : kCategories) {
      if (process.background && category.share == 2) continue;
      const std::int64_t part = bytes / 100 * category.share;
      const bool hasUse = std::string_view(category.name) != "Freeable";
      categories_.at(snapshot, process.pid, serial, category.name, part,
                     hasUse ? Cell(part * 8 / 10) : Cell(), part * 12 / 10, part * 15 / 10, part, 0, 1);
    }
    totals.allocated += bytes;
    totals.used += bytes * 7 / 10;
    totals.freeable += bytes * 2 / 10;
    totals.largest = std::max(totals.largest, bytes);
    ++totals.count;
  }

  void writeStatistics(const Snapshot& snapshot, const MemoryLayout& layout, std::int64_t allocated) {
    const auto put = [&](const char* name, std::int64_t value) { statistics_.at(snapshot, name, value); };
    const bool sorting = instance_.database->business == Business::Warehouse;
    const std::int64_t used =
        std::min(allocated / 2, sessions_ * random_.between(60, 420) * kKb * (sorting ? 12 : 1));
    maximum_ = std::max(maximum_, allocated);
    put("aggregate PGA target parameter", layout.pgaTarget);
    put("aggregate PGA auto target", layout.pgaTarget * 9 / 10 - allocated / 2);
    put("global memory bound", std::min<std::int64_t>(layout.pgaTarget / 5, 104857600));
    put("total PGA inuse", allocated * 8 / 10);
    put("total PGA allocated", allocated);
    put("maximum PGA allocated", maximum_);
    put("total freeable PGA memory", allocated * 2 / 10);
    put("PGA memory freed back to OS", bytes_ / 9);
    put("total PGA used for auto workareas", used);
    put("maximum PGA used for auto workareas", used * 6);
    put("total PGA used for manual workareas", snapshot.place % 6 == 0 ? 536576 : 0);
    put("maximum PGA used for manual workareas", 536576);
    put("over allocation count", overallocations_);
    put("bytes processed", bytes_);
    put("extra bytes read/written", extra_);
    put("cache hit percentage", bytes_ == 0 ? 0 : scaled(bytes_ / 1000, 100, (bytes_ + extra_) / 1000 + 1));
    if (instance_.database->has(10)) {
      put("process count", sessions_ + 20);
      put("max processes count", sessions_ + 44);
      put("recompute count (total)", std::int64_t{snapshot.place} * 1190);
    }
  }

  const Instance& instance_;
  Random random_;
  Rows statistics_, workareas_, processes_, categories_;
  int sessions_ = 40;
  std::int64_t bytes_ = 0, extra_ = 0, overallocations_ = 0, maximum_ = 0;
  std::array<std::int64_t, 18> executions_{};
  std::array<std::int64_t, 18> onepass_{};
};

}  // namespace

TopicPtr makeProcessMemory(const Setting& setting) { return std::make_unique<ProcessMemory>(setting); }

}  // namespace kestrelix::demo

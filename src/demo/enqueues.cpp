// Locks by type and reason.
#include <array>

#include "demo/topic.h"

namespace kestrelix::demo {

namespace {

struct Lock {
  const char* type;
  const char* name;
  const char* reason;
  std::int64_t (*requests)(const Work& work);
  Waited (*waits)(const Work& work);
  int first = 9;
};

Waited none(const Work&) { return {}; }
Waited part(const Waited& whole, int percent) {
  return {whole.waits * percent / 100, whole.micros / 100 * percent};
}

constexpr auto kLocks = std::to_array<Lock>({
    {"CF", "Controlfile Transaction", "contention", [](const Work& w) { return w.seconds / 2; },
     [](const Work& w) {
       return Waited{w.seconds / 1800, w.seconds * 9};
     }},
    {"CI", "Cross-Instance Call Invocation", "contention", [](const Work& w) { return w.seconds / 90; },
     none},
    {"CU", "Cursor", "contention", [](const Work& w) { return w.hardParses; }, none},
    {"DR", "Distributed Recovery", "contention", [](const Work& w) { return w.seconds / 60; }, none},
    {"DX", "Distributed Transaction", "contention", [](const Work& w) { return w.commits / 4000; }, none},
    {"FB", "Format Block", "contention", [](const Work& w) { return w.changes / 9000; },
     [](const Work& w) {
       return Waited{w.changes / 9000000, w.changes / 900};
     },
     10},
    {"HW", "Segment High Water Mark", "contention", [](const Work& w) { return w.changes / 7000; },
     [](const Work& w) {
       return Waited{w.changes / 2600000 + 1, w.changes / 700 + 900};
     }},
    {"IS", "Instance State", "contention", [](const Work& w) { return w.seconds / 200; }, none},
    {"JQ", "Job Queue", "contention", [](const Work& w) { return w.seconds / 60; }, none},
    {"JS", "Job Scheduler", "queue lock", [](const Work& w) { return w.seconds; },
     [](const Work& w) {
       return Waited{w.seconds / 1200, w.seconds};
     },
     10},
    {"MR", "Media Recovery", "contention", [](const Work& w) { return w.seconds / 900; }, none},
    {"PS", "PX Process Reservation", "contention", [](const Work& w) { return w.directRequests / 900 + 1; },
     [](const Work& w) {
       return Waited{w.directRequests / 40000, w.directRequests / 30};
     }},
    {"RO", "Multiple Object Reuse", "fast object reuse", [](const Work& w) { return w.seconds / 400; },
     [](const Work& w) {
       return Waited{w.seconds / 1100, w.seconds * 20};
     },
     10},
    {"SQ", "Sequence Cache", "contention", [](const Work& w) { return w.commits / 40; },
     [](const Work& w) {
       return Waited{w.commits / 260000, w.commits / 90};
     }},
    {"ST", "Space Transaction", "contention", [](const Work& w) { return w.seconds / 600; }, none},
    {"TA", "Instance Undo", "contention", [](const Work& w) { return w.seconds / 700; }, none},
    {"TM", "DML", "contention", [](const Work& w) { return w.commits * 2; },
     [](const Work& w) {
       return w.bad ? Waited{2, 4100000} : Waited{};
     }},
    {"TS", "Temporary Segment", "contention", [](const Work& w) { return w.tempWrites / 3000 + 1; }, none},
    {"TX", "Transaction", "contention", [](const Work& w) { return w.commits; },
     [](const Work& w) {
       return Waited{w.commits / 900000, w.commits / 90};
     }},
    {"TX", "Transaction", "row lock contention", [](const Work& w) { return w.rowLock.waits; },
     [](const Work& w) { return part(w.rowLock, 80); }, 10},
    {"TX", "Transaction", "index contention", [](const Work& w) { return w.rowLock.waits / 5; },
     [](const Work& w) { return part(w.rowLock, 20); }, 10},
    {"TX", "Transaction", "allocate ITL entry", [](const Work& w) { return w.itl.waits; },
     [](const Work& w) { return w.itl; }, 10},
    {"UL", "User-defined", "contention", [](const Work& w) { return w.seconds / 30; },
     [](const Work& w) {
       return Waited{w.seconds / 1800, w.seconds * 2600};
     }},
    {"US", "Undo Segment", "contention", [](const Work& w) { return w.seconds / 20; },
     [](const Work& w) {
       return w.bad ? Waited{14, 36000} : Waited{};
     }},
    {"WF", "AWR Flush", "contention", [](const Work& w) { return w.seconds / 300; }, none, 10},
});

struct Counter {
  std::int64_t requests = 0, failed = 0, waits = 0, micros = 0;
};

class Enqueues : public Topic {
 public:
  explicit Enqueues(const Setting& setting)
      : database_(setting.database()),
        of9_(
            setting.tables.perSnapshot(database_, "stats$enqueue_stat",
                                       "eq_type total_req# total_wait# succ_req# failed_req# cum_wait_time")),
        rows_(setting.tables.perSnapshot(database_, "stats$enqueue_statistics",
                                         "eq_type req_reason total_req# total_wait# succ_req# failed_req# "
                                         "cum_wait_time event#")) {
    // One type is left out, as a type of a newer release would be.
    if (!setting.tables.first("lock types")) return;
    Rows types = setting.tables.rows(databases().back(), "v$lock_type",
                                     "type name id1_tag id2_tag is_user description");
    std::string before = "WF";
    for (const Lock& lock : kLocks) {
      if (lock.type == before || std::string_view(lock.type) == "WF") continue;
      before = lock.type;
      const bool user = before == "TX" || before == "TM" || before == "UL";
      types.add(lock.type, lock.name,
                before == "TX"   ? "usn<<16 | slot"
                : before == "TM" ? "object #"
                                 : "0",
                before == "TX" ? "sequence" : "operation", user ? "YES" : "NO",
                "Lock held for: " + std::string(lock.name));
    }
  }

  void restart() override { counters_.fill({}); }

  void advance(const Work& w) override {
    for (std::size_t i = 0; i < kLocks.size(); ++i) {
      // Release 9 tells a type as a whole.
      Waited waits = kLocks[i].waits(w);
      if (!database_.has(10) && std::string_view(kLocks[i].type) == "TX")
        waits = {w.rowLock.waits + w.itl.waits, w.rowLock.micros + w.itl.micros};
      counters_[i].requests += std::max(kLocks[i].requests(w), waits.waits);
      counters_[i].failed +=
          waits.waits / 20 + (std::string_view(kLocks[i].type) == "JQ" ? w.seconds / 900 : 0);
      counters_[i].waits += waits.waits;
      counters_[i].micros += waits.micros;
    }
  }

  void write(const Snapshot& snapshot) override {
    for (std::size_t i = 0; i < kLocks.size(); ++i) {
      const Lock& lock = kLocks[i];
      const Counter& c = counters_[i];
      if (c.requests == 0) continue;
      const std::int64_t succeeded = c.requests - c.failed;
      if (lock.first <= 9)
        of9_.at(snapshot, lock.type, c.requests, c.waits, succeeded, c.failed, c.micros / 1000);
      rows_.at(snapshot, lock.type, lock.reason, c.requests, c.waits, succeeded, c.failed, c.micros / 1000,
               180 + i);
    }
  }

 private:
  const Database& database_;
  Rows of9_, rows_;
  std::array<Counter, kLocks.size()> counters_{};
};

}  // namespace

TopicPtr makeEnqueues(const Setting& setting) { return std::make_unique<Enqueues>(setting); }

}  // namespace kestrelix::demo

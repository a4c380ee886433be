// Latches, where they were missed, and mutexes.
#include <array>

#include "demo/topic.h"

namespace kestrelix::demo {

namespace {

struct Latch {
  const char* name;
  int level;
  std::int64_t (*gets)(const Work& work);
  int misses = 0;          // of a million gets at full load
  int sleeps = 0;          // of a thousand misses
  int immediate = 0;       // gets without waiting, of a hundred gets
  const char* where = "";  // two places in the code, parted by '|'
  int first = 9;
  int last = 11;
};

constexpr auto kLatches = std::to_array<Latch>({
    {"AWR Alerted Metric Element list", 0, [](const Work& w) { return w.seconds * 5; }, 0, 0, 0, "", 10},
    {"Consistent RBA", 0, [](const Work& w) { return w.redoWrites; }, 4},
    {"JS queue state obj latch", 0, [](const Work& w) { return w.seconds * 6; }, 0, 0, 0, "", 10},
    {"SQL memory manager workarea list latch", 0,
     [](const Work& w) { return w.memorySorts * 3 + w.seconds * 20; }, 12, 10, 0, "qesmmRegisterWorkArea:1"},
    {"active checkpoint queue latch", 4, [](const Work& w) { return w.writeRequests * 2; }, 20, 4},
    {"active service list", 5, [](const Work& w) { return w.seconds * 10; }, 0, 0, 3, "", 10},
    {"address list", 0, [](const Work& w) { return w.seconds / 60 + 1; }},
    {"archive control", 1, [](const Work& w) { return w.seconds / 30 + 1; }},
    {"cache buffer handles", 3, [](const Work& w) { return w.gets / 300; }, 40, 8, 0, "kcbzgs"},
    {"cache buffers chains", 1, [](const Work& w) { return w.gets * 18 / 10; }, 260, 6, 1,
     "kcbgtcr: kslbegin excl|kcbchg: kslbegin: bufs not pinned"},
    {"cache buffers lru chain", 2, [](const Work& w) { return w.singleReads + w.multiReads + w.writes; }, 900,
     11, 160, "kcbzgws|kcbbxsv: move to being written"},
    {"channel operations parent latch", 0, [](const Work& w) { return w.seconds * 4; }, 30, 2},
    {"checkpoint queue latch", 7, [](const Work& w) { return w.writes * 4; }, 60, 6, 4,
     "kcbkllrba: compute lowest LRBA"},
    {"client/application info", 5, [](const Work& w) { return w.userCalls / 15; }, 3},
    {"compile environment latch", 9, [](const Work& w) { return w.logons; }, 0, 0, 0, "", 10},
    {"dml lock allocation", 0, [](const Work& w) { return w.commits * 2; }, 90, 7, 0, "ktaiam|ktaidm"},
    {"dummy allocation", 0, [](const Work& w) { return w.logons * 2; }},
    {"enqueue hash chains", 5, [](const Work& w) { return w.commits * 10; }, 210, 9, 0, "ksqgtl3|ksqrcl"},
    {"enqueues", 5, [](const Work& w) { return w.commits * 4; }, 160, 8, 0, "ksqies|ksqdel"},
    {"event group latch", 3, [](const Work& w) { return w.logons; }},
    {"file cache latch", 0, [](const Work& w) { return w.seconds * 2; }, 0, 0, 0, "", 10},
    {"gcs resource freelist", 6, [](const Work& w) { return w.currentReceived / 2; }, 30, 2, 0, "", 10},
    {"gcs resource hash", 6, [](const Work& w) { return (w.crReceived + w.currentReceived) * 3; }, 120, 5, 20,
     "kjbopen|kjbmpconvert", 10},
    {"ges process hash list", 6, [](const Work& w) { return w.crReceived == 0 ? 0 : w.logons * 3; }, 0, 0, 0,
     "", 10},
    {"ges resource hash list", 5, [](const Work& w) { return w.crReceived == 0 ? 0 : w.commits * 3; }, 70, 6,
     0, "kjlrlr: remove lock from resource queue", 10},
    {"global tx hash mapping", 0, [](const Work& w) { return w.commits / 400; }},
    {"hash table column usage latch", 0, [](const Work& w) { return w.hardParses; }, 5, 0, 160, "", 10},
    {"hash table modification latch", 0, [](const Work& w) { return w.seconds / 12; }},
    {"job_queue_processes parameter latch", 0, [](const Work& w) { return w.seconds / 60; }},
    {"ktm global data", 0, [](const Work& w) { return w.seconds / 40; }},
    {"lgwr LWN SCN", 2, [](const Work& w) { return w.redoWrites; }, 14, 2},
    {"library cache", 5, [](const Work& w) { return w.executions * 4 + w.parses * 9; }, 900, 22, 1,
     "kglupc: child|kglpnc: child|kglhdgn: child:", 9, 10},
    {"library cache load lock", 5, [](const Work& w) { return w.hardParses * 2; }, 2, 0, 0, "", 9, 10},
    {"library cache pin", 5, [](const Work& w) { return w.executions * 2; }, 160, 9, 0,
     "kglpnal: child: alloc space|kglpndl", 10, 10},
    {"library cache pin allocation", 3, [](const Work& w) { return w.executions / 2; }, 20, 4, 0, "", 9, 10},
    {"list of block allocation", 3, [](const Work& w) { return w.commits / 8; }},
    {"loader state object freelist", 0, [](const Work& w) { return w.directWrites; }},
    {"longop free list parent", 0, [](const Work& w) { return w.multiRequests / 9000 + 1; }},
    {"messages", 8, [](const Work& w) { return w.redoWrites * 3 + w.seconds * 8; }, 80, 3, 0,
     "ksaamb: after wakeup"},
    {"mostly latch-free SCN", 2, [](const Work& w) { return w.redoWrites; }, 120, 2},
    {"multiblock read objects", 2, [](const Work& w) { return w.multiRequests * 2; }, 40, 5, 0,
     "kcbzibmlt: normal mbr"},
    {"ncodef allocation latch", 0, [](const Work& w) { return w.seconds / 60; }},
    {"object queue header heap", 5, [](const Work& w) { return w.multiReads / 20 + w.seconds; }, 3, 0, 60, "",
     10},
    {"object queue header operation", 5, [](const Work& w) { return w.singleReads * 3 + w.multiReads; }, 25,
     3, 0, "kcbo_switch_q_bg", 10},
    {"parallel query alloc buffer", 0, [](const Work& w) { return w.directRequests / 80 + 1; }},
    {"post/wait queue", 9, [](const Work& w) { return w.commits * 15 / 10; }, 18, 2, 60,
     "ksliwat:add:nowait"},
    {"process allocation", 5, [](const Work& w) { return w.logons; }, 1, 0, 40},
    {"process group creation", 0, [](const Work& w) { return w.logons * 2; }},
    {"qmn task queue latch", 3, [](const Work& w) { return w.seconds / 9; }, 0, 0, 0, "", 10},
    {"redo allocation", 6, [](const Work& w) { return w.redoEntries / 2 + w.redoWrites * 3; }, 520, 8, 110,
     "kcrfw_redo_gen: redo allocation 1|kcrfw_redo_write: before write"},
    {"redo copy", 5, [](const Work& w) { return w.seconds / 60; }, 0, 0, 90000,
     "kcrfw_redo_gen: nowait latch"},
    {"redo writing", 4, [](const Work& w) { return w.redoWrites * 4; }, 150, 4, 0, "kcrfw_post: more space"},
    {"resmgr:active threads", 6, [](const Work& w) { return w.logons * 2; }, 0, 0, 0, "", 10},
    {"row cache objects", 4, [](const Work& w) { return w.parses * 7 + w.hardParses * 60; }, 300, 12, 1,
     "kqrpre: find obj|kqreqd: reget"},
    {"sequence cache", 8, [](const Work& w) { return w.commits; }, 60, 9, 0, "kdnnxt: cached seq"},
    {"session allocation", 5, [](const Work& w) { return w.userCalls / 3; }, 110, 6, 0,
     "ksucri_int : SSO|ksufap: active sessions"},
    {"session idle bit", 1, [](const Work& w) { return w.userCalls * 2; }, 9, 2, 0, "ksupuc: set busy"},
    {"session switching", 0, [](const Work& w) { return w.logons; }},
    {"session timer", 0, [](const Work& w) { return w.seconds / 3; }},
    {"shared pool", 7, [](const Work& w) { return w.hardParses * 260 + w.parses; }, 700, 45, 0,
     "kghalo|kghupr1|kghfrunp: alloc: clatch nowait"},
    {"shared pool simulator", 0, [](const Work& w) { return w.hardParses * 30 + w.parses; }, 6, 2, 0, "", 10},
    {"simulator hash latch", 5, [](const Work& w) { return w.gets / 16; }, 5, 2, 0,
     "kcbs_lookup_setid: lookup dba"},
    {"simulator lru latch", 6, [](const Work& w) { return w.gets / 90; }, 30, 3, 110,
     "kcbs_simulate: simulate set"},
    {"sort extent pool", 2, [](const Work& w) { return w.seconds / 50 + w.tempWrites / 90; }, 2},
    {"temporary table state object allocation", 0, [](const Work& w) { return w.seconds / 900; }},
    {"transaction allocation", 4, [](const Work& w) { return w.commits / 2; }, 4, 2},
    {"undo global data", 5, [](const Work& w) { return w.changes / 8 + w.commits * 3; }, 70, 5, 0,
     "ktudba: KSLBEGIN|ktudnx:child"},
    {"user lock", 0, [](const Work& w) { return w.logons * 3; }, 2},
});

struct Counter {
  std::int64_t gets = 0, misses = 0, sleeps = 0, immediate = 0, immediateMisses = 0, micros = 0;
};

struct MutexPlace {
  const char* type;
  const char* location;
  int share;  // of the sleeps, in hundredths
};
constexpr auto kMutexes = std::to_array<MutexPlace>({{"Cursor Pin", "kksfbc [KKSCHLFSP2]", 31},
                                                     {"Cursor Pin", "kksLockDelete [KKSCHLPIN6]", 12},
                                                     {"Cursor Pin", "kkslce [KKSCHLPIN2]", 9},
                                                     {"Cursor Parent", "kksfbc [KKSCHLFSP2]", 5},
                                                     {"Cursor Stat", "kksFindCursorStat [KKSSTALOC3]", 4},
                                                     {"Library Cache", "kglpndl1  95", 13},
                                                     {"Library Cache", "kglpin1   4", 11},
                                                     {"Library Cache", "kglhdgn2 106", 9},
                                                     {"hash table", "kkshGetNextChild [KKSHBKLOC1]", 6}});

class Latches : public Topic {
 public:
  explicit Latches(const Setting& setting)
      : database_(setting.database()),
        random_(setting.random),
        latches_(
            table(setting, "stats$latch",
                  "name latch# level# gets misses sleeps immediate_gets immediate_misses spin_gets sleep1 "
                  "sleep2 sleep3 sleep4 wait_time")),
        places_(table(setting, "stats$latch_misses_summary",
                      "parent_name where_in_code nwfail_count sleep_count wtr_slp_count")),
        mutexes_(table(setting, "stats$mutex_sleep", "mutex_type location sleeps wait_time")) {
    const int release = std::stoi(database_.major);
    for (const Latch& latch : kLatches)
      if (latch.first <= release && release <= latch.last) known_.push_back(&latch);
    counters_.resize(known_.size());
  }

  void restart() override {
    counters_.assign(known_.size(), {});
    mutexSleeps_ = mutexMicros_ = 0;
  }

  void advance(const Work& w) override {
    const std::int64_t load = std::max(w.load, 60) + (w.bad ? 1800 : 0);
    for (std::size_t i = 0; i < known_.size(); ++i) {
      const Latch& latch = *known_[i];
      Counter& counter = counters_[i];
      const std::int64_t gets = random_.around(latch.gets(w), 20);
      const std::int64_t misses = scaled(gets, random_.around(latch.misses, 200) * load / 200, 1000000);
      const std::int64_t sleeps = scaled(misses, random_.around(latch.sleeps, 250) * (w.bad ? 3 : 1), 4000);
      const std::int64_t immediate = scaled(gets, latch.immediate, 100);
      counter.gets += gets;
      counter.misses += misses;
      counter.sleeps += std::min(sleeps, misses);
      counter.micros += std::min(sleeps, misses) * random_.between(300, 2400);
      counter.immediate += immediate;
      counter.immediateMisses += scaled(immediate, latch.misses, 4000000);
    }
    const std::int64_t sleeps = w.executions / 1000 * load / 2200 + w.hardParses / 700;
    mutexSleeps_ += sleeps;
    mutexMicros_ += sleeps * random_.between(700, 1900);
  }

  void write(const Snapshot& snapshot) override {
    for (std::size_t i = 0; i < known_.size(); ++i) {
      const Counter& c = counters_[i];
      // A get that was missed is had by spinning or after a sleep; some sleep more than once.
      const std::int64_t slept = c.sleeps * 9 / 10;
      latches_.at(snapshot, known_[i]->name, i + 1, known_[i]->level, c.gets, c.misses, c.sleeps, c.immediate,
                  c.immediateMisses, c.misses - slept, slept - slept / 10, slept / 10, 0, 0, c.micros);
      writePlaces(snapshot, *known_[i], c);
    }
    for (const MutexPlace& place : kMutexes) {
      if (!database_.has(11) && std::string_view(place.type) == "Library Cache") continue;
      mutexes_.at(snapshot, place.type, place.location, mutexSleeps_ * place.share / 100,
                  mutexMicros_ / 100 * place.share);
    }
  }

 private:
  static Rows table(const Setting& setting, const char* name, const char* columns) {
    return setting.tables.perSnapshot(setting.database(), name, columns);
  }

  // The sleeps of a latch's places add up to its own: the first place has most of them.
  void writePlaces(const Snapshot& snapshot, const Latch& latch, const Counter& c) {
    std::string_view rest = latch.where;
    if (rest.empty() || c.sleeps == 0) return;
    std::int64_t left = c.sleeps;
    while (!rest.empty()) {
      const std::size_t end = std::min(rest.find('|'), rest.size());
      const std::string_view where = rest.substr(0, end);
      rest.remove_prefix(std::min(end + 1, rest.size()));
      const std::int64_t part = rest.empty() ? left : left * 64 / 100;
      left -= part;
      places_.at(snapshot, latch.name, where, c.immediateMisses / 2, part, part * 9 / 10);
    }
  }

  const Database& database_;
  Random random_;
  Rows latches_, places_, mutexes_;
  std::vector<const Latch*> known_;
  std::vector<Counter> counters_;
  std::int64_t mutexSleeps_ = 0, mutexMicros_ = 0;
};

}  // namespace

TopicPtr makeLatches(const Setting& setting) { return std::make_unique<Latches>(setting); }

}  // namespace kestrelix::demo

// Wait events: all, of the background, and by length.
#include <algorithm>
#include <array>
#include <map>

#include "demo/histogram.h"
#include "demo/topic.h"

namespace kestrelix::demo {

namespace {

enum class Who { Foreground, Background };

struct Event {
  const char* name;
  Who who;
  Waited (*of)(const Work& work);
  int timeouts = 0;  // of 100 waits
  int first = 9;
  int last = 11;
};

Waited each(std::int64_t waits, std::int64_t micros) { return {waits, waits * micros}; }
Waited part(const Waited& whole, int percent) {
  return {whole.waits * percent / 100, whole.micros / 100 * percent};
}
Waited idle(const Work& w, std::int64_t seconds) { return {w.seconds / seconds, w.seconds * 1000000}; }

using enum Who;

constexpr auto kEvents = std::to_array<Event>({
    // The foreground's, whose times make up the DB time with the CPU.
    {"db file sequential read", Foreground, [](const Work& w) { return w.singleRead; }},
    {"db file scattered read", Foreground, [](const Work& w) { return w.multiRead; }},
    {"direct path read", Foreground, [](const Work& w) { return w.directRead; }},
    {"direct path read temp", Foreground, [](const Work& w) { return w.tempRead; }, 0, 10},
    {"direct path write temp", Foreground, [](const Work& w) { return w.tempWrite; }, 0, 10},
    {"direct path write", Foreground, [](const Work& w) { return w.directWrite; }},
    {"read by other session", Foreground, [](const Work& w) { return w.otherRead; }, 0, 10},
    {"log file sync", Foreground, [](const Work& w) { return w.commit; }},
    {"enqueue", Foreground, [](const Work& w) { return Waited{w.rowLock.waits + w.itl.waits, w.rowLock.micros + w.itl.micros}; }, 40, 9, 9},
    {"enq: TX - row lock contention", Foreground, [](const Work& w) { return part(w.rowLock, 80); }, 10, 10},
    {"enq: TX - index contention", Foreground, [](const Work& w) { return part(w.rowLock, 20); }, 0, 10},
    {"enq: TX - allocate ITL entry", Foreground, [](const Work& w) { return w.itl; }, 0, 10},
    {"buffer busy waits", Foreground, [](const Work& w) { return w.bufferBusy; }},
    {"latch free", Foreground, [](const Work& w) { return w.latch; }, 60, 9, 9},
    {"latch: cache buffers chains", Foreground, [](const Work& w) { return part(w.latch, 70); }, 0, 10},
    {"latch: shared pool", Foreground, [](const Work& w) { return part(w.latch, 18); }, 0, 10},
    {"latch free", Foreground, [](const Work& w) { return part(w.latch, 12); }, 0, 10},
    {"library cache pin", Foreground, [](const Work& w) { return part(w.library, 57); }, 2},
    {"library cache lock", Foreground, [](const Work& w) { return part(w.library, 38); }, 3},
    {"cursor: pin S wait on X", Foreground, [](const Work& w) { return part(w.library, 5); }, 0, 10},
    {"SQL*Net more data to client", Foreground, [](const Work& w) { return w.network; }},
    {"log buffer space", Foreground, [](const Work& w) { return part(w.redoSpace, 30); }},
    {"log file switch completion", Foreground, [](const Work& w) { return part(w.redoSpace, 70); }},
    {"gc cr block 2-way", Foreground, [](const Work& w) { return part(w.crBlock, 92); }, 0, 10},
    {"gc cr multi block request", Foreground, [](const Work& w) { return part(w.crBlock, 8); }, 0, 10},
    {"gc current block 2-way", Foreground, [](const Work& w) { return part(w.currentBlock, 88); }, 0, 10},
    {"gc current grant busy", Foreground, [](const Work& w) { return part(w.currentBlock, 5); }, 0, 10},
    {"gc current block busy", Foreground, [](const Work& w) { return part(w.currentBlock, 7); }, 0, 10},
    {"gc buffer busy", Foreground, [](const Work& w) { return w.globalBusy; }, 0, 10, 10},
    {"gc buffer busy acquire", Foreground, [](const Work& w) { return part(w.globalBusy, 75); }, 0, 11},
    {"gc buffer busy release", Foreground, [](const Work& w) { return part(w.globalBusy, 25); }, 0, 11},
    // The background's.
    {"log file parallel write", Background, [](const Work& w) { return w.logWrite; }},
    {"db file parallel write", Background, [](const Work& w) { return each(w.writeRequests / 3 + 1, 1900); }},
    {"control file parallel write", Background, [](const Work& w) { return each(w.seconds / 3 + 1, 2300); }},
    {"control file sequential read", Background, [](const Work& w) { return each(w.seconds * 2, 310); }},
    {"log file sequential read", Background, [](const Work& w) { return each(w.redoBytes / 1048576, 5200); }},
    {"LGWR wait for redo copy", Background, [](const Work& w) { return each(w.redoWrites / 90, 40); }, 8},
    {"process startup", Background, [](const Work& w) { return each(w.seconds / 700, 26000); }},
    {"os thread startup", Background, [](const Work& w) { return each(w.seconds / 120, 31000); }, 0, 10},
    {"rdbms ipc reply", Background, [](const Work& w) { return each(w.seconds / 40, 900); }, 2},
    {"Log archive I/O", Background, [](const Work& w) { return each(w.redoBytes / 1048576, 900); }, 0, 10},
    {"ARCH wait on SENDREQ", Background, [](const Work& w) { return each(w.redoBytes / 209715200, 120000); }, 0, 10, 10},
    {"reliable message", Background, [](const Work& w) { return each(w.seconds / 300, 1100); }, 0, 10},
    {"events in waitclass Other", Background, [](const Work& w) { return each(w.seconds / 2, 150); }, 95, 10},
    {"ges lms sync during dynamic remastering and reconfig", Background, [](const Work& w) { return each(w.crReceived / 9000000, 16000); }, 0, 10},
    {"asynch descriptor resize", Background, [](const Work& w) { return each(w.seconds, 3); }, 100, 11},
    {"Disk file operations I/O", Background, [](const Work& w) { return each(w.seconds / 15, 420); }, 0, 11},
    // Those that wait for work.
    {"SQL*Net message from client", Foreground, [](const Work& w) { return Waited{w.userCalls, std::int64_t{w.sessions - 20} * w.seconds * 1000000 - w.dbTime / 9}; }},
    {"SQL*Net message to client", Foreground, [](const Work& w) { return each(w.userCalls, 1); }},
    {"SQL*Net more data from client", Foreground, [](const Work& w) { return each(w.userCalls / 60, 35); }},
    {"jobq slave wait", Foreground, [](const Work& w) { return idle(w, 3); }, 98},
    {"PX Deq: Execution Msg", Foreground, [](const Work& w) { return each(w.directRequests / 50, 12000); }, 4},
    {"PX Idle Wait", Foreground, [](const Work& w) { return idle(w, 2); }, 90},
    {"rdbms ipc message", Background, [](const Work& w) { return Waited{w.seconds * 3, w.seconds * 9000000}; }, 88},
    {"pmon timer", Background, [](const Work& w) { return idle(w, 3); }, 99},
    {"smon timer", Background, [](const Work& w) { return idle(w, 290); }, 92},
    {"dispatcher timer", Background, [](const Work& w) { return idle(w, 60); }, 100},
    {"wakeup time manager", Background, [](const Work& w) { return idle(w, 31); }, 100, 9, 9},
    {"Streams AQ: qmn coordinator idle wait", Background, [](const Work& w) { return idle(w, 14); }, 50, 10},
    {"Streams AQ: qmn slave idle wait", Background, [](const Work& w) { return idle(w, 28); }, 0, 10},
    {"class slave wait", Background, [](const Work& w) { return idle(w, 5); }, 5, 11},
    {"DIAG idle wait", Background, [](const Work& w) { return Waited{w.seconds * 2, w.seconds * 2000000}; }, 100, 11},
    {"VKTM Logical Idle Wait", Background, [](const Work& w) { return idle(w, 600); }, 0, 11},
    {"Space Manager: slave idle wait", Background, [](const Work& w) { return idle(w, 5); }, 97, 11},
    {"shared server idle wait", Background, [](const Work& w) { return idle(w, 30); }, 100, 11},
    {"gcs remote message", Background, [](const Work& w) { return w.crReceived == 0 ? Waited{} : Waited{w.crReceived + w.seconds * 30, w.seconds * 2000000}; }, 70, 10},
    {"ges remote message", Background, [](const Work& w) { return w.crReceived == 0 ? Waited{} : Waited{w.commits / 2 + w.seconds * 15, w.seconds * 1000000}; }, 60, 10},
    {"PING", Background, [](const Work& w) { return w.crReceived == 0 ? Waited{} : idle(w, 5); }, 40, 11},
});

struct Counter {
  std::int64_t waits = 0;
  std::int64_t timeouts = 0;
  std::int64_t micros = 0;
  Histogram buckets{};
};

class Waits : public Topic {
 public:
  explicit Waits(const Setting& setting)
      : random_(setting.random),
        events_(
            setting.tables.perSnapshot(setting.database(), "stats$system_event",
                                       "event total_waits total_timeouts time_waited_micro total_waits_fg "
                                       "total_timeouts_fg time_waited_micro_fg event_id")),
        background_(setting.tables.perSnapshot(setting.database(), "stats$bg_event_summary",
                                               "event total_waits total_timeouts time_waited_micro")),
        histogram_(setting.tables.perSnapshot(setting.database(), "stats$event_histogram",
                                              "event_id wait_time_milli wait_count")) {
    const int release = std::stoi(setting.database().major);
    for (const Event& event : kEvents)
      if (event.first <= release && release <= event.last) known_.push_back(&event);
  }

  void restart() override { counters_.clear(); }

  void advance(const Work& work) override {
    for (const Event* event : known_) {
      const Waited waited = event->of(work);
      Pair& pair = counters_[event->name];
      add(event->who == Foreground ? pair.foreground : pair.background, waited, event->timeouts);
      // The background reads blocks as well.
      if (event->who == Foreground && isShared(event->name))
        add(pair.background, {waited.waits / 400 + 1, waited.micros / 400}, event->timeouts);
    }
  }

  void write(const Snapshot& snapshot) override {
    for (const auto& [name, pair] : counters_) {
      const Counter& fg = pair.foreground;
      const Counter& bg = pair.background;
      if (fg.waits + bg.waits == 0) continue;
      const auto id = static_cast<std::int64_t>(textHash(name) & 0xFFFFFFFFu);
      events_.at(snapshot, name, fg.waits + bg.waits, fg.timeouts + bg.timeouts, fg.micros + bg.micros,
                 fg.waits, fg.timeouts, fg.micros, id);
      if (bg.waits > 0) background_.at(snapshot, name, bg.waits, bg.timeouts, bg.micros);
      for (std::size_t i = 0; i < fg.buckets.size(); ++i)
        if (const std::int64_t count = fg.buckets[i] + bg.buckets[i]; count > 0)
          histogram_.at(snapshot, id, bucketMillis(i), count);
    }
  }

 private:
  struct Pair {
    Counter foreground;
    Counter background;
  };

  static bool isShared(std::string_view name) {
    return name == "db file sequential read" || name == "latch free" || name == "direct path read";
  }

  void add(Counter& counter, const Waited& waited, int timeouts) {
    if (waited.waits <= 0) return;
    const std::int64_t micros = std::max<std::int64_t>(waited.micros, 0);
    counter.waits += waited.waits;
    counter.micros += micros;
    counter.timeouts += waited.waits * timeouts / 100;
    addSpread(counter.buckets, waited.waits, micros, random_);
  }

  Random random_;
  Rows events_, background_, histogram_;
  std::vector<const Event*> known_;
  std::map<std::string_view, Pair> counters_;
};

}  // namespace

TopicPtr makeWaits(const Setting& setting) { return std::make_unique<Waits>(setting); }

}  // namespace kestrelix::demo

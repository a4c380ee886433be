// The system statistics: what the instance counted.
#include <array>

#include "demo/memory_layout.h"
#include "demo/topic.h"

namespace kestrelix::demo {

namespace {

struct Statistic {
  const char* name;
  std::int64_t (*of)(const Work& work);
  int first = 9;
  int last = 11;
};

constexpr std::int64_t consistent(const Work& w) { return w.gets - w.currentGets; }

constexpr auto kStatistics = std::to_array<Statistic>({
    {"CPU used by this session", [](const Work& w) { return (w.cpu + w.backgroundCpu) / 10000; }},
    {"CPU used when call started", [](const Work& w) { return (w.cpu + w.backgroundCpu) / 10010; }},
    {"CR blocks created", [](const Work& w) { return w.changes / 90; }},
    {"Commit SCN cached", [](const Work& w) { return w.commits / 700; }},
    {"DB time", [](const Work& w) { return w.dbTime / 10000; }, 10},
    {"DBWR checkpoint buffers written", [](const Work& w) { return w.writes * 6 / 10; }},
    {"DBWR checkpoints", [](const Work& w) { return w.redoBytes / 209715200 + 1; }},
    {"DBWR fusion writes", [](const Work& w) { return w.currentServed / 60; }, 10},
    {"DBWR lru scans", [](const Work& w) { return w.writes / 120; }},
    {"DBWR make free requests", [](const Work& w) { return w.writes / 130; }, 9, 9},
    {"DBWR object drop buffers written", [](const Work& w) { return w.seconds / 900; }, 10},
    {"DBWR revisited being-written buffer", [](const Work& w) { return w.writes / 2000; }},
    {"DBWR tablespace checkpoint buffers written", [](const Work& w) { return w.seconds / 200; }, 10},
    {"DBWR transaction table writes", [](const Work& w) { return w.seconds / 7; }},
    {"DBWR undo block writes", [](const Work& w) { return w.undoBlocks * 7 / 10; }},
    {"Effective IO time", [](const Work& w) { return w.multiRead.micros; }, 11},
    {"Number of read IOs issued", [](const Work& w) { return w.multiRequests; }, 11},
    {"PX local messages recv'd", [](const Work& w) { return w.directRequests / 40; }},
    {"PX local messages sent", [](const Work& w) { return w.directRequests / 40; }},
    {"SQL*Net roundtrips to/from client", [](const Work& w) { return w.userCalls * 99 / 100; }},
    {"active txn count during cleanout", [](const Work& w) { return w.changes / 300; }},
    {"application wait time", [](const Work& w) { return w.rowLock.micros / 10000; }, 10},
    {"background checkpoints completed", [](const Work& w) { return w.redoBytes / 209715200; }},
    {"background checkpoints started", [](const Work& w) { return w.redoBytes / 209715200; }},
    {"background timeouts", [](const Work& w) { return w.seconds * 3; }},
    {"branch node splits", [](const Work& w) { return w.changes / 900000; }},
    {"buffer is not pinned count", [](const Work& w) { return consistent(w) * 7 / 10; }},
    {"buffer is pinned count", [](const Work& w) { return consistent(w) * 9 / 10; }},
    {"bytes received via SQL*Net from client", [](const Work& w) { return w.userCalls * 184; }},
    {"bytes sent via SQL*Net to client", [](const Work& w) { return w.userCalls * 412; }},
    {"calls to get snapshot scn: kcmgss", [](const Work& w) { return w.executions * 12 / 10; }},
    {"calls to kcmgas", [](const Work& w) { return w.commits * 2; }},
    {"calls to kcmgcs", [](const Work& w) { return w.changes / 300; }},
    {"cell physical IO interconnect bytes",
     [](const Work& w) { return (w.readBlocks() + w.writeBlocks()) * w.blockSize; }, 11},
    {"change write time", [](const Work& w) { return w.redoBytes / 900000; }},
    {"cleanout - number of ktugct calls", [](const Work& w) { return w.changes / 260; }},
    {"cleanouts and rollbacks - consistent read gets", [](const Work& w) { return w.changes / 1500; }},
    {"cleanouts only - consistent read gets", [](const Work& w) { return w.changes / 900; }},
    {"cluster key scan block gets", [](const Work& w) { return w.hardParses * 5; }},
    {"cluster key scans", [](const Work& w) { return w.hardParses * 4; }},
    {"cluster wait time", [](const Work& w) { return w.clusterMicros() / 10000; }, 10},
    {"commit cleanouts", [](const Work& w) { return w.commits * 3; }},
    {"commit cleanouts successfully completed", [](const Work& w) { return w.commits * 298 / 100; }},
    {"concurrency wait time",
     [](const Work& w) { return (w.bufferBusy.micros + w.latch.micros + w.library.micros) / 10000; }, 10},
    {"consistent changes", [](const Work& w) { return w.changes / 40; }},
    {"consistent gets", consistent},
    {"consistent gets - examination", [](const Work& w) { return consistent(w) * 34 / 100; }},
    {"consistent gets direct", [](const Work& w) { return w.directReads; }, 10},
    {"consistent gets from cache", [](const Work& w) { return consistent(w) - w.directReads; }, 10},
    {"cursor authentications", [](const Work& w) { return w.hardParses / 3; }},
    {"data blocks consistent reads - undo records applied", [](const Work& w) { return w.changes / 60; }},
    {"db block changes", [](const Work& w) { return w.changes; }},
    {"db block gets", [](const Work& w) { return w.currentGets; }},
    {"db block gets direct", [](const Work& w) { return w.directWrites; }, 10},
    {"db block gets from cache", [](const Work& w) { return w.currentGets - w.directWrites; }, 10},
    {"deferred (CURRENT) block cleanout applications", [](const Work& w) { return w.commits * 2; }},
    {"dirty buffers inspected", [](const Work& w) { return w.bad ? w.writes / 40 : w.writes / 900; }},
    {"enqueue conversions", [](const Work& w) { return w.seconds * 2; }},
    {"enqueue releases", [](const Work& w) { return w.commits * 5 + w.seconds * 20; }},
    {"enqueue requests", [](const Work& w) { return w.commits * 5 + w.seconds * 20; }},
    {"enqueue timeouts", [](const Work& w) { return w.seconds / 60; }},
    {"enqueue waits", [](const Work& w) { return w.rowLock.waits + w.itl.waits + w.seconds / 300; }},
    {"exchange deadlocks", [](const Work& w) { return w.bad ? w.seconds / 1200 : w.seconds / 90000; }},
    {"execute count", [](const Work& w) { return w.executions; }},
    {"free buffer inspected", [](const Work& w) { return (w.singleReads + w.multiReads) * 11 / 10; }},
    {"free buffer requested", [](const Work& w) { return w.singleReads + w.multiReads + w.changes / 40; }},
    {"gc blocks corrupt", [](const Work&) { return std::int64_t{0}; }, 10},
    {"gc blocks lost", [](const Work& w) { return (w.crReceived + w.currentReceived) / 900000; }, 10},
    {"gc cr block build time", [](const Work& w) { return w.crServed / 90; }, 10},
    {"gc cr block flush time", [](const Work& w) { return w.crServed / 40; }, 10},
    {"gc cr block receive time", [](const Work& w) { return w.crBlock.micros * 9 / 80000; }, 10},
    {"gc cr block send time", [](const Work& w) { return w.crServed / 120; }, 10},
    {"gc cr blocks received", [](const Work& w) { return w.crReceived; }, 10},
    {"gc cr blocks served", [](const Work& w) { return w.crServed; }, 10},
    {"gc current block flush time", [](const Work& w) { return w.currentServed / 60; }, 10},
    {"gc current block pin time", [](const Work& w) { return w.currentServed / 95; }, 10},
    {"gc current block receive time", [](const Work& w) { return w.currentBlock.micros * 9 / 80000; }, 10},
    {"gc current block send time", [](const Work& w) { return w.currentServed / 130; }, 10},
    {"gc current blocks received", [](const Work& w) { return w.currentReceived; }, 10},
    {"gc current blocks served", [](const Work& w) { return w.currentServed; }, 10},
    {"gcs messages sent", [](const Work& w) { return (w.crReceived + w.currentReceived) * 21 / 10; }, 10},
    {"ges messages sent",
     [](const Work& w) { return w.crReceived == 0 ? 0 : w.commits / 2 + w.hardParses * 3; }, 10},
    {"global enqueue get time",
     [](const Work& w) { return w.crReceived == 0 ? 0 : w.commits / 14 + w.hardParses / 3; }, 10},
    {"global enqueue gets async", [](const Work& w) { return w.crReceived == 0 ? 0 : w.commits / 9; }, 10},
    {"global enqueue gets sync",
     [](const Work& w) { return w.crReceived == 0 ? 0 : w.commits * 2 + w.hardParses * 14; }, 10},
    {"global enqueue releases",
     [](const Work& w) { return w.crReceived == 0 ? 0 : w.commits * 2 + w.hardParses * 14; }, 10},
    {"heap block compress", [](const Work& w) { return w.changes / 700; }, 10},
    {"hot buffers moved to head of LRU", [](const Work& w) { return w.singleReads / 4; }},
    {"immediate (CR) block cleanout applications", [](const Work& w) { return w.changes / 400; }},
    {"immediate (CURRENT) block cleanout applications", [](const Work& w) { return w.changes / 260; }},
    {"index fast full scans (full)", [](const Work& w) { return w.executions / 9000; }},
    {"index fetch by key", [](const Work& w) { return w.gets / 7; }},
    {"index scans kdiixs1", [](const Work& w) { return w.gets / 11; }},
    {"leaf node 90-10 splits", [](const Work& w) { return w.changes / 30000; }},
    {"leaf node splits", [](const Work& w) { return w.changes / 21000; }},
    {"logons cumulative", [](const Work& w) { return w.logons; }},
    {"messages received", [](const Work& w) { return w.redoWrites + w.seconds / 2; }},
    {"messages sent", [](const Work& w) { return w.redoWrites + w.seconds / 2; }},
    {"no work - consistent read gets", [](const Work& w) { return consistent(w) * 55 / 100; }},
    {"opened cursors cumulative", [](const Work& w) { return w.parses * 9 / 10; }},
    {"parse count (describe)", [](const Work& w) { return w.parses / 5000; }, 10},
    {"parse count (failures)", [](const Work& w) { return w.hardParses / 60; }},
    {"parse count (hard)", [](const Work& w) { return w.hardParses; }},
    {"parse count (total)", [](const Work& w) { return w.parses; }},
    {"parse time cpu", [](const Work& w) { return w.parseCpu / 10000; }},
    {"parse time elapsed", [](const Work& w) { return w.parseElapsed / 10000; }},
    {"physical read IO requests", [](const Work& w) { return w.readRequests(); }, 10},
    {"physical read bytes", [](const Work& w) { return w.readBlocks() * w.blockSize; }, 10},
    {"physical read total IO requests", [](const Work& w) { return w.readRequests() + w.seconds * 4; }, 10},
    {"physical read total bytes",
     [](const Work& w) { return w.readBlocks() * w.blockSize + w.seconds * 65536; }, 10},
    {"physical read total multi block requests",
     [](const Work& w) { return w.multiRequests + w.directRequests; }, 10},
    {"physical reads", [](const Work& w) { return w.readBlocks(); }},
    {"physical reads cache", [](const Work& w) { return w.singleReads + w.multiReads; }, 10},
    {"physical reads cache prefetch", [](const Work& w) { return w.multiReads - w.multiRequests; }, 10},
    {"physical reads direct", [](const Work& w) { return w.directReads + w.tempReads; }},
    {"physical reads direct (lob)", [](const Work& w) { return w.directReads / 300; }},
    {"physical reads direct temporary tablespace", [](const Work& w) { return w.tempReads; }, 10},
    {"physical write IO requests", [](const Work& w) { return w.allWriteRequests(); }, 10},
    {"physical write bytes", [](const Work& w) { return w.writeBlocks() * w.blockSize; }, 10},
    {"physical write total IO requests",
     [](const Work& w) { return w.allWriteRequests() + w.redoWrites * 2 + w.seconds * 2; }, 10},
    {"physical write total bytes",
     [](const Work& w) { return w.writeBlocks() * w.blockSize + w.redoBytes * 2; }, 10},
    {"physical writes", [](const Work& w) { return w.writeBlocks(); }},
    {"physical writes direct", [](const Work& w) { return w.directWrites + w.tempWrites; }},
    {"physical writes direct (lob)", [](const Work& w) { return w.directWrites / 200; }},
    {"physical writes direct temporary tablespace", [](const Work& w) { return w.tempWrites; }, 10},
    {"physical writes from cache", [](const Work& w) { return w.writes; }, 10},
    {"physical writes non checkpoint", [](const Work& w) { return w.writes * 8 / 10; }},
    {"pinned buffers inspected", [](const Work& w) { return w.gets / 900000; }},
    {"prefetched blocks", [](const Work& w) { return w.multiReads - w.multiRequests; }, 9, 9},
    {"process last non-idle time", [](const Work& w) { return w.seconds; }},
    {"recovery blocks read", [](const Work&) { return std::int64_t{0}; }},
    {"recursive calls", [](const Work& w) { return w.recursiveCalls; }},
    {"recursive cpu usage", [](const Work& w) { return w.cpu / 10000 * 28 / 100; }},
    {"redo blocks written", [](const Work& w) { return w.redoBytes / 490 + w.redoWrites; }},
    {"redo buffer allocation retries", [](const Work& w) { return w.redoSpaceRequests; }},
    {"redo entries", [](const Work& w) { return w.redoEntries; }},
    {"redo log space requests", [](const Work& w) { return w.redoSpaceRequests; }},
    {"redo log space wait time", [](const Work& w) { return w.redoSpace.micros / 10000; }},
    {"redo ordering marks", [](const Work& w) { return w.redoEntries / 500; }},
    {"redo size", [](const Work& w) { return w.redoBytes; }},
    {"redo synch time", [](const Work& w) { return w.commit.micros / 10000; }},
    {"redo synch writes", [](const Work& w) { return w.commit.waits; }},
    {"redo wastage", [](const Work& w) { return w.redoWrites * 248; }},
    {"redo write time", [](const Work& w) { return w.logWrite.micros / 10000; }},
    {"redo writes", [](const Work& w) { return w.redoWrites; }},
    {"rollback changes - undo records applied", [](const Work& w) { return w.rollbacks * 5; }},
    {"rollbacks only - consistent read gets", [](const Work& w) { return w.changes / 800; }},
    {"rows fetched via callback", [](const Work& w) { return w.gets / 14; }},
    {"session connect time", [](const Work&) { return std::int64_t{0}; }},
    {"session cursor cache hits", [](const Work& w) { return w.parses * 6 / 10; }},
    {"session logical reads", [](const Work& w) { return w.gets; }},
    {"session pga memory", [](const Work& w) { return w.logons * 1450000; }},
    {"session uga memory", [](const Work& w) { return w.logons * 620000; }},
    {"shared hash latch upgrades - no wait", [](const Work& w) { return w.gets / 30; }},
    {"sorts (disk)", [](const Work& w) { return w.diskSorts; }},
    {"sorts (memory)", [](const Work& w) { return w.memorySorts; }},
    {"sorts (rows)", [](const Work& w) { return w.sortRows; }},
    {"summed dirty queue length", [](const Work& w) { return w.bad ? w.writes / 8 : w.writes / 300; }},
    {"switch current to new buffer", [](const Work& w) { return w.commits / 12; }},
    {"table fetch by rowid", [](const Work& w) { return w.gets / 4; }},
    {"table fetch continued row", [](const Work& w) { return w.gets / 2600; }},
    {"table scan blocks gotten", [](const Work& w) { return w.multiReads * 3 + w.gets / 6; }},
    {"table scan rows gotten", [](const Work& w) { return (w.multiReads * 3 + w.gets / 6) * 62; }},
    {"table scans (direct read)", [](const Work& w) { return w.directRequests / 200; }},
    {"table scans (long tables)", [](const Work& w) { return w.multiRequests / 1900; }},
    {"table scans (rowid ranges)", [](const Work& w) { return w.directRequests / 220; }},
    {"table scans (short tables)", [](const Work& w) { return w.executions / 120; }},
    {"transaction rollbacks", [](const Work& w) { return w.rollbacks / 3; }},
    {"transaction tables consistent reads - undo records applied",
     [](const Work& w) { return w.bad ? w.seconds : 0; }},
    {"undo change vector size", [](const Work& w) { return w.redoBytes * 3 / 10; }, 10},
    {"user I/O wait time",
     [](const Work& w) { return (w.singleRead.micros + w.multiRead.micros + w.directRead.micros) / 10000; },
     10},
    {"user calls", [](const Work& w) { return w.userCalls; }},
    {"user commits", [](const Work& w) { return w.commits; }},
    {"user rollbacks", [](const Work& w) { return w.rollbacks; }},
    {"workarea executions - multipass", [](const Work& w) { return w.extraBytes / 40000000000; }},
    {"workarea executions - onepass", [](const Work& w) { return w.diskSorts; }},
    {"workarea executions - optimal", [](const Work& w) { return w.memorySorts * 13 / 10; }},
    {"write clones created in foreground", [](const Work& w) { return w.changes / 90000; }},
});

class SystemStatistics : public Topic {
 public:
  explicit SystemStatistics(const Setting& setting)
      : database_(setting.database()),
        random_(setting.random),
        rows_(setting.tables.perSnapshot(setting.database(), "stats$sysstat", "statistic# name value")) {
    const int release = std::stoi(database_.major);
    for (const Statistic& statistic : kStatistics)
      if (statistic.first <= release && release <= statistic.last) statistics_.push_back(&statistic);
    values_.assign(statistics_.size(), 0);
  }

  void restart() override { std::fill(values_.begin(), values_.end(), 0); }

  void advance(const Work& work) override {
    for (std::size_t i = 0; i < values_.size(); ++i) values_[i] += statistics_[i]->of(work);
    sessions_ = work.sessions;
  }

  void write(const Snapshot& snapshot) override {
    int number = 0;
    // The four that are levels and no counts.
    rows_.at(snapshot, number++, "logons current", sessions_);
    rows_.at(snapshot, number++, "opened cursors current", sessions_ * random_.between(9, 16) + 20);
    rows_.at(snapshot, number++, "session cursor cache count", sessions_ * random_.between(22, 28));
    rows_.at(snapshot, number++, "workarea memory allocated", sessions_ * random_.between(40, 190));
    for (std::size_t i = 0; i < values_.size(); ++i)
      rows_.at(snapshot, number++, statistics_[i]->name, values_[i]);
  }

 private:
  const Database& database_;
  Random random_;
  Rows rows_;
  std::vector<const Statistic*> statistics_;
  std::vector<std::int64_t> values_;
  int sessions_ = 40;
};

}  // namespace

TopicPtr makeSystemStatistics(const Setting& setting) { return std::make_unique<SystemStatistics>(setting); }

}  // namespace kestrelix::demo

#include "demo/workload.h"

#include <algorithm>
#include <array>

namespace kestrelix::demo {

namespace {

constexpr std::int64_t kHour = 3600;

int hourOf(std::int64_t time) { return static_cast<int>(time / kHour % 24); }

// 0 is Monday; 1970-01-01 was a Thursday.
int weekdayOf(std::int64_t time) { return static_cast<int>((time / 86400 + 3) % 7); }

int pacedAt(Pace pace, std::int64_t time, bool bad) {
  const int hour = hourOf(time);
  switch (pace) {
    case Pace::Users:
      return bad ? usersAt(time) * 6 / 10 : usersAt(time);
    case Pace::Night:
      return hour >= 1 && hour < 4 ? 900 : hour == 4 ? 300 : 0;
    case Pace::Reports:
      return hour == 9 || hour == 14 || hour == 17 ? 900 : usersAt(time) / 12;
    case Pace::Steady:
      return 1000;
    case Pace::Bad:
      return bad ? 1000 : 0;
    case Pace::Mornings:
      return hour < 12 ? usersAt(time) : 0;
  }
  return 0;
}

Waited waited(std::int64_t waits, std::int64_t microsEach) { return {waits, waits * microsEach}; }

}  // namespace

int usersAt(std::int64_t time) {
  static constexpr std::array<int, 24> kDay = {210, 170, 150, 140, 130, 150, 210, 380, 640, 880, 1000, 960,
                                               650, 850, 940, 910, 830, 660, 470, 380, 340, 320, 290,  250};
  const int at = kDay[static_cast<std::size_t>(hourOf(time))];
  return weekdayOf(time) < 5 ? at : at * 35 / 100;
}

bool isCached(Pace pace, std::int64_t time, bool sinceBadHour) {
  switch (pace) {
    case Pace::Mornings:
      return hourOf(time - 1) < 14;
    case Pace::Bad:
      return sinceBadHour;
    case Pace::Night:
      return hourOf(time - 1) >= 1 && hourOf(time - 1) < 20;
    default:
      return true;
  }
}

Workload::Workload(const Instance& instance, Random random)
    : database_(*instance.database), random_(random), statements_(statementsOf(database_.business)) {}

StatementWork Workload::run(const Statement& statement, std::int64_t thousandthsOfHours) {
  StatementWork work;
  // Half of the processors at full pace, so that the peak leaves air and a bad hour does not.
  const std::int64_t budget = scaled(database_.cpus * kHour * 500000, statement.share, 1000);
  const std::int64_t cpuEach = 560 + statement.gets * 7LL + statement.rows * 2LL + statement.changes * 9LL;
  const bool scheduled = statement.perHour > 0;
  const std::int64_t wanted = scheduled ? statement.perHour * thousandthsOfHours
                                        : scaled(budget, random_.around(thousandthsOfHours, 60), 1000);
  const std::int64_t each = scheduled ? 1000 : cpuEach;
  work.executions = wanted / each;
  // A statement that takes longer than its share runs in some hours and not in others.
  if (random_.between(1, each) <= wanted % each) ++work.executions;
  if (work.executions == 0) return work;

  work.parses = std::max<std::int64_t>(1, scaled(work.executions, statement.parses, 100));
  work.gets = random_.around(work.executions * statement.gets, 30);
  work.reads = scaled(work.gets, random_.around(statement.misses, 150), 10000);
  work.rows = random_.around(work.executions * statement.rows, 20);
  work.changes = work.executions * statement.changes;
  work.cpu = random_.around(work.executions * cpuEach, 25);

  switch (statement.plan) {
    case PlanShape::Partitions:
      work.directReads = work.reads * 8 / 10;
      break;
    case PlanShape::FullScan:
    case PlanShape::HashJoin:
      work.multiReads = work.reads * 9 / 10;
      break;
    case PlanShape::None:
      work.multiReads = work.reads / 2;
      break;
    default:
      break;
  }
  // Reads past the cache by partition scans came with release 11.
  if (!database_.has(11)) {
    work.multiReads += work.directReads;
    work.directReads = 0;
  }
  work.singleReads = work.reads - work.multiReads - work.directReads;
  return work;
}

Work Workload::between(std::int64_t from, std::int64_t to, bool badHour) {
  Work work;
  work.seconds = to - from;
  work.bad = badHour;
  work.blockSize = database_.blockSize;
  std::int64_t load = 0;
  work.statements.resize(statements_.size());
  std::vector<std::int64_t> paces(statements_.size(), 0);
  for (std::int64_t at = from; at < to;) {
    const std::int64_t end = std::min(to, (at / kHour + 1) * kHour);
    load += pacedAt(Pace::Users, at, badHour) * (end - at);
    for (std::size_t i = 0; i < statements_.size(); ++i)
      paces[i] += pacedAt(statements_[i].pace, at, badHour) * (end - at) / kHour;
    at = end;
  }
  work.load = static_cast<int>(load / std::max<std::int64_t>(1, work.seconds));
  for (std::size_t i = 0; i < statements_.size(); ++i) work.statements[i] = run(statements_[i], paces[i]);
  addUp(work);
  addIo(work);
  addWaits(work);
  addHost(work);
  shareTimes(work);
  return work;
}

void Workload::addUp(Work& work) {
  for (std::size_t i = 0; i < statements_.size(); ++i) {
    const StatementWork& one = work.statements[i];
    work.executions += one.executions;
    work.parses += one.parses;
    work.gets += one.gets;
    work.changes += one.changes;
    work.cpu += one.cpu;
    work.singleReads += one.singleReads;
    work.multiReads += one.multiReads;
    work.directReads += one.directReads;
    work.sortRows += statements_[i].plan == PlanShape::HashJoin ? one.rows : one.rows / 3;
    if (statements_[i].commits) work.commits += one.executions;
    if (statements_[i].client) work.userCalls += one.executions + one.rows / 15;
  }
  // What statements too small to be captured add.
  const std::int64_t sessionSeconds = work.seconds * database_.cpus;
  work.executions = scaled(work.executions, 116, 100) + 40 * work.seconds / 60;
  work.parses = scaled(work.parses, 122, 100) + 25 * work.seconds / 60;
  work.gets = scaled(work.gets, 106, 100) + 2000 * work.seconds / 60;
  work.changes = scaled(work.changes, 109, 100) + 150 * work.seconds / 60;
  work.cpu = scaled(work.cpu, 107, 100);
  work.singleReads = scaled(work.singleReads, 105, 100) + work.seconds;
  work.multiReads = scaled(work.multiReads, 104, 100) + work.seconds;
  work.directReads = scaled(work.directReads, 103, 100);
  work.commits += random_.around(work.seconds / 4, 100) + 1;
  work.rollbacks = scaled(work.commits, random_.between(6, 14), 1000) + 1;
  work.userCalls = scaled(work.userCalls, 112, 100) + work.commits;
  work.recursiveCalls = scaled(work.executions, 38, 100) + 90 * work.seconds / 60;
  work.hardParses = scaled(work.parses, random_.between(5, 12), 1000) + sessionSeconds / 600;
  work.logons = work.seconds * work.load * database_.cpus / 300000 + work.seconds / 60 + 1;
  work.sessions = static_cast<int>(38 + database_.cpus * 2 + work.load * database_.cpus / 55 +
                                   random_.between(0, 4) + (work.bad ? database_.cpus * 4 : 0));
  work.currentGets = scaled(work.changes, 92, 100) + work.executions / 30;
  work.memorySorts = scaled(work.executions, 9, 100) + work.seconds / 10;
  work.diskSorts =
      database_.business == Business::Warehouse ? work.memorySorts / 800 : work.memorySorts / 90000;
  work.sortRows = scaled(work.sortRows, 108, 100) + work.memorySorts * 4;
}

void Workload::addIo(Work& work) {
  const std::int64_t block = database_.blockSize;
  work.multiRequests = (work.multiReads + 12) / 13;
  work.multiReads = std::max(work.multiReads, work.multiRequests);
  work.directRequests = (work.directReads + 59) / 60;
  work.workareaBytes = work.sortRows * 90 + work.memorySorts * 3000;
  const bool warehouse = database_.business == Business::Warehouse;
  work.extraBytes =
      scaled(work.workareaBytes, warehouse ? random_.between(60, 140) : random_.between(0, 4), 1000);
  work.tempWrites = work.extraBytes / 2 / block;
  work.tempReads = work.extraBytes / 2 / block;
  work.tempWriteRequests = (work.tempWrites + 6) / 7;
  work.tempReadRequests = (work.tempReads + 6) / 7;

  work.redoEntries = scaled(work.changes, 54, 100) + work.commits;
  work.redoBytes = work.redoEntries * random_.between(268, 282) + work.commits * 180;
  work.undoBlocks = work.redoBytes / 100 * 28 / block + work.seconds / 60;
  // One writer serves many commits at once, the more the busier it is.
  const std::int64_t commitsPerSecond = work.commits / std::max<std::int64_t>(1, work.seconds);
  work.redoWrites =
      work.commits * 400 / (400 + commitsPerSecond) + work.redoBytes / 4000000 + work.seconds / 3;
  work.redoSpaceRequests = work.redoBytes / 900000000;

  work.writes = work.changes / 11 + work.seconds / 2;
  work.writeRequests = work.writes * 10 / 16;
  work.directWrites = work.changes / 400;
  work.directWriteRequests = (work.directWrites + 14) / 15;
}

void Workload::addWaits(Work& work) {
  // Disks slow down with the square of the load.
  const std::int64_t slow = 1000 + std::int64_t{work.load} * work.load / 1700 + (work.bad ? 1100 : 0);
  const auto disk = [&](int percent) {
    return random_.around(database_.readMicros * percent / 100 * slow / 1000, 40);
  };
  work.singleRead = waited(work.singleReads, disk(100));
  work.multiRead = waited(work.multiRequests, disk(170));
  work.directRead = waited(work.directRequests * 3 / 4, disk(240));
  work.tempRead = waited(work.tempReadRequests, disk(90));
  work.tempWrite = waited(work.tempWriteRequests, disk(60));
  work.directWrite = waited(work.directWriteRequests / 2, disk(70));
  work.otherRead = waited(work.bad ? work.multiRequests / 6 : work.multiRequests / 260, disk(110));

  work.commit = waited(work.commits * 97 / 100, random_.around(700 + slow * 6 / 10, 60));
  work.logWrite = waited(work.redoWrites, random_.around(380 + slow * 3 / 10, 60));
  const std::int64_t pressure = work.load + (work.bad ? 900 : 0);
  work.rowLock = waited(work.commits * pressure / 14000000 + random_.between(0, 2),
                        random_.between(160000, 420000) + (work.bad ? 900000 : 0));
  // Transaction slots run out where many sessions change the same blocks; a parallel load does that by
  // itself.
  work.itl = waited(work.rowLock.waits / 8 + work.changes / 5000000 + random_.between(0, 2),
                    random_.between(8000, 60000));
  work.bufferBusy = waited(work.gets / 1000 * pressure / 60000, random_.between(500, 1900));
  work.latch = waited(work.gets / 1000 * pressure * pressure / 900000000, random_.between(700, 2600));
  work.library = waited(work.hardParses * pressure / 9000 + work.seconds / 400, random_.between(1500, 7000));
  work.network = waited(work.userCalls / 220, random_.between(60, 220));
  work.redoSpace = waited(work.redoSpaceRequests, random_.between(60000, 140000));

  if (database_.cluster()) {
    work.crReceived = scaled(work.gets, random_.between(210, 260), 100000);
    work.currentReceived = scaled(work.gets, random_.between(150, 190), 100000);
    work.crServed = random_.around(work.crReceived, 70);
    work.currentServed = random_.around(work.currentReceived, 70);
    work.crBlock = waited(work.crReceived * 88 / 100, random_.around(620 + slow / 4, 50));
    work.currentBlock = waited(work.currentReceived * 84 / 100, random_.around(540 + slow / 4, 50));
    work.globalBusy = waited(work.currentReceived * pressure / 90000, random_.between(1400, 3800));
  }
  work.parseCpu = work.hardParses * 1400 + work.parses * 9;
  work.parseElapsed = work.parseCpu * random_.between(112, 128) / 100 + work.library.micros * 8 / 10;
  work.cpu += work.parseCpu;
}

void Workload::addHost(Work& work) {
  const std::int64_t all = work.seconds * 100 * database_.cpus;
  work.backgroundCpu = work.writes * 22 + work.redoWrites * 70 + work.seconds * 9000 +
                       (work.crServed + work.currentServed) * 35;
  // Nobody uses more than the machine has: what is above 96 in 100 stands in the run queue.
  const std::int64_t limit = all * 10000 / 100 * 96;
  const std::int64_t others = all * 10000 / 1000 * random_.between(18, 34);
  if (work.cpu + work.backgroundCpu + others > limit) {
    const std::int64_t fits = limit - work.backgroundCpu - others;
    for (StatementWork& one : work.statements)
      one.cpu = scaled(one.cpu / 100, fits / 10000, work.cpu / 1000000);
    work.parseCpu = scaled(work.parseCpu / 100, fits / 10000, work.cpu / 1000000);
    work.cpu = fits;
  }
  work.hostBusy = (work.cpu + work.backgroundCpu + others) / 10000;
  const std::int64_t busyShare = work.hostBusy * 1000 / std::max<std::int64_t>(1, all);
  work.queue = busyShare > 700 ? scaled(work.cpu, (busyShare - 700) * (work.bad ? 4 : 1), 1000) : 0;
  work.hostSystem = scaled(work.hostBusy, random_.between(150, 210), 1000);
  work.hostUser = work.hostBusy - work.hostSystem;
  work.hostIdle = all - work.hostBusy;
  const std::int64_t ioMicros = work.singleRead.micros + work.multiRead.micros + work.directRead.micros;
  work.hostIoWait = std::min(work.hostIdle * 6 / 10, ioMicros / 10000 / 5);
  work.hostRunQueue = work.queue / 10000;
}

// Each statement gets its part of the waits by what it did, less what the rest of the instance takes.
void Workload::shareTimes(Work& work) {
  work.dbTime = work.cpu + work.queue + work.singleRead.micros + work.multiRead.micros +
                work.directRead.micros + work.tempRead.micros + work.tempWrite.micros +
                work.directWrite.micros + work.otherRead.micros + work.commit.micros + work.rowLock.micros +
                work.itl.micros + work.bufferBusy.micros + work.latch.micros + work.library.micros +
                work.network.micros + work.redoSpace.micros + work.clusterMicros();
  std::int64_t locking = 0;
  for (const StatementWork& one : work.statements) locking += one.changes > 0 ? one.executions : 0;
  const auto part = [](std::int64_t micros, std::int64_t mine, std::int64_t all) {
    return all == 0 ? 0 : scaled(micros / 1000, mine * 1000 / std::max<std::int64_t>(1, all), 1);
  };
  for (StatementWork& one : work.statements) {
    if (one.executions == 0) continue;
    const std::int64_t multi = (one.multiReads + 12) / 13;
    const std::int64_t direct = (one.directReads + 59) / 60 * 3 / 4;
    const auto each = [](const Waited& all) { return all.waits == 0 ? 0 : all.micros / all.waits; };
    one.ioWait = one.singleReads * each(work.singleRead) + multi * each(work.multiRead) * 95 / 100 +
                 direct * each(work.directRead) * 95 / 100;
    one.clusterWait = part(work.clusterMicros(), one.gets, work.gets);
    one.concurrencyWait = part(work.bufferBusy.micros + work.latch.micros, one.gets, work.gets);
    one.applicationWait = one.changes > 0 ? part(work.rowLock.micros, one.executions, locking) * 9 / 10 : 0;
    one.elapsed = one.cpu + one.ioWait + one.clusterWait + one.concurrencyWait + one.applicationWait +
                  part(work.queue, one.cpu / 1000, work.cpu / 1000);
  }
}

}  // namespace kestrelix::demo

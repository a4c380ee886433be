// What an instance does in the time between two snapshots. Everything else in the repository follows from it.
#pragma once

#include <cstdint>
#include <vector>

#include "demo/random.h"
#include "demo/scene.h"
#include "demo/statements.h"

namespace kestrelix::demo {

/// Of one statement. Times are microseconds.
struct StatementWork {
  std::int64_t executions = 0;
  std::int64_t parses = 0;
  std::int64_t gets = 0;
  std::int64_t reads = 0;  // blocks: single + multi + direct
  std::int64_t singleReads = 0;
  std::int64_t multiReads = 0;
  std::int64_t directReads = 0;
  std::int64_t rows = 0;
  std::int64_t changes = 0;
  std::int64_t cpu = 0;
  std::int64_t ioWait = 0;
  std::int64_t clusterWait = 0;
  std::int64_t concurrencyWait = 0;
  std::int64_t applicationWait = 0;
  std::int64_t elapsed = 0;
};

/// A number of waits and the microseconds that they took.
struct Waited {
  std::int64_t waits = 0;
  std::int64_t micros = 0;
};

/// Of the whole instance: the statements' work and what others add to it. Counts unless told otherwise.
struct Work {
  std::int64_t seconds = 0;
  std::int64_t blockSize = 8192;
  int load = 0;  // of the users, 1000 at the peak
  bool bad = false;
  std::vector<StatementWork> statements;

  std::int64_t executions = 0, parses = 0, hardParses = 0, userCalls = 0, recursiveCalls = 0;
  std::int64_t commits = 0, rollbacks = 0, logons = 0;
  std::int64_t gets = 0, currentGets = 0, changes = 0;  // blocks; gets are consistent and current together
  std::int64_t singleReads = 0, multiRequests = 0, multiReads = 0;  // requests and blocks into the cache
  std::int64_t directRequests = 0, directReads = 0;                 // past the cache
  std::int64_t tempReadRequests = 0, tempReads = 0, tempWriteRequests = 0, tempWrites = 0;
  std::int64_t writeRequests = 0, writes = 0, directWriteRequests = 0, directWrites = 0;
  std::int64_t undoBlocks = 0, redoBytes = 0, redoEntries = 0, redoWrites = 0, redoSpaceRequests = 0;
  std::int64_t memorySorts = 0, diskSorts = 0, sortRows = 0;
  std::int64_t workareaBytes = 0, extraBytes = 0;

  // Microseconds.
  std::int64_t cpu = 0, backgroundCpu = 0, parseCpu = 0, parseElapsed = 0, queue = 0, dbTime = 0;

  // Waits of the foreground.
  Waited singleRead, multiRead, directRead, tempRead, tempWrite, directWrite, otherRead;
  Waited logWrite;  // of the log writer
  Waited commit, rowLock, itl, bufferBusy, latch, library, network, redoSpace;
  Waited crBlock, currentBlock, globalBusy;  // of the cluster
  std::int64_t crReceived = 0, currentReceived = 0, crServed = 0, currentServed = 0;

  // The host: hundredths of a second over all processors.
  std::int64_t hostBusy = 0, hostUser = 0, hostSystem = 0, hostIdle = 0, hostIoWait = 0, hostRunQueue = 0;
  int sessions = 0;  // at the end

  std::int64_t readBlocks() const { return singleReads + multiReads + directReads + tempReads; }
  std::int64_t readRequests() const {
    return singleReads + multiRequests + directRequests + tempReadRequests;
  }
  std::int64_t writeBlocks() const { return writes + directWrites + tempWrites; }
  std::int64_t allWriteRequests() const { return writeRequests + directWriteRequests + tempWriteRequests; }
  std::int64_t clusterMicros() const { return crBlock.micros + currentBlock.micros + globalBusy.micros; }
};

/// Runs an instance's statements through the hours.
class Workload {
 public:
  Workload(const Instance& instance, Random random);

  const std::vector<Statement>& statements() const { return statements_; }
  /// The work from `from` to `to`, seconds since 1970.
  Work between(std::int64_t from, std::int64_t to, bool badHour);

 private:
  StatementWork run(const Statement& statement, std::int64_t thousandthsOfHours);
  void addUp(Work& work);
  void addIo(Work& work);
  void addWaits(Work& work);
  void addHost(Work& work);
  void shareTimes(Work& work);

  const Database& database_;
  Random random_;
  std::vector<Statement> statements_;
};

/// How busy the users are at that hour of the week, 1000 at the peak of a working day.
int usersAt(std::int64_t time);
/// True while statements of this pace are in the shared pool.
bool isCached(Pace pace, std::int64_t time, bool sinceBadHour);

}  // namespace kestrelix::demo

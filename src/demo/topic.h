// One subject of the repository: the counters of an instance that belong together and the tables that show
// them.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "demo/random.h"
#include "demo/scene.h"
#include "demo/tables.h"
#include "demo/timeline.h"
#include "demo/workload.h"

namespace kestrelix::demo {

class Topic {
 public:
  virtual ~Topic() = default;

  /// The instance starts: counters begin at zero.
  virtual void restart() {}
  virtual void advance(const Work& work) = 0;
  virtual void write(const Snapshot& snapshot) = 0;
};

/// What a topic is made from.
struct Setting {
  const Instance& instance;
  const Workload& workload;
  Tables& tables;
  Random random;

  const Database& database() const { return *instance.database; }
};

using TopicPtr = std::unique_ptr<Topic>;

TopicPtr makeSnapshots(const Setting& setting);
TopicPtr makeParameters(const Setting& setting);
TopicPtr makeSystemStatistics(const Setting& setting);
TopicPtr makeHostAndTime(const Setting& setting);
TopicPtr makeWaits(const Setting& setting);
TopicPtr makeSql(const Setting& setting);
TopicPtr makeFiles(const Setting& setting);
TopicPtr makeSegments(const Setting& setting);
TopicPtr makeBufferCache(const Setting& setting);
TopicPtr makeAdvisories(const Setting& setting);
TopicPtr makeProcessMemory(const Setting& setting);
TopicPtr makeSharedMemory(const Setting& setting);
TopicPtr makeLatches(const Setting& setting);
TopicPtr makeEnqueues(const Setting& setting);
TopicPtr makeUndo(const Setting& setting);
TopicPtr makeLibrary(const Setting& setting);
TopicPtr makeCluster(const Setting& setting);

}  // namespace kestrelix::demo

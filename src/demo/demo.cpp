#include "demo/demo.h"

#include <functional>
#include <stdexcept>

#include "demo/topic.h"

namespace kestrelix::demo {

namespace {

constexpr int kLargest = 100000;

std::vector<TopicPtr> topicsOf(const Instance& instance, const Workload& workload, Tables& tables,
                               Random& random) {
  using Maker = TopicPtr (*)(const Setting&);
  static constexpr Maker kMakers[] = {
      makeSnapshots,     makeParameters,   makeSystemStatistics, makeHostAndTime, makeWaits,
      makeSql,           makeFiles,        makeSegments,         makeBufferCache, makeAdvisories,
      makeProcessMemory, makeSharedMemory, makeLatches,          makeEnqueues,    makeUndo,
      makeLibrary,       makeCluster};
  std::vector<TopicPtr> topics;
  for (const Maker make : kMakers) topics.push_back(make({instance, workload, tables, random.fork()}));
  return topics;
}

// The instance runs through its snapshots: what it did before the first one, then hour by hour.
void runInstance(const Instance& instance, const std::vector<Snapshot>& snapshots, Tables& tables,
                 Random random, const std::function<void()>& written) {
  Workload workload(instance, random.fork());
  const std::vector<TopicPtr> topics = topicsOf(instance, workload, tables, random);
  const auto advance = [&](std::int64_t from, std::int64_t to, bool bad) {
    const Work work = workload.between(from, to, bad);
    for (const TopicPtr& topic : topics) topic->advance(work);
  };
  constexpr std::int64_t kDay = 86400;
  std::int64_t startup = 0;
  std::int64_t before = 0;
  for (const Snapshot& snapshot : snapshots) {
    if (snapshot.startup != startup) {
      startup = snapshot.startup;
      for (const TopicPtr& topic : topics) topic->restart();
      before = startup;
      // The days before the first snapshot count as well, one at a time.
      for (; before + kDay < snapshot.time; before += kDay) advance(before, before + kDay, false);
    }
    advance(before, snapshot.time, snapshot.badHour);
    for (const TopicPtr& topic : topics) topic->write(snapshot);
    before = snapshot.time;
    written();
  }
}

repository_file::NewAccount accountOf(std::uint64_t seed) {
  repository_file::NewAccount account;
  account.salt.emplace();
  Random random(seed);
  for (unsigned char& byte : *account.salt) byte = static_cast<unsigned char>(random.between(0, 255));
  return account;
}

}  // namespace

void makeDemo(const std::filesystem::path& path, const DemoOptions& options, Progress& progress) {
  if (options.snapshots < 2 || options.snapshots > kLargest)
    throw std::invalid_argument("a demo has from 2 to " + std::to_string(kLargest) +
                                " snapshots an instance");
  Random random(options.seed);
  RepositoryWriter writer(path, accountOf(random.next()), "kestrelix-repository demo", options.existing);
  Tables tables(writer);

  std::int64_t all = 0;
  for (const Database& database : databases()) all += std::int64_t{database.instances} * options.snapshots;
  std::int64_t done = 0;
  const auto written = [&] { advance(progress, ++done, all); };
  // Room between the databases' ids, so that none is met twice.
  const std::int64_t room = ((std::int64_t{options.snapshots} * 2 + 20) / 1000 + 1) * 1000;
  std::int64_t firstId = 1;
  for (const Database& database : databases()) {
    const std::vector<Instance> instances = instancesOf(database);
    for (const Instance& instance : instances) {
      Random own = random.fork();
      const auto snapshots = timelineOf(instance, options.snapshots, firstId, own.fork());
      runInstance(instance, snapshots, tables, own, written);
    }
    firstId += room;
  }
  writer.finish(progress);
}

}  // namespace kestrelix::demo

// Dictionary and library cache.
#include <array>

#include "demo/topic.h"

namespace kestrelix::demo {

namespace {

struct DictionaryCache {
  const char* name;
  std::int64_t (*gets)(const Work& work);
  int misses;  // of 10000 gets
  int entries;
  bool scans = false;
  int changes = 0;  // of 10000 gets
};

constexpr auto kDictionary = std::to_array<DictionaryCache>({
    {"dc_awr_control", [](const Work& w) { return w.seconds / 60; }, 2, 1},
    {"dc_constraints", [](const Work& w) { return w.hardParses / 200; }, 3300, 12, false, 3000},
    {"dc_database_links", [](const Work& w) { return w.logons * 2; }, 1, 1},
    {"dc_files", [](const Work& w) { return w.seconds / 100; }, 60, 18},
    {"dc_global_oids", [](const Work& w) { return w.hardParses / 4; }, 6, 42},
    {"dc_histogram_data", [](const Work& w) { return w.hardParses * 6; }, 110, 1900},
    {"dc_histogram_defs", [](const Work& w) { return w.hardParses * 9; }, 140, 3100},
    {"dc_object_ids", [](const Work& w) { return w.hardParses * 14 + w.parses / 20; }, 9, 1500},
    {"dc_objects", [](const Work& w) { return w.hardParses * 5; }, 44, 1720, false, 2},
    {"dc_profiles", [](const Work& w) { return w.logons; }, 0, 2},
    {"dc_rollback_segments", [](const Work& w) { return w.commits / 60 + w.seconds; }, 0, 34, false, 1},
    {"dc_segments", [](const Work& w) { return w.hardParses * 4 + w.changes / 9000; }, 80, 1240, false, 130},
    {"dc_sequences", [](const Work& w) { return w.commits / 40; }, 3, 26, false, 9700},
    {"dc_table_scns", [](const Work& w) { return w.hardParses / 90; }, 9000, 0},
    {"dc_tablespace_quotas", [](const Work& w) { return w.changes / 60000; }, 12, 5, false, 9000},
    {"dc_tablespaces", [](const Work& w) { return w.parses / 3; }, 0, 10},
    {"dc_usernames", [](const Work& w) { return w.hardParses / 3; }, 2, 22},
    {"dc_users", [](const Work& w) { return w.parses * 2; }, 0, 61},
    {"global database name", [](const Work& w) { return w.logons * 3; }, 0, 1},
    {"outstanding_alerts", [](const Work& w) { return w.seconds / 120; }, 8600, 4, false, 1500},
});

struct Namespace {
  const char* name;
  std::int64_t (*gets)(const Work& work);
  std::int64_t (*pins)(const Work& work);
  int getMisses;  // of 10000
  int pinMisses;
  int first = 9;
};

constexpr auto kNamespaces = std::to_array<Namespace>({
    {"BODY", [](const Work& w) { return w.parses / 40; }, [](const Work& w) { return w.executions / 300; }, 4,
     6},
    {"CLUSTER", [](const Work& w) { return w.hardParses / 30; },
     [](const Work& w) { return w.hardParses / 16; }, 60, 90},
    {"EDITION", [](const Work& w) { return w.logons; }, [](const Work& w) { return w.logons * 2; }, 1, 1, 11},
    {"INDEX", [](const Work& w) { return w.hardParses / 25; },
     [](const Work& w) { return w.hardParses / 12; }, 900, 700},
    {"JAVA DATA", [](const Work& w) { return w.seconds / 900; }, [](const Work&) { return std::int64_t{0}; },
     0, 0},
    {"PIPE", [](const Work& w) { return w.seconds / 700; }, [](const Work& w) { return w.seconds / 700; }, 0,
     0},
    {"SQL AREA", [](const Work& w) { return w.parses; },
     [](const Work& w) { return w.executions + w.parses * 2; }, 190, 14},
    {"TABLE/PROCEDURE", [](const Work& w) { return w.parses / 6 + w.hardParses * 3; },
     [](const Work& w) { return w.executions / 12 + w.hardParses * 6; }, 30, 26},
    {"TRIGGER", [](const Work& w) { return w.changes / 900; }, [](const Work& w) { return w.changes / 700; },
     1, 2},
});

struct Counter {
  std::int64_t gets = 0, misses = 0, scans = 0, scanMisses = 0, changes = 0;
  std::int64_t pins = 0, pinMisses = 0, reloads = 0, invalidations = 0, requests = 0, conflicts = 0;
};

class Library : public Topic {
 public:
  explicit Library(const Setting& setting)
      : database_(setting.database()),
        random_(setting.random),
        dictionary_(setting.tables.perSnapshot(
            database_, "stats$rowcache_summary",
            "parameter total_usage usage gets getmisses scans scanmisses scancompletes modifications flushes "
            "dlm_requests dlm_conflicts dlm_releases")),
        library_(setting.tables.perSnapshot(
            database_, "stats$librarycache",
            "namespace gets gethits pins pinhits reloads invalidations dlm_lock_requests dlm_pin_requests "
            "dlm_pin_releases dlm_invalidation_requests dlm_invalidations")) {}

  void restart() override {
    caches_.fill({});
    namespaces_.fill({});
  }

  void advance(const Work& w) override {
    for (std::size_t i = 0; i < caches_.size(); ++i) {
      Counter& c = caches_[i];
      const std::int64_t gets = random_.around(kDictionary[i].gets(w), 40);
      c.gets += gets;
      c.misses += scaled(gets, kDictionary[i].misses, 10000);
      c.changes += scaled(gets, kDictionary[i].changes, 10000);
      const std::int64_t scans = i == 1 || i == 2 ? gets / 9 : 0;
      c.scans += scans;
      c.scanMisses += scans / 12;
      if (!database_.cluster()) continue;
      const std::int64_t requests =
          scaled(gets, kDictionary[i].misses * 2 + kDictionary[i].changes + 3, 10000);
      c.requests += requests;
      c.conflicts += requests / 31;
    }
    for (std::size_t i = 0; i < namespaces_.size(); ++i) {
      Counter& c = namespaces_[i];
      const std::int64_t gets = random_.around(kNamespaces[i].gets(w), 30);
      const std::int64_t pins = random_.around(kNamespaces[i].pins(w), 30);
      c.gets += gets;
      c.misses += scaled(gets, kNamespaces[i].getMisses, 10000);
      c.pins += pins;
      c.pinMisses += scaled(pins, kNamespaces[i].pinMisses, 10000);
      c.reloads += scaled(pins, kNamespaces[i].pinMisses, 90000);
      c.invalidations += scaled(gets, kNamespaces[i].getMisses, 600000);
      // The cluster keeps definitions in step, not statements.
      const bool shared = std::string_view(kNamespaces[i].name) != "SQL AREA";
      if (database_.cluster() && shared) c.requests += gets * 8 / 10;
    }
  }

  void write(const Snapshot& snapshot) override {
    for (std::size_t i = 0; i < caches_.size(); ++i) {
      const Counter& c = caches_[i];
      const std::int64_t usage = kDictionary[i].entries;
      dictionary_.at(snapshot, kDictionary[i].name, usage + usage / 8, usage, c.gets, c.misses, c.scans,
                     c.scanMisses, c.scans - c.scanMisses, c.changes, c.changes * 9 / 10, c.requests,
                     c.conflicts, c.conflicts / 2);
    }
    for (std::size_t i = 0; i < namespaces_.size(); ++i) {
      if (!database_.has(kNamespaces[i].first)) continue;
      const Counter& c = namespaces_[i];
      library_.at(snapshot, kNamespaces[i].name, c.gets, c.gets - c.misses, c.pins, c.pins - c.pinMisses,
                  c.reloads, c.invalidations, c.requests, c.requests * 3 / 10, c.requests * 3 / 10,
                  c.requests / 50, c.requests / 900);
    }
  }

 private:
  const Database& database_;
  Random random_;
  Rows dictionary_, library_;
  std::array<Counter, kDictionary.size()> caches_{};
  std::array<Counter, kNamespaces.size()> namespaces_{};
};

}  // namespace

TopicPtr makeLibrary(const Setting& setting) { return std::make_unique<Library>(setting); }

}  // namespace kestrelix::demo

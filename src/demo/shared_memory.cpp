// The shared memory: regions, pools, components and their moves, and the limits of resources.
#include <array>
#include <string>

#include "demo/memory_layout.h"
#include "demo/topic.h"

namespace kestrelix::demo {

namespace {

struct PoolPart {
  const char* name;
  int share;  // of the shared pool, in thousandths
  int first = 9;
  int sway = 0;  // how far it moves between two snapshots, in thousandths of it; 0 for what a start settles
};

constexpr auto kSharedParts = std::to_array<PoolPart>({{"sql area", 300, 9, 14},
                                                       {"library cache", 190, 9, 11},
                                                       {"dictionary cache", 14, 9, 9},
                                                       {"KGLH0", 61, 11, 12},
                                                       {"KGLHD", 28, 11, 8},
                                                       {"CCursor", 46, 10, 13},
                                                       {"PCursor", 24, 10, 12},
                                                       {"ASH buffers", 9, 10},
                                                       {"Checkpoint queue", 8},
                                                       {"FileOpenBlock", 4},
                                                       {"KQR L PO", 9, 9, 10},
                                                       {"KQR M PO", 6, 9, 14},
                                                       {"PL/SQL DIANA", 11, 9, 22},
                                                       {"PL/SQL MPCODE", 17, 9, 18},
                                                       {"XDB Schema Cac", 3, 10, 6},
                                                       {"db_block_hash_buckets", 28},
                                                       {"dbwriter coalesce buffer", 4},
                                                       {"enqueue", 3},
                                                       {"event statistics per sess", 5},
                                                       {"fixed allocation callback", 1},
                                                       {"kglsim object batch", 7, 10, 7},
                                                       {"ksunfy : SSO free list", 2, 10},
                                                       {"message pool freequeue", 1},
                                                       {"miscellaneous", 36, 9, 5},
                                                       {"parameters", 2},
                                                       {"partitioning d", 1, 9, 25},
                                                       {"row cache", 21, 10},
                                                       {"sessions", 3},
                                                       {"sim memory hea", 4, 9, 4},
                                                       {"table definiti", 2, 9, 20},
                                                       {"transaction", 2},
                                                       {"trigger inform", 1, 9, 30}});

struct Limit {
  const char* name;
  int perSession;  // in hundredths
  int fixed;
  std::int64_t initial;
  std::int64_t limit;  // -1 for UNLIMITED
};

constexpr auto kLimits = std::to_array<Limit>({{"processes", 100, 22, 600, 600},
                                               {"sessions", 108, 25, 665, 665},
                                               {"enqueue_locks", 60, 20, 8020, 8020},
                                               {"enqueue_resources", 40, 30, 3200, -1},
                                               {"ges_procs", 100, 22, 600, 601},
                                               {"ges_ress", 0, 0, 0, -1},
                                               {"ges_locks", 0, 0, 0, -1},
                                               {"dml_locks", 15, 2, 2440, -1},
                                               {"temporary_table_locks", 0, 0, -1, -1},
                                               {"transactions", 9, 1, 731, -1},
                                               {"branches", 0, 0, 731, -1},
                                               {"cmtcallbk", 0, 1, 731, -1},
                                               {"sort_segment_locks", 3, 1, -1, -1},
                                               {"max_rollback_segments", 4, 11, 731, 65535},
                                               {"parallel_max_servers", 2, 0, 80, 3600}});

struct Component {
  const char* name;
  std::int64_t (*size)(const MemoryLayout& layout);
};

constexpr auto kComponents = std::to_array<Component>({
    {"shared pool", [](const MemoryLayout& l) { return l.sharedPool; }},
    {"large pool", [](const MemoryLayout& l) { return l.largePool; }},
    {"java pool", [](const MemoryLayout& l) { return l.javaPool; }},
    {"streams pool", [](const MemoryLayout& l) { return l.streamsPool; }},
    {"SGA Target", [](const MemoryLayout& l) { return l.all() / l.granule * l.granule; }},
    {"DEFAULT buffer cache", [](const MemoryLayout& l) { return l.cache; }},
    {"KEEP buffer cache", [](const MemoryLayout&) { return std::int64_t{0}; }},
    {"RECYCLE buffer cache", [](const MemoryLayout&) { return std::int64_t{0}; }},
    {"DEFAULT 2K buffer cache", [](const MemoryLayout&) { return std::int64_t{0}; }},
    {"DEFAULT 8K buffer cache", [](const MemoryLayout&) { return std::int64_t{0}; }},
    {"DEFAULT 32K buffer cache", [](const MemoryLayout&) { return std::int64_t{0}; }},
    {"Shared IO Pool", [](const MemoryLayout& l) { return 8 * l.granule; }},
    {"PGA Target", [](const MemoryLayout& l) { return l.pgaTarget; }},
    {"ASM Buffer Cache", [](const MemoryLayout&) { return std::int64_t{0}; }},
});

class SharedMemory : public Topic {
 public:
  explicit SharedMemory(const Setting& setting)
      : database_(setting.database()),
        random_(setting.random),
        regions_(table(setting, "stats$sga", "name value startup_time parallel version")),
        parts_(table(setting, "stats$sgastat", "name pool bytes")),
        limits_(table(setting, "stats$resource_limit",
                      "resource_name current_utilization max_utilization initial_allocation limit_value")),
        components_(table(setting, "stats$memory_dynamic_comps",
                          "component current_size min_size max_size user_specified_size oper_count "
                          "last_oper_type last_oper_mode last_oper_time granule_size")),
        moves_(table(setting, "stats$memory_resize_ops",
                     "component oper_type oper_mode start_time initial_size target_size final_size status "
                     "end_time parameter num_ops")) {}

  void restart() override {
    most_ = 0;
    parses_ = 0;
    levels_.fill(0);
  }

  void advance(const Work& w) override {
    sessions_ = w.sessions;
    most_ = std::max(most_, sessions_ + static_cast<int>(random_.between(0, 9)));
    parses_ += w.hardParses;
  }

  void write(const Snapshot& snapshot) override {
    const MemoryLayout layout = memoryAt(database_, snapshot.time);
    writeRegions(snapshot, layout);
    writeParts(snapshot, layout);
    writeLimits(snapshot);
    writeComponents(snapshot, layout);
    last_ = snapshot.time;
  }

 private:
  static Rows table(const Setting& setting, const char* name, const char* columns) {
    return setting.tables.perSnapshot(setting.database(), name, columns);
  }

  void writeRegions(const Snapshot& snapshot, const MemoryLayout& layout) {
    const auto put = [&](const char* name, std::int64_t bytes) {
      regions_.at(snapshot, name, bytes, snapshot.startup, database_.cluster() ? "YES" : "NO",
                  database_.version);
    };
    put("Database Buffers", layout.cache);
    put("Fixed Size", layout.fixed);
    put("Redo Buffers", layout.logBuffer);
    put("Variable Size", layout.pools());
  }

  void writeParts(const Snapshot& snapshot, const MemoryLayout& layout) {
    const int release = std::stoi(database_.major);
    std::int64_t used = 0;
    const std::int64_t atStart = database_.sharedPoolMb * 1048576;
    // The statements fill the pool through the day until it is full.
    const std::int64_t filled = std::min<std::int64_t>(random_.between(955, 1000), 620 + parses_ / 400);
    for (std::size_t i = 0; i < kSharedParts.size(); ++i) {
      const PoolPart& part = kSharedParts[i];
      if (part.first > release) continue;
      // It wanders, and the further it is off its usual size the more it is drawn back.
      levels_[i] += random_.between(-part.sway, part.sway) - levels_[i] / 6;
      const std::int64_t pool = part.sway == 0 ? atStart : layout.sharedPool;
      const bool grows = part.share > 40;
      const std::int64_t bytes = scaled(pool, part.share, 1000) * (grows ? filled : 1000) / 1000 *
                                 (1000 + levels_[i]) / 1000 / 8 * 8;
      parts_.at(snapshot, part.name, "shared pool", bytes);
      used += bytes;
    }
    parts_.at(snapshot, "free memory", "shared pool", layout.sharedPool - used);
    parts_.at(snapshot, "free memory", "large pool", layout.largePool * 9 / 10);
    parts_.at(snapshot, "PX msg pool", "large pool", layout.largePool - layout.largePool * 9 / 10);
    parts_.at(snapshot, "free memory", "java pool", layout.javaPool * 8 / 10);
    parts_.at(snapshot, "joxlod exec hp", "java pool", layout.javaPool - layout.javaPool * 8 / 10);
    if (database_.has(10)) parts_.at(snapshot, "free memory", "streams pool", layout.streamsPool);
    parts_.at(snapshot, "buffer_cache", "", layout.cache);
    parts_.at(snapshot, "fixed_sga", "", layout.fixed);
    parts_.at(snapshot, "log_buffer", "", layout.logBuffer);
    // Some part comes and goes from one snapshot to the next.
    if (snapshot.place % 5 == 3)
      parts_.at(snapshot, "obj stat memo", "shared pool", 524288 + snapshot.place * 64);
  }

  void writeLimits(const Snapshot& snapshot) {
    for (const Limit& limit : kLimits) {
      const bool cluster = std::string_view(limit.name).starts_with("ges_") && limit.perSession == 0;
      const std::int64_t now = cluster ? (database_.cluster() ? 400 + sessions_ * 30 : 0)
                                       : limit.fixed + sessions_ * limit.perSession / 100;
      const std::int64_t most = cluster ? now * 11 / 10 : limit.fixed + most_ * limit.perSession / 100;
      const auto text = [](std::int64_t value) {
        std::string digits = value < 0 ? "UNLIMITED" : std::to_string(value);
        return std::string(10 - std::min<std::size_t>(digits.size(), 10), ' ') + digits;
      };
      limits_.at(snapshot, limit.name, now, std::max(now, most), text(limit.initial), text(limit.limit));
    }
  }

  void writeComponents(const Snapshot& snapshot, const MemoryLayout& layout) {
    const auto moves = movesBetween(database_, snapshot.startup, snapshot.time);
    for (const Component& component : kComponents) {
      const std::int64_t size = component.size(layout);
      const std::string_view name = component.name;
      const bool isCache = name == "DEFAULT buffer cache";
      const bool moved = !moves.empty() && (isCache || name == "shared pool");
      const bool grew = moved && isCache == moves.back().cacheGrows;
      components_.at(snapshot, component.name, size, size == 0 ? 0 : size - (moved ? layout.granule : 0),
                     size + (moved ? layout.granule : 0), 0, moved ? moves.size() : 0,
                     !moved ? "STATIC"
                     : grew ? "GROW"
                            : "SHRINK",
                     moved ? "DEFERRED" : "", moved ? Cell(moves.back().time + 2) : Cell(), layout.granule);
    }
    // Each move is told once, by the first snapshot behind it.
    for (const MemoryMove& move : movesBetween(database_, std::max(last_, snapshot.startup), snapshot.time)) {
      if (last_ == 0) break;
      writeMove(snapshot, move, true);
      writeMove(snapshot, move, false);
    }
  }

  void writeMove(const Snapshot& snapshot, const MemoryMove& move, bool ofCache) {
    const MemoryLayout before = memoryAt(database_, move.time - 1);
    const MemoryLayout after = memoryAt(database_, move.time + 1);
    const std::int64_t from = ofCache ? before.cache : before.sharedPool;
    const std::int64_t to = ofCache ? after.cache : after.sharedPool;
    moves_.at(snapshot, ofCache ? "DEFAULT buffer cache" : "shared pool", to > from ? "GROW" : "SHRINK",
              "DEFERRED", move.time, from, to, to, "COMPLETE", move.time + 2,
              ofCache ? "db_cache_size" : "shared_pool_size", 1);
  }

  const Database& database_;
  Random random_;
  Rows regions_, parts_, limits_, components_, moves_;
  int sessions_ = 40;
  int most_ = 0;
  std::int64_t parses_ = 0;
  std::int64_t last_ = 0;
  std::array<std::int64_t, kSharedParts.size()> levels_{};  // off the usual size, in thousandths
};

}  // namespace

TopicPtr makeSharedMemory(const Setting& setting) { return std::make_unique<SharedMemory>(setting); }

}  // namespace kestrelix::demo

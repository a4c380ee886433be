// What other sizes of the memory areas would have brought.
#include <array>

#include "demo/memory_layout.h"
#include "demo/topic.h"

namespace kestrelix::demo {

namespace {

constexpr std::int64_t kMb = 1048576;

/// An estimate at a size: the size and what it is worth, both in thousandths of what is.
struct Step {
  int size;
  int worth;
};

// Twenty sizes of the cache; reads fall steeply at first.
constexpr auto kCache = std::to_array<Step>(
    {{100, 4120}, {200, 2710}, {300, 2080},  {400, 1690}, {500, 1440}, {600, 1270}, {700, 1160},
     {800, 1080}, {900, 1030}, {1000, 1000}, {1100, 978}, {1200, 961}, {1300, 948}, {1400, 937},
     {1500, 929}, {1600, 922}, {1700, 916},  {1800, 911}, {1900, 907}, {2000, 903}});
constexpr auto kPga = std::to_array<Step>({{125, 610},
                                           {250, 720},
                                           {500, 880},
                                           {750, 950},
                                           {1000, 978},
                                           {1200, 984},
                                           {1400, 987},
                                           {1600, 990},
                                           {1800, 992},
                                           {2000, 994},
                                           {3000, 996},
                                           {4000, 997},
                                           {6000, 998},
                                           {8000, 998}});
constexpr auto kPool = std::to_array<Step>({{500, 921},
                                            {625, 957},
                                            {750, 983},
                                            {875, 995},
                                            {1000, 1000},
                                            {1125, 1002},
                                            {1250, 1003},
                                            {1500, 1004},
                                            {1750, 1005},
                                            {2000, 1005}});
constexpr auto kTotal = std::to_array<Step>({{250, 1870},
                                             {500, 1240},
                                             {750, 1080},
                                             {1000, 1000},
                                             {1250, 972},
                                             {1500, 957},
                                             {1750, 949},
                                             {2000, 944}});

Cell thousandths(std::int64_t value) { return Cell::decimal(value, 3); }

class Advisories : public Topic {
 public:
  explicit Advisories(const Setting& setting)
      : database_(setting.database()),
        cache_(table(setting, "stats$db_cache_advice",
                     "id name block_size buffers_for_estimate advice_status size_for_estimate size_factor "
                     "estd_physical_read_factor estd_physical_reads estd_physical_read_time "
                     "estd_pct_of_db_time_for_reads estd_cluster_reads estd_cluster_read_time")),
        pga_(table(setting, "stats$pga_target_advice",
                   "pga_target_for_estimate pga_target_factor advice_status bytes_processed estd_time "
                   "estd_extra_bytes_rw estd_pga_cache_hit_percentage estd_overalloc_count")),
        pool_(table(setting, "stats$shared_pool_advice",
                    "shared_pool_size_for_estimate shared_pool_size_factor estd_lc_size "
                    "estd_lc_memory_objects estd_lc_time_saved estd_lc_time_saved_factor estd_lc_load_time "
                    "estd_lc_load_time_factor estd_lc_memory_object_hits")),
        java_(table(setting, "stats$java_pool_advice",
                    "java_pool_size_for_estimate java_pool_size_factor estd_lc_size estd_lc_memory_objects "
                    "estd_lc_time_saved estd_lc_time_saved_factor estd_lc_load_time estd_lc_load_time_factor "
                    "estd_lc_memory_object_hits")),
        streams_(table(setting, "stats$streams_pool_advice",
                       "streams_pool_size_for_estimate streams_pool_size_factor estd_spill_count "
                       "estd_spill_time estd_unspill_count estd_unspill_time")),
        sga_(table(setting, "stats$sga_target_advice",
                   "sga_size sga_size_factor estd_db_time estd_db_time_factor estd_physical_reads")),
        memory_(table(setting, "stats$memory_target_advice",
                      "memory_size memory_size_factor estd_db_time estd_db_time_factor version")) {}

  void restart() override {
    reads_ = readMicros_ = workarea_ = extra_ = dbTime_ = hits_ = cluster_ = 0;
    version_ = 0;
  }

  void advance(const Work& w) override {
    reads_ += w.singleReads + w.multiReads;
    readMicros_ += w.singleRead.micros + w.multiRead.micros;
    workarea_ += w.workareaBytes;
    extra_ += w.extraBytes;
    dbTime_ += w.dbTime;
    hits_ += w.parses * 3 + w.executions / 4;
    cluster_ += w.crReceived + w.currentReceived;
    // The server starts its estimates anew when the work has changed much.
    if (w.bad) ++version_;
  }

  void write(const Snapshot& snapshot) override {
    const MemoryLayout layout = memoryAt(database_, snapshot.time);
    for (const Step& step : kCache) writeCache(snapshot, layout, step);
    for (const Step& step : kPga) {
      const std::int64_t extra = scaled(extra_, 1000 - step.worth + 20, 42);
      const std::int64_t hit = 1000 * workarea_ / std::max<std::int64_t>(1, workarea_ + extra);
      pga_.at(snapshot, scaled(layout.pgaTarget, step.size, 1000), thousandths(step.size), "ON", workarea_,
              (workarea_ + extra) / 90000000, extra, hit / 10, step.size < 400 ? 1200 / step.size : 0);
    }
    for (const Step& step : kPool) writePool(pool_, snapshot, layout.sharedPool, step, 1);
    for (const Step& step : kPool) writePool(java_, snapshot, layout.javaPool, step, 40);
    for (const Step& step : kTotal) {
      const std::int64_t megabytes = layout.streamsPool / kMb;
      streams_.at(snapshot, megabytes * step.size / 1000, thousandths(step.size), 0, 0, 0, 0);
      sga_.at(snapshot, scaled(layout.all() / kMb, step.size, 1000), thousandths(step.size),
              scaled(dbTime_ / 1000000, step.worth, 1000), thousandths(step.worth),
              scaled(reads_, 2 * step.worth - 1000, 1000));
      memory_.at(snapshot, scaled((layout.all() + layout.pgaTarget) / kMb, step.size, 1000),
                 thousandths(step.size), scaled(dbTime_ / 1000000, step.worth, 1000), thousandths(step.worth),
                 version_);
    }
  }

 private:
  static Rows table(const Setting& setting, const char* name, const char* columns) {
    return setting.tables.perSnapshot(setting.database(), name, columns);
  }

  void writeCache(const Snapshot& snapshot, const MemoryLayout& layout, const Step& step) {
    const std::int64_t bytes = scaled(layout.cache, step.size, 1000);
    const std::int64_t reads = scaled(reads_, step.worth, 1000);
    const std::int64_t seconds = scaled(readMicros_ / 1000000, step.worth, 1000);
    const std::int64_t percent =
        dbTime_ == 0
            ? 0
            : std::min<std::int64_t>(100, scaled(readMicros_ / 1000, step.worth, 10) / (dbTime_ / 1000 + 1));
    cache_.at(snapshot, 3, "DEFAULT", database_.blockSize, bytes / (database_.blockSize + 320), "ON",
              bytes / kMb, thousandths(step.size), thousandths(step.worth), reads, seconds,
              Cell::decimal(percent, 0), scaled(cluster_, step.worth, 1000),
              scaled(cluster_ / 1600, step.worth, 1000));
  }

  void writePool(Rows& rows, const Snapshot& snapshot, std::int64_t size, const Step& step, int part) {
    const std::int64_t megabytes = scaled(size / kMb, step.size, 1000);
    const std::int64_t saved = scaled(hits_ / 900, step.worth, 1000) / part;
    const std::int64_t loaded = scaled(hits_ / 24000, 1000 + 14 * (1005 - step.worth), 1000) / part;
    rows.at(snapshot, megabytes, thousandths(step.size), megabytes * 6 / 10, megabytes * 62 + 40, saved,
            thousandths(step.worth), loaded, thousandths(1000 + 14 * (1000 - step.worth)),
            scaled(hits_, step.worth, 1000) / part);
  }

  const Database& database_;
  Rows cache_, pga_, pool_, java_, streams_, sga_, memory_;
  std::int64_t reads_ = 0, readMicros_ = 0, workarea_ = 0, extra_ = 0, dbTime_ = 0, hits_ = 0, cluster_ = 0;
  int version_ = 0;
};

}  // namespace

TopicPtr makeAdvisories(const Setting& setting) { return std::make_unique<Advisories>(setting); }

}  // namespace kestrelix::demo

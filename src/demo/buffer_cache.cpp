// The buffer cache: its pools, waits for buffers, and what a recovery would take.
#include <array>

#include "demo/memory_layout.h"
#include "demo/topic.h"

namespace kestrelix::demo {

namespace {

struct BlockClass {
  const char* name;
  int share;     // of the waits for buffers, in thousandths
  int slowness;  // thousandths of the usual time of a wait
};

constexpr auto kClasses = std::to_array<BlockClass>({{"data block", 905, 980},
                                                     {"undo header", 41, 420},
                                                     {"segment header", 24, 2900},
                                                     {"undo block", 14, 650},
                                                     {"1st level bmb", 11, 1900},
                                                     {"2nd level bmb", 3, 2300},
                                                     {"file header block", 2, 7400},
                                                     {"extent map", 0, 1000},
                                                     {"free list", 0, 1000},
                                                     {"sort block", 0, 1000},
                                                     {"save undo block", 0, 1000},
                                                     {"save undo header", 0, 1000},
                                                     {"system undo block", 0, 1000},
                                                     {"system undo header", 0, 1000},
                                                     {"bitmap block", 0, 1000},
                                                     {"bitmap index block", 0, 1000},
                                                     {"unused", 0, 1000},
                                                     {"3rd level bmb", 0, 1000}});

class BufferCache : public Topic {
 public:
  explicit BufferCache(const Setting& setting)
      : database_(setting.database()),
        random_(setting.random),
        pools_(setting.tables.perSnapshot(
            database_, "stats$buffer_pool_statistics",
            "id name block_size set_msize cnum_repl cnum_write cnum_set buf_got sum_write sum_scan "
            "free_buffer_wait write_complete_wait buffer_busy_wait free_buffer_inspected "
            "dirty_buffers_inspected db_block_change db_block_gets consistent_gets physical_reads "
            "physical_writes")),
        waits_(setting.tables.perSnapshot(database_, "stats$waitstat", "class wait_count time")),
        recovery_(setting.tables.perSnapshot(
            database_, "stats$instance_recovery",
            "recovery_estimated_ios actual_redo_blks target_redo_blks log_file_size_redo_blks "
            "log_chkpt_timeout_redo_blks log_chkpt_interval_redo_blks fast_start_io_target_redo_blks "
            "target_mttr estimated_mttr ckpt_block_writes")) {}

  void restart() override {
    got_ = writes_ = reads_ = changes_ = current_ = consistent_ = busy_ = freeWaits_ = writeWaits_ = 0;
    counts_.fill(0);
    micros_.fill(0);
    checkpointWrites_ = 0;
  }

  void advance(const Work& w) override {
    got_ += w.singleReads + w.multiReads + w.changes / 40;
    reads_ += w.singleReads + w.multiReads;
    writes_ += w.writes;
    changes_ += w.changes;
    current_ += w.currentGets - w.directWrites;
    consistent_ += w.gets - w.currentGets - w.directReads;
    freeWaits_ += w.bad ? w.multiReads / 9000 : 0;
    writeWaits_ += w.bad ? w.writes / 4000 : 0;
    const std::int64_t waits = w.bufferBusy.waits + w.otherRead.waits;
    const std::int64_t micros = w.bufferBusy.micros + w.otherRead.micros;
    busy_ += waits;
    for (std::size_t i = 0; i < kClasses.size(); ++i) {
      counts_[i] += scaled(waits, kClasses[i].share, 1000);
      micros_[i] +=
          scaled(scaled(micros, kClasses[i].share, 1000), random_.around(kClasses[i].slowness, 80), 1000);
    }
    redoRate_ = w.redoBytes / 512 * 1000 / std::max<std::int64_t>(1, w.seconds);
    checkpointWrites_ += w.writes / 20;
  }

  void write(const Snapshot& snapshot) override {
    const std::int64_t buffers = memoryAt(database_, snapshot.time).cache / (database_.blockSize + 320);
    pools_.at(snapshot, 3, "DEFAULT", database_.blockSize, buffers, buffers, buffers / 90, buffers, got_,
              writes_, got_ / 2, freeWaits_, writeWaits_, busy_, got_ * 11 / 10, writes_ / 400, changes_,
              current_, consistent_, reads_, writes_);
    // A small cache of another block size stands beside the default one where one was set up.
    if (database_.business == Business::Warehouse)
      pools_.at(snapshot, 7, "DEFAULT", 8192, 15360, 15360, 200, 15360, got_ / 900, writes_ / 900,
                got_ / 1800, 0, 0, 0, got_ / 900, 0, changes_ / 900, current_ / 900, consistent_ / 900,
                reads_ / 1400, writes_ / 900);
    for (std::size_t i = 0; i < kClasses.size(); ++i)
      waits_.at(snapshot, kClasses[i].name, counts_[i], micros_[i] / 10000);

    const std::int64_t redo =
        std::min<std::int64_t>(redoRate_ * 600 / 1000 + 4000, random_.between(880000, 1200000));
    recovery_.at(snapshot, redo / 7, redo, redo + redo / 5, 1474560, redoRate_ * 1800 / 1000,
                 database_.has(11) ? Cell() : Cell(0), Cell(), 300, 14 + redo / 60000 + random_.between(0, 3),
                 checkpointWrites_);
  }

 private:
  const Database& database_;
  Random random_;
  Rows pools_, waits_, recovery_;
  std::int64_t got_ = 0, writes_ = 0, reads_ = 0, changes_ = 0, current_ = 0, consistent_ = 0;
  std::int64_t busy_ = 0, freeWaits_ = 0, writeWaits_ = 0, redoRate_ = 0, checkpointWrites_ = 0;
  std::array<std::int64_t, kClasses.size()> counts_{};
  std::array<std::int64_t, kClasses.size()> micros_{};
};

}  // namespace

TopicPtr makeBufferCache(const Setting& setting) { return std::make_unique<BufferCache>(setting); }

}  // namespace kestrelix::demo

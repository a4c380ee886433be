// Undo: its segments, and its use by ten minutes.
#include <array>

#include "demo/topic.h"

namespace kestrelix::demo {

namespace {

constexpr int kSegments = 11;  // one of the system and ten of the undo tablespace
constexpr std::int64_t kInterval = 600;

struct UndoSegment {
  std::int64_t writes = 0, gets = 0, waits = 0, wraps = 0, extends = 0, shrinks = 0, transactions = 0;
  std::int64_t size = 0, largest = 0;
};

class Undo : public Topic {
 public:
  explicit Undo(const Setting& setting)
      : database_(setting.database()),
        instance_(setting.instance),
        random_(setting.random),
        segments_(
            setting.tables.perSnapshot(database_, "stats$rollstat",
                                       "usn extents rssize writes xacts gets waits optsize hwmsize shrinks "
                                       "wraps extends aveshrink aveactive")),
        intervals_(setting.tables.rows(
            database_, "stats$undostat",
            "begin_time end_time snap_id dbid instance_number undotsn undoblks txncount maxquerylen "
            "maxqueryid "
            "maxconcurrency unxpstealcnt unxpblkrelcnt unxpblkreucnt expstealcnt expblkrelcnt expblkreucnt "
            "ssolderrcnt nospaceerrcnt activeblks unexpiredblks expiredblks tuned_undoretention")) {
    restart();
  }

  void restart() override {
    for (int i = 0; i < kSegments; ++i) {
      UndoSegment& segment = state_[static_cast<std::size_t>(i)];
      segment = {};
      segment.size = i == 0 ? 385024 : 2088960 + (i % 4) * 8388608;
      segment.largest = segment.size;
    }
  }

  void advance(const Work& w) override {
    work_ = {w.seconds, w.undoBlocks, w.commits, w.bad};
    for (int i = 1; i < kSegments; ++i) {
      UndoSegment& segment = state_[static_cast<std::size_t>(i)];
      const std::int64_t bytes = random_.around(w.undoBlocks * database_.blockSize / (kSegments - 1), 90);
      segment.writes += bytes;
      segment.gets += random_.around(w.commits * 4 / (kSegments - 1), 60);
      segment.waits += w.bad ? random_.between(3, 40) : w.commits / 900000;
      segment.wraps += bytes / 1048576;
      segment.transactions += w.commits / (kSegments - 1);
      if (bytes > segment.size * 4) {
        segment.extends += bytes / 8388608;
        segment.size = std::min<std::int64_t>(segment.size + 8388608, 134217728);
      } else if (segment.size > 16777216 && w.load < 250) {
        ++segment.shrinks;
        segment.size -= 8388608;
      }
      segment.largest = std::max(segment.largest, segment.size);
    }
    state_[0].gets += w.seconds / 30;
  }

  void write(const Snapshot& snapshot) override {
    for (int usn = 0; usn < kSegments; ++usn) {
      const UndoSegment& s = state_[static_cast<std::size_t>(usn)];
      // Two segments of release 9 still have an optimal size, one of them the mark for none.
      const Cell optimal = database_.has(10) || usn > 2 ? Cell() : Cell(usn == 1 ? 16777216 : -4096);
      segments_.at(snapshot, usn, s.size / 131072 + 2, s.size, s.writes, s.transactions > 0 ? usn % 3 : 0,
                   s.gets, s.waits, optimal, s.largest, s.shrinks, s.wraps, s.extends,
                   s.shrinks > 0 ? 8388608 : 0, s.size / 60);
    }
    // Only whole intervals since the snapshot before are told.
    for (std::int64_t begin = next_; next_ != 0 && begin + kInterval <= snapshot.time; begin += kInterval)
      writeInterval(snapshot, begin);
    next_ = snapshot.time / kInterval * kInterval;
  }

 private:
  struct Share {
    std::int64_t seconds = 1, undoBlocks = 0, commits = 0;
    bool bad = false;
  };

  void writeInterval(const Snapshot& snapshot, std::int64_t begin) {
    const std::int64_t blocks = random_.around(scaled(work_.undoBlocks, kInterval, work_.seconds), 160);
    const std::int64_t commits = random_.around(scaled(work_.commits, kInterval, work_.seconds), 160);
    const std::int64_t longest = random_.between(40, 900) + (work_.bad ? 2900 : 0);
    intervals_.add(begin, begin + kInterval, snapshot.id, snapshot.dbid, snapshot.instance,
                   instance_.number == 1 ? 1 : 4, blocks, commits, longest, "g4y6nw3tts7cc",
                   commits / 30000 + 2, work_.bad ? 3 : 0, work_.bad ? 24 : 0, 0, random_.between(0, 4),
                   random_.between(0, 9), 0, work_.bad && begin % 3600 == 0 ? 1 : 0, 0, blocks / 3 + 160,
                   blocks * 9 + 4000, 21000, 10800 + longest);
  }

  const Database& database_;
  const Instance& instance_;
  Random random_;
  Rows segments_, intervals_;
  std::array<UndoSegment, kSegments> state_{};
  Share work_;
  std::int64_t next_ = 0;
};

}  // namespace

TopicPtr makeUndo(const Setting& setting) { return std::make_unique<Undo>(setting); }

}  // namespace kestrelix::demo

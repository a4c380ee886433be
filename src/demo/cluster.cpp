// What the instances of a cluster send each other.
#include <array>

#include "demo/topic.h"

namespace kestrelix::demo {

namespace {

struct Message {
  const char* name;
  std::int64_t (*of)(const Work& work);
};

std::int64_t blocks(const Work& w) { return w.crReceived + w.currentReceived; }
std::int64_t served(const Work& w) { return w.crServed + w.currentServed; }
std::int64_t sent(const Work& w) { return blocks(w) * 21 / 10 + w.commits / 2; }

constexpr auto kMessages = std::to_array<Message>({
    {"acks for commit broadcast(actual)", [](const Work& w) { return w.commits / 3; }},
    {"acks for commit broadcast(logical)", [](const Work& w) { return w.commits / 2; }},
    {"broadcast msgs on commit(actual)", [](const Work& w) { return w.commits / 2; }},
    {"broadcast msgs on commit(logical)", [](const Work& w) { return w.commits / 2; }},
    {"broadcast msgs on commit(wasted)", [](const Work& w) { return w.commits / 9; }},
    {"dynamically allocated gcs resources", [](const Work&) { return std::int64_t{0}; }},
    {"dynamically allocated gcs shadows", [](const Work&) { return std::int64_t{0}; }},
    {"flow control messages received", [](const Work& w) { return w.bad ? w.seconds : 0; }},
    {"flow control messages sent", [](const Work& w) { return w.bad ? w.seconds / 2 : 0; }},
    {"gcs assume cvt", [](const Work& w) { return blocks(w) / 900; }},
    {"gcs assume no cvt", [](const Work& w) { return blocks(w) / 12; }},
    {"gcs ast xid", [](const Work& w) { return blocks(w) / 90000; }},
    {"gcs blocked converts", [](const Work& w) { return blocks(w) / 16; }},
    {"gcs blocked cr converts", [](const Work& w) { return w.crReceived / 9; }},
    {"gcs compatible basts", [](const Work& w) { return blocks(w) / 800; }},
    {"gcs compatible cr basts (global)", [](const Work& w) { return w.crReceived / 6; }},
    {"gcs compatible cr basts (local)", [](const Work& w) { return w.crReceived * 4 / 10; }},
    {"gcs dbwr flush pi msgs", [](const Work& w) { return served(w) / 70; }},
    {"gcs immediate (compatible) converts", [](const Work& w) { return blocks(w) / 22; }},
    {"gcs immediate (null) converts", [](const Work& w) { return blocks(w) / 7; }},
    {"gcs indirect ast", [](const Work& w) { return blocks(w) / 5; }},
    {"gcs msgs process time(ms)", [](const Work& w) { return served(w) / 6; }},
    {"gcs msgs received", [](const Work& w) { return served(w) * 2; }},
    {"gcs out-of-order msgs", [](const Work& w) { return blocks(w) / 700000; }},
    {"gcs pings refused", [](const Work& w) { return blocks(w) / 400; }},
    {"gcs queued converts", [](const Work& w) { return blocks(w) / 5000; }},
    {"gcs regular cr", [](const Work& w) { return w.crReceived * 7 / 10; }},
    {"gcs side channel msgs actual", [](const Work& w) { return blocks(w) / 13; }},
    {"gcs side channel msgs logical", [](const Work& w) { return blocks(w) / 6; }},
    {"gcs write request msgs", [](const Work& w) { return served(w) / 120; }},
    {"gcs writes refused", [](const Work& w) { return served(w) / 30000; }},
    {"ges msgs process time(ms)", [](const Work& w) { return w.commits / 18; }},
    {"ges msgs received", [](const Work& w) { return w.commits / 2 + w.hardParses * 3; }},
    {"global posts dropped", [](const Work& w) { return w.seconds / 90000; }},
    {"implicit batch messages received", [](const Work& w) { return sent(w) / 30; }},
    {"implicit batch messages sent", [](const Work& w) { return sent(w) / 33; }},
    {"lmd msg send time(ms)", [](const Work& w) { return w.commits / 900; }},
    {"lms(s) msg send time(ms)", [](const Work& w) { return blocks(w) / 3000; }},
    {"messages flow controlled", [](const Work& w) { return sent(w) / 250 + (w.bad ? sent(w) / 40 : 0); }},
    {"messages queue sent actual", [](const Work& w) { return sent(w) * 6 / 10; }},
    {"messages queue sent logical", [](const Work& w) { return sent(w) * 7 / 10; }},
    {"messages received actual", [](const Work& w) { return served(w) * 18 / 10; }},
    {"messages received logical", [](const Work& w) { return served(w) * 2; }},
    {"messages sent directly", [](const Work& w) { return sent(w) * 58 / 100; }},
    {"messages sent indirectly", [](const Work& w) { return sent(w) * 42 / 100; }},
    {"messages sent not implicit batched", [](const Work& w) { return sent(w) / 50; }},
    {"messages sent pbatched", [](const Work& w) { return sent(w) * 4 / 10; }},
    {"msgs causing lmd to send msgs", [](const Work& w) { return w.commits / 9; }},
    {"msgs causing lms(s) to send msgs", [](const Work& w) { return served(w) / 40; }},
    {"msgs received queue time (ms)", [](const Work& w) { return served(w) / (w.bad ? 2 : 8); }},
    {"msgs received queued", [](const Work& w) { return served(w) * 2; }},
    {"msgs sent queue time (ms)", [](const Work& w) { return sent(w) / (w.bad ? 4 : 30); }},
    {"msgs sent queue time on ksxp (ms)", [](const Work& w) { return sent(w) / (w.bad ? 2 : 5); }},
    {"msgs sent queued", [](const Work& w) { return sent(w) * 4 / 10; }},
    {"msgs sent queued on ksxp", [](const Work& w) { return sent(w) * 6 / 10; }},
    {"process batch messages received", [](const Work& w) { return sent(w) / 5; }},
    {"process batch messages sent", [](const Work& w) { return sent(w) / 5; }},
});

struct BlockClass {
  const char* name;
  int share;  // of the blocks, in thousandths
  // Of 10000 blocks that came: what had to wait for its holder, and for the interconnect.
  int crBusy, crCongested, currentBusy, currentCongested;
};
constexpr auto kClasses = std::to_array<BlockClass>({{"data block", 871, 120, 26, 190, 18},
                                                     {"undo header", 62, 410, 14, 60, 9},
                                                     {"undo block", 21, 270, 35, 20, 12},
                                                     {"segment header", 18, 90, 40, 640, 31},
                                                     {"1st level bmb", 22, 60, 22, 370, 24},
                                                     {"extent map", 1, 30, 10, 120, 10}});

struct Transfer {
  std::int64_t cr = 0, crBusy = 0, crCongested = 0, current = 0, currentBusy = 0, currentCongested = 0;
};

struct Pings {
  std::int64_t count = 0, smallMicros = 0, smallSquares = 0, largeMicros = 0, largeSquares = 0;
};

class Cluster : public Topic {
 public:
  explicit Cluster(const Setting& setting)
      : database_(setting.database()),
        instance_(setting.instance),
        random_(setting.random),
        messages_(table(setting, "stats$dlm_misc", "statistic# name value")),
        crServer_(
            table(setting, "stats$cr_block_server",
                  "cr_requests current_requests data_requests undo_requests tx_requests current_results "
                  "private_results zero_results disk_read_results fail_results fairness_down_converts "
                  "fairness_clears free_gc_elements flushes flushes_queued flush_queue_full "
                  "flush_max_time light_works errors")),
        currentServer_(
            table(setting, "stats$current_block_server",
                  "pin1 pin10 pin100 pin1000 pin10000 flush1 flush10 flush100 flush1000 flush10000 "
                  "write1 write10 write100 write1000 write10000")),
        transfers_(table(setting, "stats$instance_cache_transfer",
                         "instance class cr_block cr_busy cr_congested current_block current_busy "
                         "current_congested")),
        pings_(table(setting, "stats$interconnect_pings",
                     "target_instance iter_500b wait_500b waitsq_500b iter_8k wait_8k waitsq_8k")),
        remaster_(table(setting, "stats$dynamic_remaster_stats",
                        "remaster_ops remaster_time remastered_objects quiesce_time freeze_time cleanup_time "
                        "replay_time fixwrite_time sync_time resources_cleaned replayed_locks_sent "
                        "replayed_locks_received current_objects")) {}

  void restart() override {
    values_.fill(0);
    transfer_.fill({});
    ping_.fill({});
    crServed_ = currentServed_ = flushMaximum_ = remasterings_ = 0;
    affinity_ = 11;
  }

  void advance(const Work& w) override {
    for (std::size_t i = 0; i < values_.size(); ++i) values_[i] += kMessages[i].of(w);
    crServed_ += w.crServed;
    currentServed_ += w.currentServed;
    flushMaximum_ = std::max<std::int64_t>(flushMaximum_, w.bad ? 412000 : 38000 + w.load * 20);
    for (std::size_t i = 0; i < kClasses.size(); ++i) {
      const std::int64_t cr = scaled(w.crReceived, kClasses[i].share, 1000);
      const std::int64_t current = scaled(w.currentReceived, kClasses[i].share, 1000);
      // A bad hour keeps the holders busy.
      const auto late = [&](std::int64_t blocks, int usual, int inBadHour) {
        return blocks * random_.around(std::int64_t{usual} * (w.bad ? inBadHour : 10), 120) / 100000;
      };
      const std::int64_t crBusy = late(cr, kClasses[i].crBusy, 40);
      const std::int64_t crCongested = late(cr, kClasses[i].crCongested, 60);
      const std::int64_t currentBusy = late(current, kClasses[i].currentBusy, 40);
      const std::int64_t currentCongested = late(current, kClasses[i].currentCongested, 60);
      transfer_[i].crBusy += crBusy;
      transfer_[i].crCongested += crCongested;
      transfer_[i].cr += cr - crBusy - crCongested;
      transfer_[i].currentBusy += currentBusy;
      transfer_[i].currentCongested += currentCongested;
      transfer_[i].current += current - currentBusy - currentCongested;
    }
    for (std::size_t i = 0; i < ping_.size(); ++i)
      addPings(ping_[i], w, static_cast<int>(i) + 1 == instance_.number);
    if (w.load > 700 && random_.chance(220)) {
      ++remasterings_;
      affinity_ += random_.between(-2, 4);
    }
  }

  void write(const Snapshot& snapshot) override {
    // A single instance counts none of this, except that the statistics of its lock manager stand at zero.
    if (!database_.cluster()) return;
    for (std::size_t i = 0; i < values_.size(); ++i) messages_.at(snapshot, i, kMessages[i].name, values_[i]);
    const std::int64_t cr = crServed_;
    crServer_.at(snapshot, cr * 97 / 100, cr * 3 / 100, cr * 78 / 100, cr * 9 / 100, cr * 13 / 100,
                 cr * 72 / 100, cr * 21 / 100, cr * 6 / 100, cr / 100, cr / 90000, cr / 19, cr / 400,
                 cr / 900, cr / 14, cr / 20, cr / 900000, flushMaximum_, cr / 25, 0);
    const std::int64_t cu = currentServed_;
    const std::int64_t flushes = cu / 22;
    const std::int64_t writes = cu / 60;
    currentServer_.at(snapshot, cu * 91 / 100, cu * 8 / 100, cu * 9 / 1000, cu / 1000, cu / 900000,
                      flushes * 52 / 100, flushes * 41 / 100, flushes * 6 / 100, flushes / 100,
                      flushes / 90000, writes * 31 / 100, writes * 52 / 100, writes * 14 / 100,
                      writes * 3 / 100, writes / 9000);
    for (int other = 1; other <= database_.instances; ++other) {
      if (other == instance_.number) continue;
      for (std::size_t i = 0; i < kClasses.size(); ++i) {
        const Transfer& t = transfer_[i];
        transfers_.at(snapshot, other, kClasses[i].name, t.cr, t.crBusy, t.crCongested, t.current,
                      t.currentBusy, t.currentCongested);
      }
    }
    for (std::size_t i = 0; i < ping_.size(); ++i)
      pings_.at(snapshot, i + 1, ping_[i].count, ping_[i].smallMicros, ping_[i].smallSquares, ping_[i].count,
                ping_[i].largeMicros, ping_[i].largeSquares);
    const std::int64_t n = remasterings_;
    remaster_.at(snapshot, n, n * 310, n * 2, n * 14, n * 9, n * 72, n * 96, n * 61, n * 58, n * 1900,
                 n * 24000, n * 21000, affinity_);
  }

 private:
  static Rows table(const Setting& setting, const char* name, const char* columns) {
    return setting.tables.perSnapshot(setting.database(), name, columns);
  }

  // A ping of each size every ten seconds. The sum of squares is kept in thousands, as the report divides it.
  void addPings(Pings& pings, const Work& w, bool own) {
    const std::int64_t count = w.seconds / 10;
    const std::int64_t small = (own ? 180 : 420) + w.load / 6 + (w.bad ? 900 : 0);
    const std::int64_t large = small * 17 / 10;
    pings.count += count;
    pings.smallMicros += count * small;
    pings.smallSquares += count * small * small * random_.between(125, 190) / 100 / 1000;
    pings.largeMicros += count * large;
    pings.largeSquares += count * large * large * random_.between(125, 190) / 100 / 1000;
  }

  const Database& database_;
  const Instance& instance_;
  Random random_;
  Rows messages_, crServer_, currentServer_, transfers_, pings_, remaster_;
  std::array<std::int64_t, kMessages.size()> values_{};
  std::array<Transfer, kClasses.size()> transfer_{};
  std::array<Pings, 2> ping_{};
  std::int64_t crServed_ = 0, currentServed_ = 0, flushMaximum_ = 0, remasterings_ = 0, affinity_ = 11;
};

}  // namespace

TopicPtr makeCluster(const Setting& setting) { return std::make_unique<Cluster>(setting); }

}  // namespace kestrelix::demo

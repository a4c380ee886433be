// Segments: what each table, index and partition was read and changed.
#include <algorithm>
#include <array>
#include <map>

#include "demo/storage.h"
#include "demo/topic.h"

namespace kestrelix::demo {

namespace {

constexpr int kPartitions = 12;

/// Parts of a statement's work are told in these, fine enough for the oldest of a table's partitions.
constexpr std::int64_t kWhole = 100000;

/// What is counted of a segment. Row locks and transaction slots are rare and kept in parts of a wait.
enum Count : std::size_t {
  Reads,
  Busy,
  Changes,
  PhysicalReads,
  PhysicalWrites,
  DirectReads,
  DirectWrites,
  CrServed,
  CurrentServed,
  Itl,
  RowLocks,
  CrReceived,
  CurrentReceived,
  GlobalBusy,
  kCounts
};
using Counts = std::array<std::int64_t, kCounts>;

struct Segment {
  std::int64_t object = 0;
  int tablespace = kDataTablespace;
  Counts counts{};
};

/// How much an index is read and changed where its table is 1000, from and to.
struct IndexUse {
  int reads[2];
  int misses[2];
  int changes[2];
  int meetings[2];  // of sessions at the same block
};

// A lookup by key passes two or three blocks of the index and one of the table; a scan leaves the index
// alone. An update touches an index only if it is of the changed columns, while all who insert meet at its
// last leaf.
IndexUse indexUseOf(PlanShape plan) {
  switch (plan) {
    case PlanShape::UniqueLookup:
      return {{2050, 2900}, {90, 340}, {0, 0}, {300, 700}};
    case PlanShape::RangeScan:
      return {{180, 460}, {120, 420}, {0, 0}, {250, 600}};
    case PlanShape::NestedLoops:
      return {{650, 1350}, {200, 520}, {0, 0}, {400, 800}};
    case PlanShape::Insert:
      return {{1250, 2150}, {1300, 2600}, {850, 1400}, {1500, 2400}};
    case PlanShape::Update:
      return {{1350, 2250}, {150, 400}, {60, 240}, {200, 450}};
    case PlanShape::Delete:
      return {{900, 1600}, {400, 900}, {750, 1250}, {800, 1300}};
    default:
      return {{60, 240}, {30, 140}, {280, 640}, {300, 800}};
  }
}

class Segments : public Topic {
 public:
  explicit Segments(const Setting& setting)
      : database_(setting.database()),
        statements_(setting.workload.statements()),
        random_(setting.random),
        rows_(setting.tables.perSnapshot(
            database_, "stats$seg_stat",
            "dataobj# obj# ts# logical_reads buffer_busy_waits db_block_changes physical_reads "
            "physical_writes "
            "direct_physical_reads direct_physical_writes global_cache_cr_blocks_served "
            "global_cache_cu_blocks_served itl_waits row_lock_waits gc_cr_blocks_received "
            "gc_current_blocks_received gc_buffer_busy")) {
    Rows names = setting.tables.rows(database_, "stats$seg_stat_obj",
                                     "dataobj# obj# ts# dbid owner object_name subobject_name object_type "
                                     "tablespace_name");
    for (const Statement& statement : statements_)
      uses_.push_back(segmentsOf(statement, setting.tables, names));
  }

  void restart() override {
    for (auto& [name, segment] : segments_) segment.counts.fill(0);
  }

  void advance(const Work& work) override {
    for (std::size_t i = 0; i < statements_.size(); ++i) {
      const StatementWork& one = work.statements[i];
      const auto& used = uses_[i];
      if (used.empty() || one.executions == 0) continue;
      for (const Use& use : used) addWork(use, one, work);
    }
  }

  void write(const Snapshot& snapshot) override {
    if (snapshot.level < 7) return;
    for (const auto& [name, s] : segments_) {
      const Counts& c = s.counts;
      if (c[Reads] == 0) continue;
      rows_.at(snapshot, s.object, s.object, s.tablespace, c[Reads], c[Busy], c[Changes], c[PhysicalReads],
               c[PhysicalWrites], c[DirectReads], c[DirectWrites], c[CrServed], c[CurrentServed],
               c[Itl] / kWhole, c[RowLocks] / kWhole, c[CrReceived], c[CurrentReceived], c[GlobalBusy]);
    }
  }

 private:
  /// A segment that a statement works on, and its shares of the work.
  struct Use {
    Segment* segment = nullptr;
    Counts shares{};
  };

  static bool isPartitioned(std::string_view table) {
    return table == "SALES_FACT" || table == "CLICK_LOG" || table == "AUDIT_TRAIL_APP" ||
           table == "ORDER_HISTORY";
  }

  std::vector<Use> segmentsOf(const Statement& statement, Tables& tables, Rows& names) {
    std::vector<std::string> objects;
    for (std::string_view rest = statement.objects; !rest.empty();) {
      const std::size_t end = std::min(rest.find(' '), rest.size());
      // The server's memory structures are no segments.
      if (!rest.starts_with("X$")) objects.emplace_back(rest.substr(0, end));
      rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    std::vector<Use> used;
    const std::vector<Counts> shares = sharesOf(statement.plan, objects.size());
    for (std::size_t i = 0; i < objects.size(); ++i) {
      if (!isPartitioned(objects[i])) {
        used.push_back(
            {segment(statement, tables, names, objects[i], "", isIndex(i) ? "INDEX" : "TABLE"), shares[i]});
        continue;
      }
      // The newest partition takes about half of the work, the one before half of the rest, and so on.
      Counts rest = shares[i];
      for (int part = kPartitions; part >= 1; --part) {
        Counts mine{};
        for (std::size_t count = 0; count < kCounts; ++count) {
          mine[count] = std::max<std::int64_t>(rest[count] * random_.between(420, 560) / 1000, 1);
          rest[count] = std::max<std::int64_t>(rest[count] - mine[count], 0);
        }
        const std::string month = (part < 10 ? "0" : "") + std::to_string(part);
        const std::string name = "P" + database_.start.substr(0, 4) + month;
        used.push_back({segment(statement, tables, names, objects[i], name, "TABLE PARTITION"), mine});
      }
    }
    return used;
  }

  // Each table of a statement has its index behind it.
  static bool isIndex(std::size_t place) { return place % 2 == 1; }

  // What each of `objects` takes of a statement's work: nine tenths together, the rest is not told.
  std::vector<Counts> sharesOf(PlanShape plan, std::size_t objects) {
    std::vector<Counts> all(objects);
    const IndexUse index = indexUseOf(plan);
    for (std::size_t i = 0; i < objects; ++i) {
      const auto weight = [&](const int(&ofIndex)[2]) {
        return isIndex(i) ? random_.between(ofIndex[0], ofIndex[1]) : random_.between(800, 1200);
      };
      Counts& w = all[i];
      w[Reads] = weight(index.reads);
      w[PhysicalReads] = weight(index.misses);
      w[Changes] = weight(index.changes);
      w[PhysicalWrites] = weight(index.changes);
      w[Busy] = weight(index.meetings);
      w[GlobalBusy] = weight(index.meetings);
      w[Itl] = w[Changes] == 0 ? 0 : weight({1100, 1700});
      w[RowLocks] = w[Changes] == 0 ? 0 : weight({20, 90});
      // Blocks are read past the cache, and written so, in tables alone.
      w[DirectReads] = w[DirectWrites] = weight({0, 0});
      for (const Count count : {CrServed, CrReceived, CurrentServed, CurrentReceived})
        w[count] = random_.around(count == CrServed || count == CrReceived ? w[Reads] : w[Busy], 250);
    }
    for (std::size_t count = 0; count < kCounts; ++count) {
      std::int64_t sum = 0;
      for (const Counts& w : all) sum += w[count];
      for (Counts& w : all) w[count] = w[count] * (kWhole * 9 / 10) / std::max<std::int64_t>(1, sum);
    }
    return all;
  }

  Segment* segment(const Statement& statement, Tables& tables, Rows& names, const std::string& name,
                   const std::string& part, const char* type) {
    const std::string owner = statement.client             ? database_.owner
                              : name.starts_with("STATS$") ? "PERFSTAT"
                                                           : "SYS";
    const std::string key = owner + "." + name + "." + part;
    const auto [found, isNew] = segments_.try_emplace(key);
    Segment& made = found->second;
    if (!isNew) return &made;
    made.object = static_cast<std::int64_t>(textHash(key) % 80000) + (owner == "SYS" ? 10 : 20000);
    made.tablespace = owner == "SYS"        ? 0
                      : owner == "PERFSTAT" ? 9
                      : type[0] == 'I'      ? kIndexTablespace
                                            : kDataTablespace;
    const char* space = made.tablespace == 0 ? "SYSTEM" : made.tablespace == 9 ? "PERFSTAT" : nullptr;
    const std::string own = database_.owner + (type[0] == 'I' ? "_IDX" : "_DATA");
    if (tables.first("segment " + std::to_string(database_.dbid) + key))
      names.add(made.object, made.object, made.tablespace, database_.dbid, owner, name, part, type,
                space == nullptr ? own : std::string(space));
    return &made;
  }

  static void addWork(const Use& use, const StatementWork& one, const Work& all) {
    const auto mine = [&](Count count, std::int64_t whole) {
      return scaled(whole, use.shares[count], kWhole);
    };
    // Its part of what the instance counts, by the statement's gets.
    const auto byGets = [&](Count count, std::int64_t whole) {
      return scaled(whole, mine(count, one.gets) / 1000, std::max<std::int64_t>(1, all.gets / 1000));
    };
    // The same by its changes, in parts of one.
    const auto byChanges = [&](Count count, std::int64_t whole) {
      return whole * use.shares[count] * one.changes / std::max<std::int64_t>(1, all.changes);
    };
    const std::int64_t reads = mine(Reads, one.gets);
    const std::int64_t physical = std::min(reads, mine(PhysicalReads, one.reads));
    Counts& c = use.segment->counts;
    c[Reads] += reads;
    c[PhysicalReads] += physical;
    c[DirectReads] += std::min(physical, mine(DirectReads, one.directReads));
    c[Changes] += mine(Changes, one.changes);
    c[PhysicalWrites] += mine(PhysicalWrites, one.changes / 12);
    c[DirectWrites] += mine(DirectWrites, one.changes / 400);
    c[Busy] += byGets(Busy, all.bufferBusy.waits + all.otherRead.waits);
    c[RowLocks] += byChanges(RowLocks, all.rowLock.waits);
    c[Itl] += byChanges(Itl, all.itl.waits);
    c[CrReceived] += byGets(CrReceived, all.crReceived);
    c[CurrentReceived] += byGets(CurrentReceived, all.currentReceived);
    c[GlobalBusy] += byGets(GlobalBusy, all.globalBusy.waits);
    c[CrServed] += byGets(CrServed, all.crServed);
    c[CurrentServed] += byGets(CurrentServed, all.currentServed);
  }

  const Database& database_;
  const std::vector<Statement>& statements_;
  Random random_;
  Rows rows_;
  std::map<std::string, Segment> segments_;
  std::vector<std::vector<Use>> uses_;  // by statement
};

}  // namespace

TopicPtr makeSegments(const Setting& setting) { return std::make_unique<Segments>(setting); }

}  // namespace kestrelix::demo

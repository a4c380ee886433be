// Segments: what each table, index and partition was read and changed.
#include <map>

#include "platform/embedded/demo/storage.h"
#include "platform/embedded/demo/topic.h"

namespace kestrelix::embedded::demo {

namespace {

constexpr int kPartitions = 12;

struct Segment {
  std::int64_t object = 0;
  int tablespace = kDataTablespace;
  std::int64_t reads = 0, busy = 0, changes = 0, physicalReads = 0, physicalWrites = 0;
  std::int64_t directReads = 0, directWrites = 0, itl = 0, rowLocks = 0;
  std::int64_t crReceived = 0, currentReceived = 0, globalBusy = 0, crServed = 0, currentServed = 0;

  void clear() {
    reads = busy = changes = physicalReads = physicalWrites = directReads = directWrites = itl = rowLocks = 0;
    crReceived = currentReceived = globalBusy = crServed = currentServed = 0;
  }
};

class Segments : public Topic {
 public:
  explicit Segments(const Setting& setting)
      : database_(setting.database()),
        statements_(setting.workload.statements()),
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
    for (auto& [name, segment] : segments_) segment.clear();
  }

  void advance(const Work& work) override {
    for (std::size_t i = 0; i < statements_.size(); ++i) {
      const StatementWork& one = work.statements[i];
      const auto& used = uses_[i];
      if (used.empty() || one.executions == 0) continue;
      for (const Use& use : used) addWork(*use.segment, one, work, use.share);
    }
  }

  void write(const Snapshot& snapshot) override {
    if (snapshot.level < 7) return;
    for (const auto& [name, s] : segments_)
      if (s.reads > 0)
        rows_.at(snapshot, s.object, s.object, s.tablespace, s.reads, s.busy, s.changes, s.physicalReads,
                 s.physicalWrites, s.directReads, s.directWrites, s.crServed, s.currentServed, s.itl,
                 s.rowLocks, s.crReceived, s.currentReceived, s.globalBusy);
  }

 private:
  /// A segment that a statement works on, and its share of the work in thousandths.
  struct Use {
    Segment* segment = nullptr;
    std::int64_t share = 0;
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
    for (std::size_t i = 0; i < objects.size(); ++i) {
      std::int64_t share = 900 / static_cast<std::int64_t>(objects.size());
      if (!isPartitioned(objects[i])) {
        used.push_back(
            {segment(statement, tables, names, objects[i], "", i % 2 == 0 ? "TABLE" : "INDEX"), share});
        continue;
      }
      // The newest partition takes half of the work, the one before half of the rest, and so on.
      for (int part = kPartitions; part >= 1; --part) {
        share = std::max<std::int64_t>(share / 2, 1);
        const std::string month = (part < 10 ? "0" : "") + std::to_string(part);
        const std::string name = "P" + database_.start.substr(0, 4) + month;
        used.push_back({segment(statement, tables, names, objects[i], name, "TABLE PARTITION"), share});
      }
    }
    return used;
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

  void addWork(Segment& segment, const StatementWork& one, const Work& all, std::int64_t share) const {
    const auto mine = [&](std::int64_t whole) { return scaled(whole, share, 1000); };
    const auto ofAll = [&](std::int64_t whole, std::int64_t part, std::int64_t parts) {
      return parts == 0 ? 0 : scaled(whole, mine(part) / 1000, std::max<std::int64_t>(1, parts / 1000));
    };
    segment.reads += mine(one.gets);
    segment.changes += mine(one.changes);
    segment.physicalReads += mine(one.reads);
    segment.directReads += mine(one.directReads);
    segment.directWrites += mine(one.changes / 400);
    segment.physicalWrites += mine(one.changes / 12);
    segment.busy += ofAll(all.bufferBusy.waits + all.otherRead.waits, one.gets, all.gets);
    if (one.changes > 0) {
      segment.rowLocks += ofAll(all.rowLock.waits, one.changes, all.changes);
      segment.itl += ofAll(all.rowLock.waits / 4, one.changes, all.changes);
    }
    segment.crReceived += ofAll(all.crReceived, one.gets, all.gets);
    segment.currentReceived += ofAll(all.currentReceived, one.gets, all.gets);
    segment.globalBusy += ofAll(all.globalBusy.waits, one.gets, all.gets);
    segment.crServed += ofAll(all.crServed, one.gets, all.gets);
    segment.currentServed += ofAll(all.currentServed, one.gets, all.gets);
  }

  const Database& database_;
  const std::vector<Statement>& statements_;
  Rows rows_;
  std::map<std::string, Segment> segments_;
  std::vector<std::vector<Use>> uses_;  // by statement
};

}  // namespace

TopicPtr makeSegments(const Setting& setting) { return std::make_unique<Segments>(setting); }

}  // namespace kestrelix::embedded::demo

// SQL statements in the shared pool: their counters, texts and plans.
#include <algorithm>
#include <array>

#include "demo/plans.h"
#include "demo/topic.h"
#include "platform/code_page.h"

namespace kestrelix::demo {

namespace {

constexpr std::size_t kPieceBytes = 64;
constexpr std::size_t kSubsetBytes = 31;
constexpr std::size_t kTextBytes = 1000;

std::size_t sequenceLength(char lead) {
  const auto byte = static_cast<unsigned char>(lead);
  return byte < 0x80 ? 1 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
}

// As many whole characters as fit, by their bytes in UTF-8.
std::string_view cut(std::string_view text, std::size_t bytes) {
  std::size_t end = 0;
  while (end < text.size() && end + sequenceLength(text[end]) <= bytes) end += sequenceLength(text[end]);
  return text.substr(0, end);
}

// The text as its client sent it.
std::string sentText(const Statement& statement) {
  std::string text;
  for (const char c : statement.text) {
    if (c == '\n' && statement.client) text += '\r';
    text += c;
  }
  return text;
}

// As the shared pool shows it, on one line.
std::string flatText(const Statement& statement) {
  std::string text(statement.text);
  std::replace(text.begin(), text.end(), '\n', ' ');
  return std::string(cut(text, kTextBytes));
}

int commandOf(std::string_view text) {
  static constexpr std::array<std::pair<std::string_view, int>, 6> kCommands = {
      {{"INS", 2}, {"UPD", 6}, {"DEL", 7}, {"MER", 189}, {"BEG", 47}, {"DEC", 47}}};
  std::string start;
  for (const char c : text.substr(0, 3)) start += c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  for (const auto& [word, code] : kCommands)
    if (start == word) return code;
  return 3;
}

// The server writes 64 bits of a hash in 13 digits of base 32.
std::string sqlId(std::uint64_t hash) {
  static constexpr char kDigits[] = "0123456789abcdfghjkmnpqrstuvwxyz";
  std::string id(13, '0');
  for (std::size_t i = 13; i-- > 0; hash >>= 5) id[i] = kDigits[hash & 31];
  return id;
}

std::string addressOf(std::uint64_t hash, int loads) {
  std::uint64_t value = Random(hash + static_cast<std::uint64_t>(loads)).next();
  value = 0x0000000300000000u | (value & 0xFFFFFFE8u);
  std::string bytes;
  for (int shift = 56; shift >= 0; shift -= 8) bytes += static_cast<char>(value >> shift & 0xFF);
  return bytes;
}

struct Cursor {
  const Statement* statement = nullptr;
  std::string text;
  std::string subset;
  std::string id;
  std::string address;
  std::uint64_t hash = 0;
  std::int64_t hashValue = 0;
  std::int64_t oldHash = 0;
  int command = 3;
  int loads = 0;
  StatementWork sum;
};

class Sql : public Topic {
 public:
  explicit Sql(const Setting& setting)
      : database_(setting.database()),
        tables_(setting.tables),
        random_(setting.random),
        summary_(tables_.perSnapshot(
            database_, "stats$sql_summary",
            "text_subset old_hash_value hash_value sql_text sql_id sharable_mem sorts module loaded_versions "
            "fetches executions px_servers_executions end_of_fetch_count loads invalidations parse_calls "
            "disk_reads direct_writes buffer_gets application_wait_time concurrency_wait_time "
            "cluster_wait_time user_io_wait_time plsql_exec_time java_exec_time rows_processed command_type "
            "address version_count cpu_time elapsed_time avg_hard_parse_time outline_sid child_latch "
            "program_id program_line# exact_matching_signature force_matching_signature last_active_time")),
        texts_(
            tables_.rows(database_, "stats$sqltext",
                         "old_hash_value hash_value text_subset piece sql_id sql_text address command_type "
                         "last_snap_id")),
        usage_(
            tables_.perSnapshot(database_, "stats$sql_plan_usage",
                                "old_hash_value text_subset plan_hash_value hash_value sql_id cost address "
                                "optimizer last_active_time")),
        plans_(
            tables_.rows(database_, "stats$sql_plan",
                         "plan_hash_value id operation options object_node object# object_owner object_name "
                         "object_alias object_type optimizer parent_id depth position search_columns cost "
                         "cardinality bytes other_tag partition_start partition_stop partition_id "
                         "distribution cpu_cost io_cost temp_space access_predicates filter_predicates "
                         "projection time qblock_name snap_id")),
        totals_(
            tables_.perSnapshot(database_, "stats$sql_statistics",
                                "total_sql total_sql_mem single_use_sql single_use_sql_mem total_cursors")) {
    for (const Statement& statement : setting.workload.statements()) cursors_.push_back(cursorOf(statement));
  }

  void restart() override {
    sinceBad_ = false;
    for (Cursor& cursor : cursors_) drop(cursor);
    pool_ = 900;
  }

  void advance(const Work& work) override {
    sinceBad_ = sinceBad_ || work.bad;
    pool_ = std::min<std::int64_t>(pool_ + work.hardParses / 30, 9000 + database_.sharedPoolMb * 8);
    for (std::size_t i = 0; i < cursors_.size(); ++i) add(cursors_[i].sum, work.statements[i]);
  }

  void write(const Snapshot& snapshot) override {
    for (Cursor& cursor : cursors_) {
      if (!isCached(cursor.statement->pace, snapshot.time, sinceBad_)) {
        if (cursor.sum.executions > 0) drop(cursor);
        continue;
      }
      if (cursor.sum.executions == 0) continue;
      if (snapshot.level >= 5) writeSummary(snapshot, cursor);
      writeText(snapshot, cursor);
      if (snapshot.level >= 6) writeUsage(snapshot, cursor);
    }
    const std::int64_t all = random_.around(pool_, 12);
    const std::int64_t single = all * random_.between(290, 340) / 1000;
    totals_.at(snapshot, all, all * 21400 + random_.between(0, 900000), single, single * 15800,
               all * random_.between(124, 133) / 100);
  }

 private:
  Cursor cursorOf(const Statement& statement) const {
    Cursor cursor;
    cursor.statement = &statement;
    cursor.text = flatText(statement);
    cursor.subset = cut(cursor.text, kSubsetBytes);
    cursor.hash = textHash(sentText(statement));
    cursor.id = sqlId(cursor.hash);
    cursor.hashValue = static_cast<std::int64_t>(cursor.hash & 0xFFFFFFFFu);
    cursor.oldHash = static_cast<std::int64_t>(textHash("old " + cursor.text) & 0xFFFFFFFFu);
    cursor.command = commandOf(statement.text);
    cursor.address = addressOf(cursor.hash + static_cast<std::uint64_t>(database_.dbid), 0);
    return cursor;
  }

  void drop(Cursor& cursor) const {
    cursor.sum = {};
    cursor.address = addressOf(cursor.hash + static_cast<std::uint64_t>(database_.dbid), ++cursor.loads);
  }

  static void add(StatementWork& sum, const StatementWork& more) {
    sum.executions += more.executions;
    sum.parses += more.parses;
    sum.gets += more.gets;
    sum.reads += more.reads;
    sum.rows += more.rows;
    sum.changes += more.changes;
    sum.cpu += more.cpu;
    sum.ioWait += more.ioWait;
    sum.clusterWait += more.clusterWait;
    sum.concurrencyWait += more.concurrencyWait;
    sum.applicationWait += more.applicationWait;
    sum.elapsed += more.elapsed;
  }

  void writeSummary(const Snapshot& snapshot, const Cursor& cursor) {
    const Statement& statement = *cursor.statement;
    const StatementWork& sum = cursor.sum;
    const bool select = cursor.command == 3;
    const bool block = cursor.command == 47;
    const int versions = statement.versions + (statement.versions > 20 ? snapshot.place % 9 : 0);
    const std::int64_t memory = statement.sharableKb * 1024LL * std::min(versions, 6) + cursor.oldHash % 4096;
    const std::int64_t signature = static_cast<std::int64_t>(cursor.hash >> 1);
    summary_.at(
        snapshot, cursor.subset, cursor.oldHash, cursor.hashValue, cursor.text, cursor.id, memory,
        statement.plan == PlanShape::HashJoin || statement.plan == PlanShape::RangeScan ? sum.executions : 0,
        statement.module, std::max(1, versions / 2), select ? sum.executions + sum.rows / 15 : 0,
        sum.executions, statement.plan == PlanShape::Partitions ? sum.executions * 4 : 0,
        select ? sum.executions * 9 / 10 : sum.executions, versions + cursor.loads, cursor.loads / 3,
        sum.parses, sum.reads, sum.changes / 900, sum.gets, sum.applicationWait, sum.concurrencyWait,
        sum.clusterWait, sum.ioWait, block ? sum.cpu / 3 : 0, 0, sum.rows, cursor.command,
        Cell::raw(cursor.address), versions, sum.cpu, sum.elapsed, 1500 + memory / 60, Cell(),
        cursor.hashValue % 7 + 1, statement.client ? 0 : 8241, statement.client ? 0 : 117, signature,
        signature ^ 0x5A5A5A5A, snapshot.time - random_.between(0, 200));
  }

  // The texts of all databases of a release's kind stand in one table.
  void writeText(const Snapshot& snapshot, const Cursor& cursor) {
    if (!tables_.first((database_.has(10) ? "new text " : "old text ") + std::to_string(cursor.oldHash)))
      return;
    const std::string text = sentText(*cursor.statement);
    std::string_view rest = text;
    for (int piece = 0; !rest.empty(); ++piece) {
      std::size_t end = 0;
      while (end < rest.size()) {
        const std::size_t next = end + sequenceLength(rest[end]);
        if (codePageLength(rest.substr(0, next)) > kPieceBytes) break;
        end = next;
      }
      texts_.add(cursor.oldHash, cursor.hashValue, cursor.subset, piece, cursor.id, rest.substr(0, end),
                 Cell::raw(cursor.address), cursor.command, snapshot.id);
      rest.remove_prefix(end);
    }
  }

  void writeUsage(const Snapshot& snapshot, const Cursor& cursor) {
    const char* optimizer = database_.has(10) ? "ALL_ROWS" : "CHOOSE";
    for (const bool other : {false, true}) {
      const Plan plan = planOf(*cursor.statement, other);
      if (plan.lines.empty() || (other && !sinceBad_)) continue;
      usage_.at(snapshot, cursor.oldHash, cursor.subset, plan.hash, cursor.hashValue, cursor.id,
                plan.lines[0].cost, Cell::raw(cursor.address), optimizer, snapshot.time - 60);
      if (tables_.first("plan " + std::to_string(plan.hash))) writePlan(snapshot, plan, *cursor.statement);
    }
  }

  void writePlan(const Snapshot& snapshot, const Plan& plan, const Statement& statement) {
    const auto known = [](std::int64_t value) { return value < 0 ? Cell() : Cell(value); };
    for (std::size_t id = 0; id < plan.lines.size(); ++id) {
      const PlanLine& line = plan.lines[id];
      const bool isObject = !line.object.empty();
      const bool isIndex = line.operation == "INDEX";
      const bool parts = line.operation == "PARTITION RANGE";
      const std::string owner = statement.client ? database_.owner : "SYS";
      const std::string alias = isObject ? line.object + "@SEL$1" : "";
      plans_.add(plan.hash, id, line.operation, line.options, parts ? ":Q1000" : "",
                 isObject ? Cell(static_cast<std::int64_t>(textHash(line.object) % 90000)) : Cell(),
                 isObject ? owner : "", line.object, alias,
                 !isObject ? ""
                 : isIndex ? "INDEX"
                           : "TABLE",
                 id == 0 ? (database_.has(10) ? "ALL_ROWS" : "CHOOSE") : "", known(line.parent), line.depth,
                 id == 0 ? plan.lines[0].cost : 1, isIndex ? 1 : 0, known(line.cost), known(line.rows),
                 known(line.bytes), parts ? "PARALLEL_TO_SERIAL" : "", parts ? "KEY" : "", parts ? "KEY" : "",
                 parts ? Cell(id) : Cell(), parts ? "QC (RANDOM)" : "",
                 known(line.cost < 0 ? -1 : line.cost * 8100), known(line.cost),
                 line.operation == "SORT" ? Cell(4194304) : Cell(), isIndex ? "\"ID\"=:1" : "",
                 line.options == "FULL" ? "\"STATUS\"='A'" : "", isObject ? "\"ID\"[NUMBER,22]" : "",
                 known(line.cost < 0 ? -1 : line.cost / 80 + 1), "SEL$1", snapshot.id);
    }
  }

  const Database& database_;
  Tables& tables_;
  Random random_;
  Rows summary_, texts_, usage_, plans_, totals_;
  std::vector<Cursor> cursors_;
  std::int64_t pool_ = 900;
  bool sinceBad_ = false;
};

}  // namespace

TopicPtr makeSql(const Setting& setting) { return std::make_unique<Sql>(setting); }

}  // namespace kestrelix::demo

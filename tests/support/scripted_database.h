// A connection without a repository, for tests of what is asked and of what is shown around the rows.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/database.h"

namespace kestrelix::testing_support {

/// Answers the question for the snapshots of an instance with those given, and any other with no row. Keeps
/// what was sent.
class ScriptedDatabase : public Database {
 public:
  struct Snapshot {
    std::string id, time, startup;
  };
  struct Sent {
    std::string sql;
    std::vector<std::pair<std::string, std::string>> binds;
  };

  explicit ScriptedDatabase(std::vector<Snapshot> snapshots) : snapshots_(std::move(snapshots)) {}

  std::unique_ptr<Dynaset> DbCreateDynaset(const std::string& sql, long) override {
    Sent now{sql, {}};
    for (const char* name : {"B1", "B2", "B3", "B4", "B5", "PAR", "TOP_NUM"})
      if (const Parameter* bind = parameters().find(name)) now.binds.emplace_back(name, bind->value());
    sent.push_back(std::move(now));
    return std::make_unique<Rows>(sql.find("STARTUP_TIME") != std::string::npos ? snapshots_
                                                                                : std::vector<Snapshot>{});
  }

  std::vector<Sent> sent;

 private:
  class Rows : public Dynaset {
   public:
    explicit Rows(std::vector<Snapshot> rows) : rows_(std::move(rows)) { load(); }
    bool Eof() const override { return at_ == rows_.size(); }
    void MoveNext() override {
      ++at_;
      load();
    }
    long RecordCount() override { return static_cast<long>(rows_.size()); }
    Field Fields(std::string_view alias) const override {
      for (std::size_t i = 0; i < names_.size(); ++i)
        if (names_[i] == alias && !Eof()) return {alias, &values_[i]};
      throw DatabaseError("", 0, "no field " + std::string(alias));
    }
    void Close() override {}
    const std::vector<std::string>& columns() const override { return names_; }

   private:
    void load() {
      if (Eof()) return;
      const Snapshot& now = rows_[at_];
      values_ = {"1", "1", now.id, now.time, "7", now.startup};
    }
    std::vector<Snapshot> rows_;
    std::size_t at_ = 0;
    std::vector<std::string> names_{"DBID",      "INSTANCE_NUMBER", "SNAP_ID",
                                    "SNAP_TIME", "SNAP_LEVEL",      "STARTUP_TIME"};
    std::vector<std::optional<std::string>> values_;
  };

  std::vector<Snapshot> snapshots_;
};

}  // namespace kestrelix::testing_support

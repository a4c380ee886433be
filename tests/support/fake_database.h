// A client library that answers from what a test has laid down.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/database.h"

namespace kestrelix::testing_support {

/// What a statement that contains `when` brings: rows in the order of the columns, or a failure.
struct Answer {
  std::string when;
  std::vector<std::string> columns;
  std::vector<std::vector<std::optional<std::string>>> rows;
  bool fails = false;
};

class FakeDynaset : public Dynaset {
 public:
  explicit FakeDynaset(Answer answer) : answer_(std::move(answer)) {}

  bool Eof() const override { return row_ >= answer_.rows.size(); }
  void MoveNext() override { ++row_; }
  long RecordCount() override { return static_cast<long>(answer_.rows.size()); }
  void Close() override {}
  const std::vector<std::string>& columns() const override { return answer_.columns; }
  Field Fields(std::string_view alias) const override {
    if (Eof()) throw DatabaseError("24000", 1002, "no row");
    for (std::size_t c = 0; c < answer_.columns.size(); ++c)
      if (answer_.columns[c] == alias) return {answer_.columns[c], &answer_.rows[row_].at(c)};
    throw DatabaseError("42S22", 904, "no column " + std::string(alias));
  }

 private:
  Answer answer_;
  std::size_t row_ = 0;
};

/// What a test lays down, and what was asked for; it outlives the connections.
struct FakeServer {
  struct Asked {
    std::string statement;
    std::map<std::string, std::pair<ServerType, std::string>> binds;
  };

  /// The first answer whose text the statement contains counts; without one the statement fails.
  std::vector<Answer> answers;
  std::vector<Asked> asked;
  /// The logins that are let in, as "NAME user/password".
  std::vector<std::string> accounts;
  std::vector<std::string> logins;
  int openConnections = 0;
  int openSessions = 0;

  Answer& answer(const std::string& when) {
    for (Answer& known : answers)
      if (known.when == when) return known;
    answers.push_back({when, {}, {}, false});
    return answers.back();
  }
};

class FakeDatabase : public Database {
 public:
  explicit FakeDatabase(FakeServer& server) : server_(server) { ++server_.openConnections; }
  ~FakeDatabase() override { --server_.openConnections; }

  std::unique_ptr<Dynaset> DbCreateDynaset(const std::string& sql, long) override {
    FakeServer::Asked asked{sql, {}};
    for (const char* name : {"B1", "B2", "B3", "B4", "B5", "PAR", "TOP_NUM"})
      if (const Parameter* bind = parameters().find(name))
        asked.binds[name] = {bind->serverType(), bind->value()};
    server_.asked.push_back(asked);
    for (const Answer& answer : server_.answers) {
      if (sql.find(answer.when) == std::string::npos) continue;
      if (answer.fails) throw DatabaseError("42S02", 942, "table or view does not exist", sql);
      return std::make_unique<FakeDynaset>(answer);
    }
    throw DatabaseError("42S02", 942, "nothing is laid down for this statement", sql);
  }
  /// Answers come at once: there is never one to cancel.
  void cancel() override {}

 private:
  FakeServer& server_;
};

class FakeSession : public Session {
 public:
  explicit FakeSession(FakeServer& server) : server_(server) { ++server_.openSessions; }
  ~FakeSession() override { --server_.openSessions; }

  std::unique_ptr<Database> OpenDatabase(const std::string& name, const std::string& connect, long) override {
    const std::string login = name + " " + connect;
    server_.logins.push_back(login);
    for (const std::string& account : server_.accounts)
      if (account == login) return std::make_unique<FakeDatabase>(server_);
    throw DatabaseError("28000", 1017, "invalid username/password; logon denied");
  }

 private:
  FakeServer& server_;
};

}  // namespace kestrelix::testing_support

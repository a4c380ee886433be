// How long the program's questions take through the translator, beside the best SQL for SQLite written by
// hand.
#include <benchmark/benchmark.h>

#include <optional>

#include "bench/bench_repository.h"
#include "bench/questions.h"
#include "oracle_sql/meaning/resolver.h"
#include "oracle_sql/syntax/parser.h"
#include "repository_file/file_catalogue.h"
#include "repository_file/local_database.h"
#include "repository_file/repository_file.h"

namespace kestrelix::bench {
namespace {

/// The pairs that one run walks over: the last ones.
int firstPair(const Question& question) { return kSnapshots - question.pairs; }

void askEngine(benchmark::State& state, const std::filesystem::path& file, const Question& question) {
  repository_file::LocalDatabase database(file);
  auto& binds = database.parameters();
  const auto bind = [&](const std::string& name, const std::string& value, bool text) {
    binds.Add(name, 0, 1);
    binds(name).serverType(text ? ServerType::String : ServerType::Number);
    binds(name).value(value);
  };
  bind("B1", std::to_string(kDbid), false);
  bind("B2", std::to_string(kInstance), false);
  bind("B3", "0", false);
  bind("B4", "0", false);
  for (const auto& value : question.binds) bind(value.name, value.value, value.text);
  std::size_t rows = 0;
  for (auto _ : state) {
    rows = 0;
    for (int pair = firstPair(question); pair < kSnapshots; ++pair) {
      binds("B3").value(std::to_string(pair));
      binds("B4").value(std::to_string(pair + 1));
      const auto result = database.DbCreateDynaset(question.oracle, kDynasetOptions);
      for (; !result->Eof(); result->MoveNext()) ++rows;
    }
  }
  state.counters["rows"] = static_cast<double>(rows);
}

void askSqlite(benchmark::State& state, const std::filesystem::path& file, const Question& question) {
  // The same cache and the same absence of locks as the program's own connection has.
  const auto connection = repository_file::openRepositoryFile(file);
  const auto statement = repository_file::prepare(connection.get(), question.sqlite);
  const auto place = [&](const std::string& name) {
    return sqlite3_bind_parameter_index(statement.get(), (":" + name).c_str());
  };
  sqlite3_bind_int64(statement.get(), place("B1"), kDbid);
  sqlite3_bind_int64(statement.get(), place("B2"), kInstance);
  for (const auto& value : question.binds) {
    if (place(value.name) == 0) continue;
    if (value.text)
      sqlite3_bind_text(statement.get(), place(value.name), value.value.c_str(), -1, SQLITE_STATIC);
    else
      sqlite3_bind_int64(statement.get(), place(value.name), std::stoll(value.value));
  }
  std::size_t rows = 0;
  for (auto _ : state) {
    rows = 0;
    for (int pair = firstPair(question); pair < kSnapshots; ++pair) {
      sqlite3_bind_int64(statement.get(), place("B3"), pair);
      sqlite3_bind_int64(statement.get(), place("B4"), pair + 1);
      std::vector<std::optional<std::string>> cells;
      while (repository_file::step(statement.get())) {
        ++rows;
        for (int i = 0; i < sqlite3_column_count(statement.get()); ++i)
          cells.emplace_back(repository_file::columnText(statement.get(), i));
      }
      sqlite3_reset(statement.get());
      benchmark::DoNotOptimize(cells.data());
    }
  }
  state.counters["rows"] = static_cast<double>(rows);
}

void translate(benchmark::State& state, const std::filesystem::path& file) {
  const auto connection = repository_file::openRepositoryFile(file);
  const repository_file::FileCatalogue catalogue(connection.get());
  const std::string text = longestStatement();
  const repository_file::LoweringFacts facts{
      [&](const oracle_sql::CatalogueTable& table, int index) { return catalogue.facts(table, index); },
      [](std::string_view) {
        return repository_file::NumberFacts{true, 1e9};
      }};
  for (auto _ : state) {
    auto tree = oracle_sql::parse(text);
    oracle_sql::resolve(tree, catalogue, oracle_sql::allNumbers);
    const auto lowered = repository_file::lower(tree, facts);
    benchmark::DoNotOptimize(lowered.text.data());
  }
  state.counters["bytes"] = static_cast<double>(text.size());
}

}  // namespace
}  // namespace kestrelix::bench

int main(int argc, char** argv) {
  using namespace kestrelix::bench;
  benchmark::Initialize(&argc, argv);
  const BenchRepository repository;
  benchmark::RegisterBenchmark("translate the longest statement", [&](benchmark::State& state) {
    translate(state, repository.repository());
  })->Unit(benchmark::kMicrosecond);
  const auto all = questions();
  for (const auto& question : all) {
    benchmark::RegisterBenchmark((question.name + " / Oracle's SQL").c_str(), [&](benchmark::State& state) {
      askEngine(state, repository.repository(), question);
    })->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark((question.name + " / SQLite by hand").c_str(), [&](benchmark::State& state) {
      askSqlite(state, repository.native(), question);
    })->Unit(benchmark::kMicrosecond);
  }
  benchmark::RunSpecifiedBenchmarks();
}

// Who is in the demo repository: its databases and instances.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace kestrelix::demo {

/// What the database is used for; it decides the statements, tables and tablespaces.
enum class Business { Orders, Bank, Shop, Warehouse };

struct Database {
  std::string major;    // "9", "10" or "11"
  std::string version;  // as the server writes it
  std::string platform;
  std::int64_t dbid = 0;
  std::string name;
  Business business = Business::Orders;
  std::string owner;  // of the business's tables
  int instances = 1;
  std::string start;  // of the first snapshot
  int cpus = 4;
  std::int64_t memoryMb = 8192;
  std::int64_t cacheMb = 1024;
  std::int64_t sharedPoolMb = 512;
  std::int64_t pgaMb = 512;
  std::int64_t blockSize = 8192;
  std::int64_t readMicros = 4000;  // of one block from a quiet disk

  bool cluster() const { return instances > 1; }
  bool has(int release) const { return std::stoi(major) >= release; }
};

struct Instance {
  const Database* database = nullptr;
  int number = 1;
  std::string name;
  std::string host;
};

/// The four databases, Oracle 9, 10 and 11, two of them clusters of two instances.
const std::vector<Database>& databases();

std::vector<Instance> instancesOf(const Database& database);

}  // namespace kestrelix::demo

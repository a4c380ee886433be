#include "demo/scene.h"

namespace kestrelix::demo {

const std::vector<Database>& databases() {
  static const std::vector<Database> all = {
      {.major = "9",
       .version = "9.2.0.8.0",
       .platform = "Solaris[tm] OE (64-bit)",
       .dbid = 1087236415,
       .name = "ORDERS",
       .business = Business::Orders,
       .owner = "ORDERS",
       .instances = 1,
       .start = "2009-06-08 00:00:00",
       .cpus = 4,
       .memoryMb = 8192,
       .cacheMb = 1536,
       .sharedPoolMb = 448,
       .pgaMb = 512,
       .readMicros = 5200},
      {.major = "10",
       .version = "10.2.0.5.0",
       .platform = "AIX-Based Systems (64-bit)",
       .dbid = 2405618893,
       .name = "BANK",
       .business = Business::Bank,
       .owner = "BANK",
       .instances = 2,
       .start = "2012-03-05 00:00:00",
       .cpus = 8,
       .memoryMb = 32768,
       .cacheMb = 8192,
       .sharedPoolMb = 1536,
       .pgaMb = 2048,
       .readMicros = 3600},
      {.major = "11",
       .version = "11.2.0.4.0",
       .platform = "Linux x86 64-bit",
       .dbid = 3121750462,
       .name = "SHOP",
       .business = Business::Shop,
       .owner = "SHOP",
       .instances = 2,
       .start = "2015-09-07 00:00:00",
       .cpus = 16,
       .memoryMb = 98304,
       .cacheMb = 24576,
       .sharedPoolMb = 4096,
       .pgaMb = 6144,
       .readMicros = 2400},
      {.major = "11",
       .version = "11.2.0.4.0",
       .platform = "Solaris Operating System (x86-64)",
       .dbid = 3547802196,
       .name = "DWH",
       .business = Business::Warehouse,
       .owner = "DWH",
       .instances = 1,
       .start = "2015-09-07 00:00:00",
       .cpus = 12,
       .memoryMb = 65536,
       .cacheMb = 12288,
       .sharedPoolMb = 3072,
       .pgaMb = 12288,
       .blockSize = 16384,
       .readMicros = 3900},
  };
  return all;
}

std::vector<Instance> instancesOf(const Database& database) {
  std::vector<Instance> list;
  std::string host = database.name;
  for (char& c : host) c = static_cast<char>(c - 'A' + 'a');
  for (int number = 1; number <= database.instances; ++number) {
    const std::string suffix = database.cluster() ? std::to_string(number) : std::string();
    list.push_back({&database, number, database.name + suffix, host + "db0" + std::to_string(number)});
  }
  return list;
}

}  // namespace kestrelix::demo

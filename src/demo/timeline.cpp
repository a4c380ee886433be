#include "demo/timeline.h"

#include "repository_file/writing/cell.h"

namespace kestrelix::demo {

namespace {

constexpr std::int64_t kHour = 3600;

// What happens, in sixtieths of the list; each instance has it a little later than the one before.
struct Events {
  int comment;
  int levelDown;
  int levelUp;
  int purged;
  int badHour;
  int restart;
};

Events eventsOf(int count, int shift) {
  const auto at = [&](int sixtieth) { return (sixtieth + shift) * count / 60; };
  return {at(9), at(18), at(20), at(26), at(34), at(46)};
}

const char* commentOf(Business business) {
  switch (business) {
    case Business::Orders:
      return "before the price list load";
    case Business::Bank:
      return "給与振込日 ピーク前 (payday, before the peak)";
    case Business::Shop:
      return "セール開始前 / before the sale";
    case Business::Warehouse:
      return "月次集計バッチ開始前";
  }
  return "";
}

}  // namespace

std::vector<Snapshot> timelineOf(const Instance& instance, int count, std::int64_t firstId, Random random) {
  const Database& database = *instance.database;
  const Events events = eventsOf(count, instance.number - 1);
  std::vector<Snapshot> list;
  std::int64_t hour = repository_file::secondsOfDate(database.start);
  std::int64_t id = firstId + instance.number - 1;
  std::int64_t startup = hour - 86400 * random.between(9, 40) - random.between(0, 40000);
  for (int place = 0; place < count; ++place) {
    if (place > 0) {
      hour += kHour;
      id += database.instances;
      if (place == events.purged) {
        hour += kHour;
        id += database.instances;
      }
    }
    if (place > 0 && place == events.restart) startup = hour - random.between(1500, 2700);
    Snapshot snapshot;
    snapshot.id = id;
    snapshot.dbid = database.dbid;
    snapshot.instance = instance.number;
    snapshot.time = hour + random.between(2, 9);
    snapshot.startup = startup;
    snapshot.level = place >= events.levelDown && place < events.levelUp ? 5 : 7;
    if (place == events.comment) snapshot.comment = commentOf(database.business);
    snapshot.badHour = place > 0 && place == events.badHour;
    snapshot.place = place;
    list.push_back(snapshot);
  }
  return list;
}

}  // namespace kestrelix::demo

#include "navigation/clsSnapId.h"

namespace kestrelix {
namespace {

constexpr const char* kClass = "clsSnapId";

std::string snapshots(const std::string& range) {
  return "select st.DBID, st.INSTANCE_NUMBER, TO_CHAR(st.SNAP_TIME,'YYYY-MM-DD HH24:MI:SS') AS SNAP_TIME, "
         "st.SNAP_ID, st.SNAP_LEVEL, TO_CHAR(st.STARTUP_TIME,'YYYY-MM-DD HH24:MI:SS') AS STARTUP_TIME "
         "from stats$snapshot st where st.DBID = :B1 and   st.INSTANCE_NUMBER = :B2 " +
         range + "order by st.DBID,st.INSTANCE_NUMBER,st.SNAP_ID ";
}

}  // namespace

const std::string& clsSnapId::statement(bool useRange) {
  static const std::string whole = snapshots("");
  static const std::string range = snapshots(" and   st.SNAP_ID >= :B3 and   st.SNAP_ID <= :B4 ");
  return useRange ? range : whole;
}

void clsSnapId::Initialize(Database& database, Failures& failures) {
  database_ = &database;
  failures_ = &failures;
  snapshots_.clear();
  pairs_.clear();
}

bool clsSnapId::setBAIND_VALUE(const std::string& dbid, const std::string& instanceNumber,
                               const std::string& startId, const std::string& endId) {
  return guarded(*failures_, kClass, "setBAIND_VALUE", [&] {
    Parameters& binds = database_->parameters();
    for (const char* name : {"B1", "B2", "B3", "B4"}) binds.Add(name, 0, 1);
    binds("B1").serverType(ServerType::Number);
    binds("B2").serverType(ServerType::Number);
    // The ids are texts, empty when no range applies; the database converts them for the comparison.
    binds("B3").serverType(ServerType::String);
    binds("B4").serverType(ServerType::String);
    binds("B1").value(dbid);
    binds("B2").value(instanceNumber);
    binds("B3").value(startId);
    binds("B4").value(endId);
  });
}

bool clsSnapId::unsetBAIND_VALUE() {
  return guarded(*failures_, kClass, "unsetBAIND_VALUE", [this] {
    for (const char* name : {"B1", "B2", "B3", "B4"}) database_->parameters().Remove(name);
  });
}

bool clsSnapId::getSNAP_ID(bool useRange) {
  return guarded(*failures_, kClass, "getSNAP_ID", [&] {
    const auto dynaset = database_->DbCreateDynaset(statement(useRange), kDynasetOptions);
    for (; !dynaset->Eof(); dynaset->MoveNext())
      snapshots_.push_back({dynaset->Fields("DBID").value(), dynaset->Fields("INSTANCE_NUMBER").value(),
                            dynaset->Fields("SNAP_ID").value(), dynaset->Fields("SNAP_TIME").value(),
                            dynaset->Fields("SNAP_LEVEL").value(), dynaset->Fields("STARTUP_TIME").value()});
    dynaset->Close();
  });
}

bool clsSnapId::getSTART_END_SNAP_ID(bool useRange) {
  if (!getSNAP_ID(useRange)) {
    failures_->push_back({failureText(kClass, "getSTART_END_SNAP_ID")});
    return false;
  }
  for (std::size_t i = 0; i + 1 < snapshots_.size(); ++i)
    pairs_.push_back({classify(snapshots_[i], snapshots_[i + 1]), snapshots_[i], snapshots_[i + 1]});
  return true;
}

std::optional<clsSnapId> clsSnapId::span(int first, int last) const {
  for (int i = first; i <= last; ++i)
    if (restarted(i)) return std::nullopt;
  clsSnapId whole;
  const Snapshot& start = pair(first).start;
  const Snapshot& end = pair(last).end;
  whole.snapshots_ = {start, end};
  whole.pairs_ = {{classify(start, end), start, end}};
  return whole;
}

/// A restart outweighs a change of level. It shows in the end snapshot's start-up time alone, strictly later
/// than the start snapshot.
std::string clsSnapId::classify(const Snapshot& start, const Snapshot& end) {
  if (start.snapTime < end.startupTime) return kStatusRestart;
  if (start.snapLevel != end.snapLevel) return kStatusLevel;
  return kStatusOk;
}

}  // namespace kestrelix

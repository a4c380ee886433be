#include "sections/objects/clsSegmentsby.h"

#include <algorithm>

namespace kestrelix {
namespace {

using Names = std::vector<std::string>;

/// What changes from ranking to ranking: the statistic, the order of the others, the versions.
struct Ranking {
  std::string members;  ///< of the All and the Col member: get<members>_ALL
  std::string statistic;
  Names others;
  Versions versions;
};

const Names kServed{"GLOBAL_CACHE_CR_BLOCKS_SERVED", "GLOBAL_CACHE_CU_BLOCKS_SERVED"};
const Names kPlain{"LOGICAL_READS",     "DB_BLOCK_CHANGES",      "PHYSICAL_READS",
                   "PHYSICAL_WRITES",   "DIRECT_PHYSICAL_READS", "DIRECT_PHYSICAL_WRITES",
                   "BUFFER_BUSY_WAITS", "ROW_LOCK_WAITS",        "ITL_WAITS"};

Names joined(Names first, const Names& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

Names without(Names names, const std::string& name) {
  names.erase(std::remove(names.begin(), names.end(), name), names.end());
  return names;
}

/// The cluster statistics stand ahead of the plain ones.
Ranking ofCluster(const std::string& members, const std::string& statistic) {
  const Names received{"GC_BUFFER_BUSY", "GC_CR_BLOCKS_RECEIVED", "GC_CURRENT_BLOCKS_RECEIVED"};
  return {members, statistic, joined(joined(without(received, statistic), kServed), kPlain), V10_11};
}

const std::vector<Ranking>& rankings() {
  static const std::vector<Ranking> all{
      {"SEGMENTS_BY_LOGICAL_READS", "LOGICAL_READS", without(kPlain, "LOGICAL_READS"), kAllVersions},
      {"SEGMENTS_BY_PHYSICAL_READS",
       "PHYSICAL_READS",
       {"PHYSICAL_WRITES", "LOGICAL_READS", "DB_BLOCK_CHANGES", "DIRECT_PHYSICAL_READS",
        "DIRECT_PHYSICAL_WRITES", "BUFFER_BUSY_WAITS", "ROW_LOCK_WAITS", "ITL_WAITS"},
       kAllVersions},
      {"SEGMENTS_BY_ROW_LOCK_WAITS", "ROW_LOCK_WAITS", without(kPlain, "ROW_LOCK_WAITS"), kAllVersions},
      {"SEGMENTS_BY_ITL_WAITS", "ITL_WAITS", without(kPlain, "ITL_WAITS"), kAllVersions},
      {"SEGMENTS_BY_BUFFER_BUSY_WAITS", "BUFFER_BUSY_WAITS", without(kPlain, "BUFFER_BUSY_WAITS"),
       kAllVersions},
      ofCluster("SEGMENTS_BY_GLOBAL_CACHE_BUFFER_BUSY_WAITS", "GC_BUFFER_BUSY"),
      ofCluster("SEGMENTS_BY_CR_BLOCKS_RECEIVED", "GC_CR_BLOCKS_RECEIVED"),
      ofCluster("SEGMENTS_BY_CURRENT_BLOCKS_RECEIVED", "GC_CURRENT_BLOCKS_RECEIVED")};
  return all;
}

std::string delta(const std::string& statistic) {
  return "e." + statistic + " - nvl(b." + statistic + ", 0)";
}

/// The growth of every statistic of the segments that grew in the ranked one, with the share of it. A segment
/// that is new at the end counts from zero.
std::string growth(const Ranking& ranking) {
  std::string text = "select e.dataobj#, e.obj#, e.ts#, e.dbid, ";
  for (const std::string& statistic : joined({ranking.statistic}, ranking.others))
    text += delta(statistic) + " AS " + statistic + ", ";
  return text + "ratio_to_report(" + delta(ranking.statistic) + R"sql() OVER () AS RATIO
          from stats$seg_stat e, stats$seg_stat b
         where b.snap_id(+) = :B3
           and e.snap_id = :B4
           and b.dbid(+) = :B1
           and e.dbid = :B1
           and b.instance_number(+) = :B2
           and e.instance_number = :B2
           and b.ts#(+) = e.ts#
           and b.obj#(+) = e.obj#
           and b.dataobj#(+) = e.dataobj#
           and )sql" +
         delta(ranking.statistic) + " > 0";
}

/// With the names of the segments. The gate on the level asks for the start snapshot's id alone.
std::string named(const Ranking& ranking, const std::string& segments) {
  std::string text = R"sql(
    select n.OWNER AS OWNER,
           n.TABLESPACE_NAME AS TABLESPACE,
           n.OBJECT_NAME AS OBJECT_NAME,
           NVL(n.SUBOBJECT_NAME,' ') AS SUBOBJECT_NAME,
           n.OBJECT_TYPE AS OBJECT_TYPE, r.)sql" +
                     ranking.statistic + " AS " + ranking.statistic + ", ROUND(r.RATIO * 100,1) AS PCT_TOTAL";
  for (const std::string& other : ranking.others) {
    const bool served = std::find(kServed.begin(), kServed.end(), other) != kServed.end();
    text +=
        ", " + (served ? "DECODE(r." + other + ",null,' ',r." + other + ")" : "r." + other) + " AS " + other;
  }
  return text + " from stats$seg_stat_obj n, (" + segments + R"sql() r
     where n.dataobj# = r.dataobj#
       and n.obj# = r.obj#
       and n.ts# = r.ts#
       and n.dbid = r.dbid
       and 7 <= (select snap_level from stats$snapshot where snap_id = :B3))sql";
}

std::string allStatement(const Ranking& ranking) {
  const std::string top =
      "select * from (" + growth(ranking) + " order by " + ranking.statistic + " desc) d where rownum <= 10";
  return fold(named(ranking, top) + " order by r." + ranking.statistic + " desc");
}

std::string colStatement(const Ranking& ranking) {
  return fold("select * from (" + named(ranking, "select * from (" + growth(ranking) + ") d") + R"sql() Z
     where Z.OWNER = :B5 and Z.OBJECT_NAME = :B6 and Z.SUBOBJECT_NAME = :B7 and Z.OBJECT_TYPE = :B8)sql");
}

/// A segment without a subobject has a blank there, and so has its key.
std::vector<Bind> keys() {
  std::vector<Bind> binds;
  for (const char* name : {"B5", "B6", "B7", "B8"}) binds.push_back(argument(name, ServerType::String));
  binds[2].ifEmpty = " ";
  return binds;
}

}  // namespace

clsSegmentsby::clsSegmentsby() : ListSectionObject("clsSegmentsby", fieldNames(), keys()) {
  const Names names = fieldNames();
  for (const Ranking& ranking : rankings()) {
    const Names selected = joined({"OWNER", "TABLESPACE", "OBJECT_NAME", "SUBOBJECT_NAME", "OBJECT_TYPE",
                                   ranking.statistic, "PCT_TOTAL"},
                                  ranking.others);
    std::vector<std::size_t> filled;
    for (const std::string& name : selected)
      filled.push_back(static_cast<std::size_t>(std::find(names.begin(), names.end(), name) - names.begin()));
    all("get" + ranking.members + "_ALL", allStatement(ranking)).only(ranking.versions).fields = filled;
    col("get" + ranking.members + "_COL", colStatement(ranking)).only(ranking.versions).fields = filled;
  }
}

}  // namespace kestrelix

#include "sections/cluster/deltaBlocks.h"

#include <map>

#include "report/statement.h"
#include "sections/shared/totals.h"

namespace kestrelix {
namespace {

/// The growth of one statistic of `table`, whose two ends are named `start` and `end`.
std::string delta(const std::string& table, const std::string& start, const std::string& end,
                  const std::string& value, const std::string& alias, const std::string& names) {
  std::string text =
      "select " + value + " AS " + alias + " from " + table + " " + start + ", " + table + " " + end;
  text += " where " + start + ".NAME = " + end + ".NAME and " + start + ".NAME " + names;
  text +=
      " and " + start + ".DBID = :B1 and " + start + ".INSTANCE_NUMBER = :B2 and " + start + ".SNAP_ID = :B3";
  text += " and " + end + ".DBID = :B1 and " + end + ".INSTANCE_NUMBER = :B2 and " + end + ".SNAP_ID = :B4";
  return text;
}

std::string sysstat(const std::string& alias, const std::string& name) {
  return delta("stats$sysstat", "syb", "sye", "sye.VALUE - syb.VALUE", alias, "= '" + name + "'");
}

std::string dlm(const std::string& alias, const std::string& name) {
  return delta("stats$dlm_misc", "sdb", "sde", "sde.VALUE - sdb.VALUE", alias, "= '" + name + "'");
}

/// A figure of the block servers, which have one row a snapshot.
std::string blockServer(const std::string& table, const std::string& value, const std::string& alias) {
  return "select " + value + " AS " + alias + " from " + table + " b, " + table + R"sql( e
     where b.dbid = :B1 and b.instance_number = :B2 and b.snap_id = :B3
       and e.dbid = :B1 and e.instance_number = :B2 and e.snap_id = :B4)sql";
}

const char* const kElapsed = R"sql(
    select round(((ste.snap_time - stb.snap_time) * 1440 * 60)) AS ela
      from stats$snapshot stb, stats$snapshot ste
     where stb.DBID = :B1 and stb.INSTANCE_NUMBER = :B2 and stb.SNAP_ID = :B3
       and ste.DBID = :B1 and ste.INSTANCE_NUMBER = :B2 and ste.SNAP_ID = :B4)sql";

const char* const kBlockSize = R"sql(
    select value AS bs
      from stats$parameter
     where dbid = :B1 and instance_number = :B2 and snap_id = :B4 and name = 'db_block_size')sql";

const std::map<std::string, std::string, std::less<>>& blocks() {
  static const auto all = [] {
    std::map<std::string, std::string, std::less<>> texts;
    const std::pair<const char*, const char*> ofSysstat[] = {
        {"gccurv", "gc current blocks received"}, {"gccrrv", "gc cr blocks received"},
        {"gccusv", "gc current blocks served"},   {"gccrsv", "gc cr blocks served"},
        {"gccrrt", "gc cr block receive time"},   {"gccurt", "gc current block receive time"},
        {"gccrbt", "gc cr block build time"},     {"gccrst", "gc cr block send time"},
        {"gccrft", "gc cr block flush time"},     {"gccupt", "gc current block pin time"},
        {"gccust", "gc current block send time"}, {"gccuft", "gc current block flush time"},
        {"glag", "global enqueue gets async"},    {"glsg", "global enqueue gets sync"},
        {"glgt", "global enqueue get time"},      {"dpms", "gcs messages sent"},
        {"dnpms", "ges messages sent"},           {"dbfr", "DBWR fusion writes"},
        {"phyrc", "physical reads cache"},
    };
    const std::pair<const char*, const char*> ofDlm[] = {
        {"pmrv", "gcs msgs received"},          {"npmrv", "ges msgs received"},
        {"pmpt", "gcs msgs process time(ms)"},  {"npmpt", "ges msgs process time(ms)"},
        {"msgsq", "msgs sent queued"},          {"msgsqt", "msgs sent queue time (ms)"},
        {"msgsqk", "msgs sent queued on ksxp"}, {"msgsqtk", "msgs sent queue time on ksxp (ms)"},
        {"msgrq", "msgs received queued"},      {"msgrqt", "msgs received queue time (ms)"},
        {"dmsd", "messages sent directly"},     {"dmsi", "messages sent indirectly"},
        {"dmfc", "messages flow controlled"},
    };
    for (const auto& [alias, name] : ofSysstat) texts[alias] = sysstat(alias, name);
    for (const auto& [alias, name] : ofDlm) texts[alias] = dlm(alias, name);
    texts["gets"] = delta("stats$sysstat", "syb", "sye", "sum(sye.VALUE - syb.VALUE)", "gets",
                          "in ('consistent gets from cache','db block gets from cache')");
    texts["gccrfl"] = blockServer("stats$cr_block_server", "e.flushes - b.flushes", "gccrfl");
    texts["gccufl"] = blockServer("stats$current_block_server",
                                  "(e.flush1+e.flush10+e.flush100+e.flush1000+e.flush10000) - "
                                  "(b.flush1+b.flush10+b.flush100+b.flush1000+b.flush10000)",
                                  "gccufl");
    texts["ela"] = kElapsed;
    texts["tran"] = transactionsSelect("tran");
    texts["bs"] = kBlockSize;
    return texts;
  }();
  return all;
}

}  // namespace

std::string selectFromBlocks(const std::string& columns, std::initializer_list<std::string_view> names) {
  std::string text = "select " + columns + " from ";
  const char* separator = "";
  for (const std::string_view name : names) {
    text += separator + ("(" + blocks().at(std::string(name)) + ") ") + std::string(name);
    separator = ", ";
  }
  return fold(text);
}

}  // namespace kestrelix

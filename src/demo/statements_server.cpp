#include "demo/statements.h"

namespace kestrelix::demo {

// What the server runs for itself and its administrators, in every database.
std::vector<Statement> serverStatements() {
  using enum Pace;
  using enum PlanShape;
  return {
      {.text = "select obj#,type#,ctime,mtime,stime,status,dataobj#,flags,oid$, spare1, spare2 from obj$ "
               "where owner#=:1 and name=:2 and namespace=:3 and remoteowner is null and linkname is null",
       .share = 9,
       .gets = 3,
       .misses = 8,
       .plan = RangeScan,
       .objects = "OBJ$ I_OBJ2",
       .client = false},
      {.text = "select name,intcol#,segcol#,type#,length,nvl(precision#,0),null$ from col$ where obj#=:1 "
               "order by intcol#",
       .share = 6,
       .gets = 4,
       .misses = 6,
       .rows = 12,
       .plan = RangeScan,
       .objects = "COL$ I_COL3",
       .client = false},
      {.text = "update seq$ set increment$=:2,minvalue=:3,maxvalue=:4,cycle#=:5,order$=:6,cache=:7,"
               "highwater=:8,audit$=:9,flags=:10 where obj#=:1",
       .share = 7,
       .gets = 3,
       .misses = 1,
       .changes = 2,
       .plan = Update,
       .objects = "SEQ$ I_SEQ1",
       .client = false},
      {.text = "select user#,type# from user$ where name=:1",
       .pace = Steady,
       .share = 3,
       .gets = 2,
       .misses = 0,
       .parses = 100,
       .plan = UniqueLookup,
       .objects = "USER$ I_USER1",
       .client = false},
      {.text = "select privilege#,level from sysauth$ connect by grantee#=prior privilege# and privilege#>0 "
               "start with grantee#=:1 and privilege#>0",
       .share = 4,
       .gets = 11,
       .misses = 0,
       .rows = 6,
       .plan = RangeScan,
       .objects = "SYSAUTH$ I_SYSAUTH1",
       .client = false},
      {.text =
           "select /*+ rule */ bucket, endpoint, col#, epvalue from histgrm$ where obj#=:1 and intcol#=:2 "
           "and row#=:3 order by bucket",
       .share = 5,
       .gets = 4,
       .misses = 20,
       .rows = 20,
       .plan = RangeScan,
       .objects = "HISTGRM$ I_H_OBJ#_COL#",
       .client = false},
      {.text = "BEGIN statspack.snap; END;",
       .module = "DBMS_JOB",
       .pace = Steady,
       .perHour = 1,
       .gets = 24000,
       .misses = 18,
       .changes = 5200,
       .commits = true,
       .parses = 100,
       .sharableKb = 62,
       .client = false},
      {.text =
           "INSERT INTO STATS$SQL_SUMMARY SELECT :B1, :B2, :B3, SUBSTRB(SQL_TEXT,1,31), SHARABLE_MEM, SORTS, "
           "MODULE, LOADED_VERSIONS, EXECUTIONS, LOADS, INVALIDATIONS, PARSE_CALLS, DISK_READS, BUFFER_GETS, "
           "ROWS_PROCESSED, COMMAND_TYPE, ADDRESS, HASH_VALUE, VERSION_COUNT, CPU_TIME, ELAPSED_TIME "
           "FROM STATS$V$SQLXS",
       .module = "DBMS_JOB",
       .pace = Steady,
       .perHour = 1,
       .gets = 9000,
       .misses = 6,
       .rows = 480,
       .changes = 1900,
       .parses = 100,
       .plan = Insert,
       .objects = "STATS$SQL_SUMMARY STATS$SQL_SUMMARY_PK",
       .client = false},
      {.text =
           "declare job binary_integer := :job; next_date date := :mydate; broken boolean := FALSE; begin "
           "statspack.snap; :mydate := next_date; if broken then :b := 1; else :b := 0; end if; end;",
       .module = "DBMS_JOB",
       .pace = Steady,
       .perHour = 1,
       .gets = 600,
       .misses = 5,
       .parses = 100,
       .client = false},
      {.text = "SELECT NVL(SUM(BYTES),0) FROM DBA_FREE_SPACE WHERE TABLESPACE_NAME = :1",
       .module = "Monitoring",
       .pace = Steady,
       .perHour = 144,
       .gets = 4100,
       .misses = 30,
       .parses = 100,
       .plan = HashJoin,
       .objects = "TS$ I_TS# FET$ I_TS#",
       .sharableKb = 140,
       .client = false},
      {.text = "select count(*) from v$session where status = 'ACTIVE' and type = 'USER'",
       .module = "Monitoring",
       .pace = Steady,
       .perHour = 360,
       .gets = 0,
       .misses = 0,
       .parses = 100,
       .plan = FullScan,
       .objects = "X$KSUSE",
       .client = false},
  };
}

std::vector<Statement> statementsOf(Business business) {
  std::vector<Statement> list;
  switch (business) {
    case Business::Orders:
      list = orderStatements();
      break;
    case Business::Bank:
      list = bankStatements();
      break;
    case Business::Shop:
      list = shopStatements();
      break;
    case Business::Warehouse:
      list = warehouseStatements();
      break;
  }
  for (const Statement& statement : serverStatements()) list.push_back(statement);
  return list;
}

}  // namespace kestrelix::demo

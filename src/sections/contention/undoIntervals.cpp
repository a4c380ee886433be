#include "sections/contention/undoIntervals.h"

namespace kestrelix {

std::string undoIntervals() {
  return R"sql(
      from stats$snapshot stb, stats$snapshot ste, stats$undostat ud
     where stb.DBID = ud.DBID
       and ste.DBID = ud.DBID
       and stb.INSTANCE_NUMBER = ud.INSTANCE_NUMBER
       and ste.INSTANCE_NUMBER = ud.INSTANCE_NUMBER
       and stb.SNAP_ID = :B3
       and ste.SNAP_ID = :B4
       and ud.dbid = :B1
       and ud.instance_number = :B2
       and ud.end_time > stb.SNAP_TIME
       and ud.begin_time < ste.SNAP_TIME)sql";
}

}  // namespace kestrelix

#include "sections/cluster/clsGlobalCacheLoadProfile.h"

#include "sections/cluster/deltaBlocks.h"

namespace kestrelix {

clsGlobalCacheLoadProfile::clsGlobalCacheLoadProfile()
    : MetricSectionObject("clsGlobalCacheLoadProfile", fieldNames()) {
  metric("getGCBR_SEC", {Field::GCBR_SEC},
         selectFromBlocks("ROUND((gccurv + gccrrv) / ela,2) AS GCBR_SEC", {"gccurv", "gccrrv", "ela"}));
  metric("getGCBR_TRAN", {Field::GCBR_TRAN},
         selectFromBlocks("ROUND((gccurv + gccrrv) / tran,2) AS GCBR_TRAN", {"gccurv", "gccrrv", "tran"}));
  metric("getGCBS_SEC", {Field::GCBS_SEC},
         selectFromBlocks("ROUND((gccusv + gccrsv) / ela,2) AS GCBS_SEC", {"gccusv", "gccrsv", "ela"}));
  metric("getGCBS_TRAN", {Field::GCBS_TRAN},
         selectFromBlocks("ROUND((gccusv + gccrsv) / tran,2) AS GCBS_TRAN", {"gccusv", "gccrsv", "tran"}));
  metric("getGGMR_SEC", {Field::GGMR_SEC},
         selectFromBlocks("ROUND((pmrv + npmrv) / ela,2) AS GGMR_SEC", {"pmrv", "npmrv", "ela"}));
  metric("getGGMR_TRAN", {Field::GGMR_TRAN},
         selectFromBlocks("ROUND((pmrv + npmrv) / tran,2) AS GGMR_TRAN", {"pmrv", "npmrv", "tran"}));
  metric("getGGMS_SEC", {Field::GGMS_SEC},
         selectFromBlocks("ROUND((dpms + dnpms) / ela,2) AS GGMS_SEC", {"dpms", "dnpms", "ela"}));
  metric("getGGMS_TRAN", {Field::GGMS_TRAN},
         selectFromBlocks("ROUND((dpms + dnpms) / tran,2) AS GGMS_TRAN", {"dpms", "dnpms", "tran"}));
  metric("getDFW_SEC", {Field::DFW_SEC}, selectFromBlocks("ROUND(dbfr / ela,2) AS DFW_SEC", {"dbfr", "ela"}));
  metric("getDFW_TRAN", {Field::DFW_TRAN},
         selectFromBlocks("ROUND(dbfr / tran,2) AS DFW_TRAN", {"dbfr", "tran"}));
  // A block counts as the block size, a message as 200 bytes.
  metric("getEITKB_SEC", {Field::EITKB_SEC},
         selectFromBlocks(
             "ROUND((((gccrrv + gccurv + gccrsv + gccusv) * bs) + ((dpms + dnpms + pmrv + npmrv) * 200)) "
             "/ 1024 / ela,2) AS EITKB_SEC",
             {"gccrrv", "gccurv", "gccrsv", "gccusv", "bs", "dpms", "dnpms", "pmrv", "npmrv", "ela"}));
}

}  // namespace kestrelix

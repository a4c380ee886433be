#include "sections/cluster/clsWorkloadCharacteristics.h"

#include "sections/cluster/deltaBlocks.h"

namespace kestrelix {

clsWorkloadCharacteristics::clsWorkloadCharacteristics()
    : MetricSectionObject("clsWorkloadCharacteristics", fieldNames()) {
  metric("getAGEGT", {Field::AGEGT},
         selectFromBlocks("DECODE(glag + glsg, 0, ' ', ROUND((glgt / (glag + glsg)) * 10,1)) AS AGEGT",
                          {"glag", "glsg", "glgt"}));
  metric("getAGCCRBRT", {Field::AGCCRBRT},
         selectFromBlocks("DECODE(gccrrv, 0, ' ', ROUND(10 * gccrrt / gccrrv,1)) AS AGCCRBRT",
                          {"gccrrv", "gccrrt"}));
  metric("getAGCCUBRT", {Field::AGCCUBRT},
         selectFromBlocks("DECODE(gccurv, 0, ' ', ROUND(10 * gccurt / gccurv,1)) AS AGCCUBRT",
                          {"gccurv", "gccurt"}));
  metric("getAGCCRBBT", {Field::AGCCRBBT},
         selectFromBlocks("DECODE(gccrsv, 0, ' ', ROUND(10 * gccrbt / gccrsv,1)) AS AGCCRBBT",
                          {"gccrsv", "gccrbt"}));
  metric("getAGCCRBST", {Field::AGCCRBST},
         selectFromBlocks("DECODE(gccrsv, 0, ' ', ROUND(10 * gccrst / gccrsv,1)) AS AGCCRBST",
                          {"gccrsv", "gccrst"}));
  metric("getAGCCRBFT", {Field::AGCCRBFT},
         selectFromBlocks("DECODE(gccrfl, 0, ' ', ROUND(10 * gccrft / gccrfl,1)) AS AGCCRBFT",
                          {"gccrfl", "gccrft"}));
  metric("getGCLFFCRBS", {Field::GCLFFCRBS},
         selectFromBlocks("DECODE(gccrsv, 0, ' ', ROUND(100*(gccrfl/gccrsv),1)) AS GCLFFCRBS",
                          {"gccrsv", "gccrfl"}));
  metric("getAGCCUBPT", {Field::AGCCUBPT},
         selectFromBlocks("DECODE(gccusv, 0, ' ', ROUND(10 * gccupt / gccusv,1)) AS AGCCUBPT",
                          {"gccusv", "gccupt"}));
  metric("getAGCCUBST", {Field::AGCCUBST},
         selectFromBlocks("DECODE(gccusv, 0, ' ', ROUND(10 * gccust / gccusv,1)) AS AGCCUBST",
                          {"gccusv", "gccust"}));
  metric("getAGCCUBFT", {Field::AGCCUBFT},
         selectFromBlocks("DECODE(gccufl, 0, ' ', ROUND(10 * gccuft / gccufl,1)) AS AGCCUBFT",
                          {"gccufl", "gccuft"}));
  metric("getGCLFFCUBS", {Field::GCLFFCUBS},
         selectFromBlocks("DECODE(gccusv, 0, ' ', ROUND(100*(gccufl/gccusv),1)) AS GCLFFCUBS",
                          {"gccusv", "gccufl"}));
}

}  // namespace kestrelix

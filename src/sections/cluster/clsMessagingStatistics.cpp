#include "sections/cluster/clsMessagingStatistics.h"

#include "sections/cluster/deltaBlocks.h"

namespace kestrelix {

clsMessagingStatistics::clsMessagingStatistics()
    : MetricSectionObject("clsMessagingStatistics", fieldNames()) {
  metric("getAMSQT", {Field::AMSQT},
         selectFromBlocks("DECODE(msgsq, 0, ' ', ROUND(msgsqt / msgsq,1)) AS AMSQT", {"msgsq", "msgsqt"}));
  metric("getAMSQTOK", {Field::AMSQTOK},
         selectFromBlocks("DECODE(msgsqk, 0, ' ', ROUND(msgsqtk / msgsqk,1)) AS AMSQTOK",
                          {"msgsqk", "msgsqtk"}));
  metric("getAMRQT", {Field::AMRQT},
         selectFromBlocks("DECODE(msgrq, 0, ' ', ROUND(msgrqt / msgrq,1)) AS AMRQT", {"msgrq", "msgrqt"}));
  metric("getAGCMPT", {Field::AGCMPT},
         selectFromBlocks("DECODE(pmrv, 0, ' ', ROUND(pmpt / pmrv,1)) AS AGCMPT", {"pmrv", "pmpt"}));
  metric("getAGEMPT", {Field::AGEMPT},
         selectFromBlocks("DECODE(npmrv, 0, ' ', ROUND(npmpt / npmrv,1)) AS AGEMPT", {"npmrv", "npmpt"}));
  metric("getPODSM", {Field::PODSM},
         selectFromBlocks(
             "DECODE((dmsd + dmsi + dmfc), 0 , ' ', ROUND((100 * dmsd) / (dmsd + dmsi + dmfc),2)) AS PODSM",
             {"dmsd", "dmsi", "dmfc"}));
  metric("getPOISM", {Field::POISM},
         selectFromBlocks(
             "DECODE((dmsd + dmsi + dmfc), 0, ' ', ROUND((100 * dmsi) / (dmsd + dmsi + dmfc),2)) AS POISM",
             {"dmsd", "dmsi", "dmfc"}));
  metric("getPOFCM", {Field::POFCM},
         selectFromBlocks("DECODE((dmsd+dmsi+dmfc), 0, ' ', ROUND(100 * dmfc / (dmsd+dmsi+dmfc),2)) AS POFCM",
                          {"dmsd", "dmsi", "dmfc"}));
}

}  // namespace kestrelix

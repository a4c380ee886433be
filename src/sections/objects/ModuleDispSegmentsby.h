#pragma once

#include "report/SectionEntry.h"
#include "sections/objects/clsSegmentsby.h"

namespace kestrelix {

void gDispSegmentsbyLogicalReads_All(Workspace& workspace, const std::string& version);
void gDispSegmentsbyLogicalReads_Col(Workspace& workspace, const std::string& version,
                                     const ColRequest& request);
void gDispSegmentsbyPhysicalReads_All(Workspace& workspace, const std::string& version);
void gDispSegmentsbyPhysicalReads_Col(Workspace& workspace, const std::string& version,
                                      const ColRequest& request);
void gDispSegmentsbyRowLockWaits_All(Workspace& workspace, const std::string& version);
void gDispSegmentsbyRowLockWaits_Col(Workspace& workspace, const std::string& version,
                                     const ColRequest& request);
void gDispSegmentsbyITLWaits_All(Workspace& workspace, const std::string& version);
void gDispSegmentsbyITLWaits_Col(Workspace& workspace, const std::string& version, const ColRequest& request);
void gDispSegmentsbyBufferBusyWaits_All(Workspace& workspace, const std::string& version);
void gDispSegmentsbyBufferBusyWaits_Col(Workspace& workspace, const std::string& version,
                                        const ColRequest& request);
void gDispSegmentsbyGCBufferBusyWaits_All(Workspace& workspace, const std::string& version);
void gDispSegmentsbyGCBufferBusyWaits_Col(Workspace& workspace, const std::string& version,
                                          const ColRequest& request);
void gDispSegmentsbyCRBlocksReceived_All(Workspace& workspace, const std::string& version);
void gDispSegmentsbyCRBlocksReceived_Col(Workspace& workspace, const std::string& version,
                                         const ColRequest& request);
void gDispSegmentsbyCUBlocksReceived_All(Workspace& workspace, const std::string& version);
void gDispSegmentsbyCUBlocksReceived_Col(Workspace& workspace, const std::string& version,
                                         const ColRequest& request);

}  // namespace kestrelix

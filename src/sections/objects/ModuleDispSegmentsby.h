#pragma once

#include "report/views.h"

namespace kestrelix {

std::vector<ReleaseViews> segmentsbyLogicalReadsViews();
std::vector<ReleaseViews> segmentsbyPhysicalReadsViews();
std::vector<ReleaseViews> segmentsbyRowLockWaitsViews();
std::vector<ReleaseViews> segmentsbyITLWaitsViews();
std::vector<ReleaseViews> segmentsbyBufferBusyWaitsViews();
std::vector<ReleaseViews> segmentsbyGCBufferBusyWaitsViews();
std::vector<ReleaseViews> segmentsbyCRBlocksReceivedViews();
std::vector<ReleaseViews> segmentsbyCUBlocksReceivedViews();

}  // namespace kestrelix

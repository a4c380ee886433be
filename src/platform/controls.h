// The screen's controls without a screen: plain objects with the properties that the windows use.
#pragma once

#include "platform/controls/chart.h"
#include "platform/controls/control.h"
#include "platform/controls/grid.h"
#include "platform/controls/lists.h"
#include "platform/controls/toolbar.h"

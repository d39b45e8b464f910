#pragma once

#include "model/SatweModel.h"

#include <cstdint>

namespace satwecvt {

/// From where to where something reaches.
struct CExtent {
    double from = 0.0;
    double to = 0.0;
};

/// The building at a glance, in the units of the files.
struct COverview {
    std::int64_t stories = 0;
    bool hasNodes = false;  // without nodes there are no extents
    CExtent x;
    CExtent y;
    CExtent z;
};

/// Coordinates that are not finite do not count.
COverview OverviewOf(const CSatweModel& model);

}  // namespace satwecvt

#pragma once

#include "model/SatweModel.h"
#include "satwecvt/ConversionReport.h"

namespace satwecvt {

/// Counts the records that a model holds.
CReadCounts CountRecords(const CSatweModel& model) noexcept;

}  // namespace satwecvt

// The balance of loads of a conversion in memory.
#pragma once

#include "check/LoadBalance.h"
#include "support/Conversion.h"

#include <string>
#include <vector>

namespace satwecvt {

/// The balance of a conversion that was written.
std::vector<CBalanceRow> BalanceOf(const CSatweModel& input, const CConversionResult& conversion);

/// A row as one line: story, case, then the count and the forces of what was read, is in the model and was lost, what
/// was not summed, and the bound.
std::string RowText(const CBalanceRow& row);

/// The rows that do not hold, a line each; empty when all do.
std::string BrokenRows(const std::vector<CBalanceRow>& rows);

}  // namespace satwecvt

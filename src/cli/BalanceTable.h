#pragma once

#include "check/LoadBalance.h"

#include <iosfwd>
#include <vector>

namespace satwecvt {

/// Prints the balance of the loads: vertical forces story by story, then the horizontal ones where there are some.
void PrintBalance(std::ostream& out, const std::vector<CBalanceRow>& rows);

}  // namespace satwecvt

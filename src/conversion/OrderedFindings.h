#pragma once

#include "satwecvt/Finding.h"

#include <vector>

namespace satwecvt {

/// The findings of a conversion and of the look at its model in one list: structure file, load file, model; by line
/// within each. What a dead load is told for under both load cases stands once.
std::vector<CFinding> OrderedFindings(const std::vector<CFinding>& told, const std::vector<CFinding>& doubts);

}  // namespace satwecvt

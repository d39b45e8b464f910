// What a conversion tells, as lines to compare, and a building of one story to tell it of.
#pragma once

#include "satwecvt/Finding.h"
#include "support/CheckedConversion.h"

#include <string>
#include <vector>

namespace satwecvt {

using CLines = std::vector<std::string>;

/// A finding as one line: "structure.sat:36: loss: ... [code]", with the numbers that the sentence does not hold.
std::string Line(const CFinding& finding);

/// All findings of a conversion, in the order in which they were told.
CLines LinesOf(const CAnswer& answer);

/// A building of one story with the key 1 and the number 7, whose member lines begin in line 13. Its nodes 1 to 5 are
/// supports, two on the ground and three at a height of 3.
std::string Building(const std::string& counts, const std::string& members);

/// Such a building with one beam, 4 long, whose key is 8.
std::string BuildingWithBeam();

}  // namespace satwecvt

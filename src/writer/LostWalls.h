#pragma once

#include "model/WallRecord.h"

#include <unordered_set>

namespace satwecvt {

/// The walls that the element block has left out.
using CLostWalls = std::unordered_set<const T_SATWE_STWL_D*>;

}  // namespace satwecvt

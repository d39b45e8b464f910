#pragma once

#include <cstddef>

namespace satwecvt {

/// The size of the largest block that `new` was asked for since this was last set to 0. A program that links
/// LargestAllocation.cpp has all its allocations counted.
std::size_t& LargestAllocation() noexcept;

}  // namespace satwecvt

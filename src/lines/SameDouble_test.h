#pragma once

#include "doubles/BitCast.h"

#include <cmath>
#include <cstdint>

namespace satwecvt {

/// Whether two doubles are the same to the bit; all NaNs are one.
inline bool AreSame(double a, double b)
{
    return (std::isnan(a) && std::isnan(b)) || bit_cast<std::uint64_t>(a) == bit_cast<std::uint64_t>(b);
}

}  // namespace satwecvt

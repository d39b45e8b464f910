#pragma once

#include "check/BoundedForce.h"

#include <cstdint>

namespace satwecvt {

/// Loads and what they amount to.
struct CLineSum {
    CBoundedForce force;
    std::int64_t count = 0;

    void Add(const CBoundedForce& load) noexcept
    {
        force += load;
        ++count;
    }

    /// What lines are more than others: lines that say the same are no difference, however they are rounded.
    CLineSum operator-(const CLineSum& other) const noexcept
    {
        CLineSum more{{}, count - other.count};
        if (!force.IsSame(other.force)) {
            more.force += force;
            more.force += -other.force;
        }
        return more;
    }
};

}  // namespace satwecvt

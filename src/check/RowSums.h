// A row of the balance of loads while it grows.
#pragma once

#include "check/LineSum.h"
#include "check/LoadBalance.h"

#include <cstdint>
#include <optional>

namespace satwecvt {

struct CRowSums {
    CLineSum read;
    CLineSum lost;
    CLineSum model;
    std::int64_t notSummed = 0;
    std::int64_t off = 0;

    /// Adds lines of the model, and holds them against what they should be where that is known. What cannot be summed
    /// makes no statement: its lines count as far as they are numbers.
    void AddLines(const CLineSum& lines, const std::optional<CBoundedForce>& expected);

    bool IsEmpty() const noexcept;

    CBalanceRow Row(std::optional<std::int32_t> story, std::int32_t loadCase) const;
};

}  // namespace satwecvt

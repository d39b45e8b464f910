#pragma once

#include "model/LoadRecord.h"

#include <cstdint>

namespace satwecvt {

/// The two static load cases of every model text file.
enum class ELoadCase : std::int32_t { DeadLoad = 0, LiveLoad = 1 };

/// Whether a load is written under a load case. "DeadLoad" takes the dead loads; "LiveLoad" takes all loads, the dead
/// ones too.
constexpr bool BelongsTo(ELoadCase loadCase, const T_SATWE_STLD_D& load) noexcept
{
    return loadCase == ELoadCase::LiveLoad || load.loadCase == 0;
}

}  // namespace satwecvt

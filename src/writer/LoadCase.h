#pragma once

#include <cstdint>

namespace satwecvt {

/// The two static load cases of every model text file.
enum class ELoadCase : std::int32_t { DeadLoad = 0, LiveLoad = 1 };

/// Whether a load (case 0 dead, else live) is written under a load case. "DeadLoad" takes the dead loads; "LiveLoad"
/// takes all loads, the dead ones too.
constexpr bool BelongsTo(ELoadCase loadCase, std::int32_t caseOfLoad) noexcept
{
    return loadCase == ELoadCase::LiveLoad || caseOfLoad == 0;
}

}  // namespace satwecvt

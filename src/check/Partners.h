// Which earlier element each frame element has a doubt with: the earliest one, so that there are no more findings than
// elements, and each pair is told at its later one.
#pragma once

#include "check/FrameList.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace satwecvt {

class CPartners {
public:
    explicit CPartners(std::size_t frames) : earliest(frames, kNone) {}

    /// Takes in a pair, by positions among the frame elements.
    void Add(std::uint32_t a, std::uint32_t b)
    {
        std::uint32_t& partner = earliest[std::max(a, b)];
        partner = std::min({partner, a, b});
    }

    /// The earliest partner of an element; `kNone` without one.
    std::uint32_t Of(std::uint32_t frame) const noexcept { return earliest[frame]; }

    void Tell(EFinding code, const CSatweModel& model, const CFrameList& frames, CFindingListener& listener) const;

private:
    std::vector<std::uint32_t> earliest;
};

}  // namespace satwecvt

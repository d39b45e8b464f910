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
    explicit CPartners(std::size_t frames) : frameCount(frames) {}

    /// Takes in a pair, by positions among the frame elements.
    void Add(std::uint32_t a, std::uint32_t b)
    {
        if (earliest.empty()) {
            earliest.assign(frameCount, kNone);
        }
        std::uint32_t& partner = earliest[std::max(a, b)];
        partner = std::min({partner, a, b});
    }

    /// The earliest partner of an element; `kNone` without one.
    std::uint32_t Of(std::uint32_t frame) const noexcept { return earliest.empty() ? kNone : earliest[frame]; }

    void Tell(EFinding code, const CSatweModel& model, const CFrameList& frames, CFindingListener& listener) const;

private:
    std::size_t frameCount;
    std::vector<std::uint32_t> earliest;  // by frame element; none before the first pair, as in most buildings
};

}  // namespace satwecvt

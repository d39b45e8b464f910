// What hangs together: elements that share a node number, directly or over others.
#pragma once

#include "check/FrameList.h"
#include "check/PlanarElements.h"
#include "satwecvt/Finding.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace satwecvt {

class CHangingParts {
public:
    /// Takes in all elements.
    CHangingParts(const CFrameList& frames, const CPlanarElements& planarElements);

    /// Whether an element names the node at a position.
    bool IsUsed(std::size_t position) const noexcept { return isUsed[position] != 0; }

    /// The part of a node, as the lowest position in it.
    std::uint32_t PartOf(std::uint32_t position) const noexcept { return towards[position]; }

private:
    void Join(std::uint32_t a, std::uint32_t b) noexcept;

    std::vector<std::uint32_t> towards;  // a lower position in the same part; of the lowest one the position itself
    std::vector<char> isUsed;
};

/// Tells every part from which no way leads to a support, at its element with the lowest number.
void TellUnsupportedParts(const CSatweModel& model, const CNodeList& nodes, const CFrameList& frames,
                          const CPlanarElements& planarElements, const CHangingParts& parts,
                          CFindingListener& listener);

}  // namespace satwecvt

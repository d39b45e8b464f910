// The nodes of a model as elements find them: by number, over the model level and all stories.
#pragma once

#include "model/SatweModel.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace satwecvt {

/// The levels of a model: 0 is that of the model-level nodes, and s + 1 that of the story at position s.
inline constexpr std::uint32_t kModelLevel = 0;

/// No node, or no frame element.
inline constexpr std::uint32_t kNone = 0xFFFFFFFF;

struct CListedNode {
    const T_SATWE_STND_D* record;
    std::uint32_t level;
};

/// A node whose number a later one has.
struct CReplacedNode {
    CListedNode node;
    const T_SATWE_STND_D* later;  // the one that counts
};

/// Nodes stand at positions counted from 0, in ascending order of their numbers. Of several with one number the one
/// that is written last has the position.
class CNodeList {
public:
    /// The model has to outlive the list, and to stay as it is.
    explicit CNodeList(const CSatweModel& model);

    std::size_t Count() const noexcept { return nodes.size(); }
    const CListedNode& At(std::size_t position) const noexcept { return nodes[position]; }

    /// Those that do not count, in ascending order of their numbers.
    const std::vector<CReplacedNode>& Replaced() const noexcept { return replaced; }

    /// The position of the node with a number, or `kNone`.
    std::uint32_t Find(std::int32_t number) const noexcept
    {
        const std::int64_t offset = std::int64_t{number} - firstNumber;
        if (offset < 0 || offset > span) {
            return kNone;
        }
        return isDense ? (positions.empty() ? static_cast<std::uint32_t>(offset)
                                            : positions[static_cast<std::size_t>(offset)])
                       : Search(number);
    }

private:
    void Add(const CRecordTable<T_SATWE_STND_D>& table, std::uint32_t level);
    void SortByNumber();
    void MakePositions();
    std::uint32_t Search(std::int32_t number) const noexcept;

    std::vector<CListedNode> nodes;
    std::vector<CReplacedNode> replaced;

    std::int64_t firstNumber = 0;
    std::int64_t span = -1;                // the last number less the first
    bool isDense = false;                  // a look-up needs no search
    std::vector<std::uint32_t> positions;  // by number less `firstNumber`; none where all of these are there
};

}  // namespace satwecvt

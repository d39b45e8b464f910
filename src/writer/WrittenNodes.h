#pragma once

#include "model/NodeRecord.h"
#include "model/RecordTable.h"

#include <cstddef>
#include <cstdint>

namespace satwecvt {

/// The nodes that the node block has written, by their number: where elements and loads find their coordinates. The
/// records stay in the model; of several nodes with one number the one written last counts.
class CWrittenNodes {
public:
    void Reserve(std::size_t count) { nodes.Reserve(count); }
    void Add(const T_SATWE_STND_D& node) { nodes.Insert(node.number, &node); }

    /// Has to run after the last `Add` and before the first `Find`.
    void Complete() { nodes.SortByKey(); }

    /// The node with a number, or null when none was written.
    const T_SATWE_STND_D* Find(std::int32_t number) const noexcept
    {
        const T_SATWE_STND_D* const* node = nodes.Find(number);
        return node != nullptr ? *node : nullptr;
    }

private:
    CRecordTable<const T_SATWE_STND_D*> nodes;
};

}  // namespace satwecvt

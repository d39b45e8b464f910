// The frame elements of a model as they are written: beams, columns and braces, a split column as two.
#pragma once

#include "check/NodeList.h"
#include "satwecvt/Finding.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace satwecvt {

/// Which element of the model this is, and which record of which story it comes from.
struct CElementName {
    EObject kind;
    std::uint32_t level;
    std::uint32_t record;  // position in the story's table
    std::int32_t element;  // element number
};

/// Whether two elements come from one record, as the triangles of a slab do.
inline bool AreOfOneRecord(const CElementName& a, const CElementName& b)
{
    return a.kind == b.kind && a.level == b.level && a.record == b.record;
}

struct CFrame {
    std::uint32_t nodeI;  // position: that of a node, or behind all of them that of a number that no node has
    std::uint32_t nodeJ;
    CElementName name;
};

/// Elements stand in ascending order of their numbers.
class CFrameList {
public:
    /// The list of nodes belongs to the model and has to outlive this one.
    CFrameList(const CSatweModel& model, const CNodeList& nodeList);

    const std::vector<CFrame>& Frames() const noexcept { return frames; }

    /// How many positions there are: those of the nodes, and behind them one for each number that is named and that no
    /// node has. So elements can hang together by a node that is not there.
    std::size_t Positions() const noexcept { return nodes.Count() + missingNumbers.size(); }

    bool IsMissing(std::uint32_t position) const noexcept { return position >= nodes.Count(); }

    std::int32_t NumberAt(std::uint32_t position) const noexcept
    {
        return IsMissing(position) ? missingNumbers[position - nodes.Count()] : nodes.At(position).record->number;
    }

private:
    /// An end whose node is not there: the frame at `end` / 2, end i where it is even.
    struct CMissingEnd {
        std::int32_t number;
        std::size_t end;
    };

    void AddStory(const T_SATWE_STIF_D& story, std::uint32_t level);
    void Add(const CElementName& name, std::int32_t numberI, std::int32_t numberJ);
    std::uint32_t FindEnd(std::int32_t number, std::size_t end);
    void PlaceMissingEnds();
    void SortByElement();

    const CNodeList& nodes;
    std::vector<CFrame> frames;
    std::vector<CMissingEnd> missingEnds;
    std::vector<std::int32_t> missingNumbers;  // in ascending order
};

}  // namespace satwecvt

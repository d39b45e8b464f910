#include "check/LoadedElements.h"

#include "model/Int32.h"

#include <cmath>
#include <cstddef>

namespace satwecvt {

namespace {

CPoint PlaceOf(const CNode& node)
{
    return {Printed(node.x), Printed(node.y), Printed(node.z)};
}

/// Lines are positive upward, forces downward.
CBoundedForce FromUpward(const CBounded& upward)
{
    return {{}, {}, -upward};
}

/// How many pairs there are in front of the fillers, which are 0, 0. A distributed load has two of its own.
std::size_t PairsOf(const CBeamLoad& line)
{
    std::size_t count = line.pairs.size();
    while (count > 2 && line.pairs[count - 1].place == 0.0 && line.pairs[count - 1].value == 0.0) {
        --count;
    }
    return count;
}

/// A place and half of the value there, as they are printed; two halves are in the range of doubles. A place is a
/// quotient, which may be too small for a double.
struct CPrintedPair {
    explicit CPrintedPair(const CPlacedValue& pair) : place(Printed(pair.place)), half(Half(Printed(pair.value)))
    {
        place.bound += bounded::kUnderflow;
    }

    CBounded place;
    CBounded half;
};

/// What a distributed load amounts to over a length of 1.
CBounded MeanValue(const CBeamLoad& line)
{
    CBounded sum;
    const std::size_t count = PairsOf(line);
    CPrintedPair from(line.pairs[0]);
    for (std::size_t i = 1; i < count; ++i) {
        const CPrintedPair to(line.pairs[i]);
        sum = sum + (from.half + to.half) * (to.place - from.place);
        from = to;
    }
    return sum;
}

}  // namespace

CLoadedElements::CLoadedElements(const CModelFile& modelFile) : nodes(modelFile)
{
    frames.Reserve(modelFile.frameElements.size());
    for (const CFrameElement& frame : modelFile.frameElements) {
        frames.Add(frame);
    }
    frames.Sort();
    for (const CPlanarElement& element : modelFile.planarElements) {
        if (element.type == EPlanarElement::Wall) {
            walls.Add(element);
        }
    }
    walls.Sort();
}

const CFrameElement* CLoadedElements::Find(const CBeamLoad& line, const T_SATWE_STBM_D& beam)
{
    return frames.Find({line.element, WrappedAbs(beam.nodeI), WrappedAbs(beam.nodeJ)});
}

const CPlanarElement* CLoadedElements::Find(const CEdgeLoad& line, const T_SATWE_STWL_D& wall)
{
    const CNodeRow& a = wall.firstListA;
    const CNodeRow& b = wall.firstListB;
    return walls.Find({line.element, b.first, b.last, a.last, a.first});
}

/// Without both nodes there is no length.
CBounded CLoadedElements::LengthBetween(std::int32_t first, std::int32_t last)
{
    const CNode* const a = nodes.Find(first);
    const CNode* const b = nodes.Find(last);
    if (a == nullptr || b == nullptr) {
        return {};
    }
    if (a != lastFirst || b != lastLast) {
        lastFirst = a;
        lastLast = b;
        lastLength = Distance(PlaceOf(*a), PlaceOf(*b));
    }
    return lastLength;
}

CBoundedForce CLoadedElements::ForceOf(const CNodalLoad& line) const
{
    return {Printed(line.fx), Printed(line.fy), -Printed(line.fz)};
}

CBoundedForce CLoadedElements::ForceOf(const CBeamLoad& line, const CFrameElement* beam)
{
    if (beam == nullptr) {
        return {};
    }
    if (line.type == EBeamLoad::Concentrated) {
        return FromUpward(Printed(line.pairs[0].value));
    }
    const CBounded mean = MeanValue(line);
    const CBounded length = LengthBetween(beam->nodeI, beam->nodeJ);
    // Places on a beam without a length are no numbers, and nothing is spread over it.
    const bool mayBeNone = length.value <= length.bound;
    return mayBeNone && !std::isfinite(mean.value) ? CBoundedForce() : FromUpward(mean * length);
}

CBoundedForce CLoadedElements::ForceOf(const CEdgeLoad& line, const CPlanarElement* wall)
{
    return wall == nullptr ? CBoundedForce()
                           : FromUpward(Printed(line.value) * LengthBetween(wall->nodes[2], wall->nodes[3]));
}

}  // namespace satwecvt

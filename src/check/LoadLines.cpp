#include "check/LoadLines.h"

namespace satwecvt {

namespace {

std::int32_t NumberOf(const CNodalLoad& line)
{
    return line.node;
}

std::int32_t NumberOf(const CBeamLoad& line)
{
    return line.element;
}

std::int32_t NumberOf(const CEdgeLoad& line)
{
    return line.element;
}

}  // namespace

/// The next line if it names this number, else null. A line in front of it that does not is left over.
template <class Line>
const Line* CLoadLines::Next(const std::vector<Line>& lines, std::size_t& next, std::int32_t number)
{
    const auto isNamed = [&](std::size_t at) { return at < lines.size() && NumberOf(lines[at]) == number; };
    if (!isNamed(next)) {
        if (!isNamed(next + 1)) {
            return nullptr;
        }
        LeaveOver(lines[next]);
        ++next;
    }
    return &lines[next++];
}

void CLoadLines::AddNodal(std::int32_t node, CLineSum& sum)
{
    if (const CNodalLoad* line = Next(loadCase.nodalLoads, nextNodal, node)) {
        sum.Add(elements.ForceOf(*line));
    }
}

CLineSum CLoadLines::Take(const T_SATWE_STLD_D& load, const CLoadedObject& object)
{
    CLineSum sum;
    if (load.loadType == ELoadType::NodeForceMoments || load.loadType == ELoadType::NodeForces) {
        AddNodal(load.memberId, sum);
    } else if (load.loadType == ELoadType::WallForce && object.wall != nullptr) {
        AddNodal(object.wall->firstListA.first, sum);
        AddNodal(object.wall->firstListA.last, sum);
    } else if (object.wall != nullptr) {
        if (const CEdgeLoad* line = Next(loadCase.edgeLoads, nextEdge, object.wall->seq)) {
            sum.Add(elements.ForceOf(*line, elements.Find(*line, *object.wall)));
        }
    } else if (object.beam != nullptr) {
        if (const CBeamLoad* line = Next(loadCase.beamLoads, nextBeam, object.beam->seq)) {
            sum.Add(elements.ForceOf(*line, elements.Find(*line, *object.beam)));
        }
    }
    return sum;
}

CLineSum CLoadLines::TakeRest()
{
    for (; nextNodal < loadCase.nodalLoads.size(); ++nextNodal) {
        LeaveOver(loadCase.nodalLoads[nextNodal]);
    }
    for (; nextBeam < loadCase.beamLoads.size(); ++nextBeam) {
        LeaveOver(loadCase.beamLoads[nextBeam]);
    }
    for (; nextEdge < loadCase.edgeLoads.size(); ++nextEdge) {
        LeaveOver(loadCase.edgeLoads[nextEdge]);
    }
    return leftOver;
}

}  // namespace satwecvt

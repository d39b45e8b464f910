#include "check/ModelLook.h"

#include "check/BeamCrossings.h"
#include "check/CoincidentNodes.h"
#include "check/FrameList.h"
#include "check/FramePairs.h"
#include "check/HangingParts.h"
#include "check/LookFinding.h"
#include "check/NodeGrid.h"
#include "check/NodeList.h"
#include "check/NodesOnFrames.h"
#include "check/Partners.h"
#include "check/Places.h"
#include "check/PlanarElements.h"
#include "check/PlanarPairs.h"
#include "check/RecordChecks.h"
#include "check/SectionChecks.h"
#include "check/TestBudget.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace satwecvt {

namespace {

void TellZeroLengths(const CSatweModel& model, const CFrameList& frames, const std::vector<CVector>& places,
                     CFindingListener& listener)
{
    for (const auto& [nodeI, nodeJ, name] : frames.Frames()) {
        if (nodeI == nodeJ || IsOnePlace(places[nodeI], places[nodeJ])) {
            listener.Tell(ElementFinding(EFinding::ZeroLength, model, name));
        }
    }
}

/// Whether two neighbouring corners of a wall, or of a triangle, are at one place.
bool HasEdgeWithoutLength(const CPlanar& element, const std::vector<CVector>& places)
{
    const std::size_t corners = element.name.kind == EObject::Wall ? 4 : 3;
    for (std::size_t corner = 0; corner < corners; ++corner) {
        const std::uint32_t node = element.nodes[corner];
        const std::uint32_t next = element.nodes[(corner + 1) % corners];
        if (node == next || IsOnePlace(places[node], places[next])) {
            return true;
        }
    }
    return false;
}

/// Of a slab its first such triangle.
void TellEdgesWithoutLength(const CSatweModel& model, const CPlanarElements& planarElements,
                            const std::vector<CVector>& places, CFindingListener& listener)
{
    const CPlanar* told = nullptr;
    for (const CPlanar& element : planarElements.Elements()) {
        const bool isTold = told != nullptr && AreOfOneRecord(told->name, element.name);
        if (!isTold && HasEdgeWithoutLength(element, places)) {
            told = &element;
            listener.Tell(ElementFinding(EFinding::ZeroLength, model, element.name));
        }
    }
}

void TellNodesOnBeams(const CSatweModel& model, const CFrameList& frames, const std::vector<CNodeOnBeam>& nodesOnBeams,
                      CFindingListener& listener)
{
    for (const auto& [frame, node] : nodesOnBeams) {
        CFinding finding = ElementFinding(EFinding::NodeOnMember, model, frames.Frames()[frame].name);
        finding.values[0] = frames.NumberAt(node);
        listener.Tell(finding);
    }
}

/// What lies where it should not.
void LookAtGeometry(const CSatweModel& model, const CNodeList& nodes, const CFrameList& frames,
                    const CPlanarElements& planarElements, const CHangingParts& parts, CFindingListener& listener)
{
    const std::vector<CVector> places = PlacesOf(nodes, frames, parts);
    const CNodeGrid grid(frames, places);
    CTestBudget budget(model);
    CPartners sameNodes(frames.Frames().size());
    CPartners crossings(frames.Frames().size());
    CPartners overlaps(frames.Frames().size());

    const std::vector<std::uint32_t> firstAtPlace = FirstAtPlace(nodes, frames, grid, budget);
    FindFramePairs(frames, places, firstAtPlace, sameNodes, overlaps);
    budget.Renew();
    const std::vector<CNodeOnBeam> nodesOnBeams = FindNodesOnFrames(nodes, frames, places, grid, budget, overlaps);
    budget.Renew();
    FindBeamCrossings(model, frames, places, budget, crossings);

    TellZeroLengths(model, frames, places, listener);
    TellEdgesWithoutLength(model, planarElements, places, listener);
    sameNodes.Tell(EFinding::SameNodes, model, frames, listener);
    TellPlanarPairs(model, planarElements, listener);
    TellCoincidentNodes(model, nodes, firstAtPlace, listener);
    TellNodesOnBeams(model, frames, nodesOnBeams, listener);
    crossings.Tell(EFinding::BeamsCross, model, frames, listener);
    overlaps.Tell(EFinding::MembersOverlap, model, frames, listener);
    budget.TellSpent(model, listener);
}

}  // namespace

void LookAtModel(const CSatweModel& model, CFindingListener& listener)
{
    const CNodeList nodes(model);
    const CFrameList frames(model, nodes);
    const CPlanarElements planarElements(model, nodes);
    const CHangingParts parts(frames, planarElements);

    TellStoryKeys(model, listener);
    TellReplacedNodes(model, nodes, listener);
    TellMissingNodes(model, frames, listener);
    TellUnusedNodes(model, nodes, parts, listener);
    TellReplacedSections(model, listener);
    TellSections(model, listener);
    TellGrades(model, listener);
    TellThicknesses(model, listener);
    LookAtGeometry(model, nodes, frames, planarElements, parts, listener);
    TellUnsupportedParts(model, nodes, frames, planarElements, parts, listener);
}

}  // namespace satwecvt

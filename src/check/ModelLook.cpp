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
    sameNodes.Tell(EFinding::SameNodes, model, frames, listener);
    TellPlanarPairs(model, nodes, planarElements, listener);
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

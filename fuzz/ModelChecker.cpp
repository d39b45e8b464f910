// The nodes, the elements, and what stands at their ends.
#include "ModelChecker.h"

#include "Finding.h"
#include "PrintedNumbers.h"
#include "modelfile/ModelFileError.h"
#include "modelfile/ModelReader.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <string>

namespace satwecvt {

namespace {

CModelFile ReadOrFail(std::string_view text)
{
    try {
        return ReadModelFile(text);
    } catch (const CModelFileError& error) {
        Fail(error.what());
    }
}

/// The absolute value of a node number; that of the lowest integer wraps to itself.
bool IsAbsolute(std::int32_t number)
{
    return number >= 0 || number == std::numeric_limits<std::int32_t>::min();
}

/// How far two printed numbers may be apart whose originals differ by 1e-6 at most: six digits were kept of each.
double Tolerance(double a, double b)
{
    return 1e-6 + 1e-5 * (std::abs(a) + std::abs(b));
}

bool IsNear(double a, double b)
{
    return !std::isfinite(a) || !std::isfinite(b) || std::abs(a - b) <= Tolerance(a, b);
}

bool IsAbove(const CNode& a, const CNode& b)
{
    return IsNear(a.x, b.x) && IsNear(a.y, b.y);
}

}  // namespace

void CModelChecker::Check()
{
    model = ReadOrFail(text);
    CheckPrintedNumbers(text);
    CheckNodes();
    CheckElements();
    CheckMaterials();
    CheckSections();
    CheckThicknesses();
    CheckFrameProperties();
    CheckPlanarProperties();
    CheckSupports();
    CheckReleases();
    CheckOffsets();
    CheckLoads();
    Count();
}

/// A building without model-level nodes cannot be read, so the block is always there.
void CModelChecker::CheckNodes()
{
    Expect(!model.nodes.empty(), "there are no nodes");
    for (const CNode& node : model.nodes) {
        nodeOfNumber[node.number] = node;
    }
}

void CModelChecker::CheckElements()
{
    for (const CFrameElement& beam : model.frameElements) {
        Expect(IsAbsolute(beam.nodeI) && IsAbsolute(beam.nodeJ), "a beam has a negative node");
    }
    for (const CPlanarElement& planar : model.planarElements) {
        if (planar.type == EPlanarElement::Wall) {
            CheckWall(planar);
            ++found.walls;
        } else {
            std::for_each_n(planar.nodes.begin(), 3, [this](std::int32_t node) { WrittenNode(node); });
            ++found.plates;
        }
    }
}

const CNode& CModelChecker::WrittenNode(std::int32_t number) const
{
    const auto node = nodeOfNumber.find(number);
    if (node == nodeOfNumber.end()) {
        Fail("an element names node " + std::to_string(number) + ", which is not written");
    }
    return node->second;
}

/// The nodes stand lower left, lower right, upper right, upper left: the upper above the lower ones.
void CModelChecker::CheckWall(const CPlanarElement& wall) const
{
    const CNode corners[] = {WrittenNode(wall.nodes[0]), WrittenNode(wall.nodes[1]), WrittenNode(wall.nodes[2]),
                             WrittenNode(wall.nodes[3])};
    Expect(IsAbove(corners[0], corners[3]), "the wall's first end leans");
    Expect(IsAbove(corners[1], corners[2]), "the wall's other end leans");
}

/// The model-level nodes come first in the node block, and every one of them is a support.
void CModelChecker::CheckSupports() const
{
    Expect(!model.supports.empty() && model.supports.size() <= model.nodes.size(),
           "the supports are too few or too many");
    for (std::size_t i = 0; i < model.supports.size(); ++i) {
        if (model.supports[i].node != model.nodes[i].number) {
            Fail("a support of node " + std::to_string(model.supports[i].node) + " stands where that of node " +
                 std::to_string(model.nodes[i].number) + " should");
        }
    }
}

/// Hinges at end i, at end j, or at both: one without a hinge has no lines.
void CModelChecker::CheckReleases() const
{
    std::vector<std::int32_t> released;
    for (const CRelease& release : model.releases) {
        Expect(release.isHingeAtI || release.isHingeAtJ, "a release has no hinge");
        released.push_back(release.element);
    }
    ExpectInOrderOfBeams(released);
}

void CModelChecker::CheckOffsets() const
{
    std::vector<std::int32_t> shifted;
    for (const COffset& offset : model.offsets) {
        shifted.push_back(offset.element);
    }
    ExpectInOrderOfBeams(shifted);
}

/// What belongs to beams is collected while they are written: one of each kind at most, in their order.
void CModelChecker::ExpectInOrderOfBeams(const std::vector<std::int32_t>& elements) const
{
    std::size_t matched = 0;
    for (const CFrameElement& beam : model.frameElements) {
        matched += matched < elements.size() && elements[matched] == beam.number ? 1U : 0U;
    }
    if (matched < elements.size()) {
        Fail("element " + std::to_string(elements[matched]) + " is no beam, or not in the beams' order");
    }
}

void CModelChecker::Count()
{
    found.nodes = std::ssize(model.nodes);
    found.beams = std::ssize(model.frameElements);
    found.materials = std::ssize(model.materials);
    found.thicknesses = std::ssize(model.thicknesses);
    found.supports = std::ssize(model.supports);
    found.releases = std::ssize(model.releases);
    found.offsets = std::ssize(model.offsets);
    for (const CLoadCase& loadCase : model.loadCases) {
        found.nodalLoads += std::ssize(loadCase.nodalLoads);
        found.beamLoads += std::ssize(loadCase.beamLoads);
        found.pressureLoads += std::ssize(loadCase.edgeLoads);
    }
}

}  // namespace satwecvt

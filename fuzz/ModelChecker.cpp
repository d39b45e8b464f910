// The frame, the nodes, the elements and what stands at their ends.
#include "ModelChecker.h"

#include "Finding.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <string>

namespace satwecvt {

namespace {

std::int32_t Integer(double value)
{
    return static_cast<std::int32_t>(value);
}

/// The absolute value of a node number; that of the lowest integer wraps to itself.
bool IsAbsolute(double number)
{
    return number >= 0 || number == std::numeric_limits<std::int32_t>::min();
}

/// How far two printed numbers may be apart whose originals differ by 1e-6 at most: six digits were kept of each.
double Tolerance(double a, double b)
{
    return 1e-6 + 1e-5 * (std::abs(a) + std::abs(b));
}

bool IsAbove(double a, double b)
{
    return !std::isfinite(a) || !std::isfinite(b) || std::abs(a - b) <= Tolerance(a, b);
}

}  // namespace

void CModelChecker::Check()
{
    text.Take("*VERSION");
    text.Take("  5.8.0");
    text.Take("");
    CheckNodes();
    CheckElements();
    CheckMaterials();
    CheckSections();
    CheckThicknesses();
    CheckProperties();
    CheckSupports();
    CheckReleases();
    CheckOffsets();
    CheckLoadCases();
    CheckLoads();
    Expect(text.IsAtEnd(), "something stands behind the loads");
}

/// A building without model-level nodes cannot be read, so the block is always there.
void CModelChecker::CheckNodes()
{
    Expect(text.TakeHeader("*NODE    ; Nodes", 1), "there is no node block");
    while (!text.Peek().empty()) {
        const CLineValues values = text.TakeMatch("  %d, %g, %g, %g");
        nodes.push_back({Integer(values[0]), values[1], values[2]});
        nodeOfNumber[nodes.back().number] = nodes.back();
    }
    text.Take("");
    found.nodes = std::ssize(nodes);
    Expect(!nodes.empty(), "there are no nodes");
}

/// The header stands alone when all elements were skipped.
void CModelChecker::CheckElements()
{
    if (text.TakeHeader("*ELEMENT    ; Elements", 4)) {
        for (const std::string_view line : text.TakeLines()) {
            CheckElement(line);
        }
    }
    found.beams = std::ssize(beams);
}

void CModelChecker::CheckElement(std::string_view line)
{
    if (const auto beam = MatchLine(line, "  %d, BEAM, %d, %d, %d, %d, %g")) {
        const CLineValues& values = *beam;
        Expect(IsAbsolute(values[3]) && IsAbsolute(values[4]), "a beam has a negative node");
        beams.push_back({Integer(values[0]), static_cast<std::size_t>(values[1]), static_cast<std::size_t>(values[2])});
    } else if (const auto wall = MatchLine(line, "  %d, WALL, %d, %d, %d, %d, %d, %d, 1, 1")) {
        CheckWall(*wall);
    } else if (const auto plate = MatchLine(line, "  %d, PLATE, %d, %d, %d, %d, %d, 0, 1")) {
        CheckPlate(*plate);
    } else {
        Fail("no element is '" + Printable(line) + "'");
    }
}

const CModelChecker::CNode& CModelChecker::WrittenNode(double number) const
{
    const auto node = nodeOfNumber.find(Integer(number));
    if (node == nodeOfNumber.end()) {
        Fail("an element names node " + std::to_string(number) + ", which is not written");
    }
    return node->second;
}

/// The nodes stand lower left, lower right, upper right, upper left: the upper above the lower ones.
void CModelChecker::CheckWall(const CLineValues& values)
{
    const CNode corners[] = {WrittenNode(values[3]), WrittenNode(values[4]), WrittenNode(values[5]),
                             WrittenNode(values[6])};
    Expect(IsAbove(corners[0].x, corners[3].x) && IsAbove(corners[0].y, corners[3].y), "the wall's first end leans");
    Expect(IsAbove(corners[1].x, corners[2].x) && IsAbove(corners[1].y, corners[2].y), "the wall's other end leans");
    planes.push_back({Integer(values[0]), static_cast<std::size_t>(values[1]), static_cast<std::size_t>(values[2])});
    ++found.walls;
}

void CModelChecker::CheckPlate(const CLineValues& values)
{
    for (const std::size_t corner : {3U, 4U, 5U}) {
        WrittenNode(values[corner]);
    }
    planes.push_back({Integer(values[0]), static_cast<std::size_t>(values[1]), static_cast<std::size_t>(values[2])});
    ++found.plates;
}

/// The model-level nodes come first in the node block, and every one of them is a support.
void CModelChecker::CheckSupports()
{
    Expect(text.TakeHeader("*CONSTRAINT    ; Supports", 1), "there is no support block");
    const std::vector<std::string_view> lines = text.TakeLines();
    Expect(!lines.empty() && lines.size() <= nodes.size(), "the supports are too few or too many");
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (lines[i] != "  " + std::to_string(nodes[i].number) + ", 111111") {
            Fail("'" + Printable(lines[i]) + "' is not the support of node " + std::to_string(nodes[i].number));
        }
    }
    found.supports = std::ssize(lines);
}

/// Hinges at end i, at end j, or at both: one without a hinge has no lines.
void CModelChecker::CheckReleases()
{
    if (!text.TakeHeader("*FRAME-RLS    ; Beam End Release", 2)) {
        return;
    }
    std::vector<std::int32_t> released;
    const std::vector<std::string_view> lines = text.TakeLines();
    Expect(lines.size() % 2 == 0, "a release has one line");
    for (std::size_t i = 0; i < lines.size(); i += 2) {
        auto first = MatchLine(lines[i], "  %d, 000011, 0, 0, 0, 0, 0, 0");
        const bool isAtI = first.has_value();
        if (!isAtI) {
            first = MatchLine(lines[i], "  %d, 000000, 0, 0, 0, 0, 0, 0");
        }
        const bool isAtJ = lines[i + 1] == "      000011, 0, 0, 0, 0, 0, 0,";
        const bool isFixedAtJ = lines[i + 1] == "      000000, 0, 0, 0, 0, 0, 0,";
        if (!first || (!isAtJ && !(isAtI && isFixedAtJ))) {
            Fail("no release is '" + Printable(lines[i]) + "', '" + Printable(lines[i + 1]) + "'");
        }
        released.push_back(Integer((*first)[0]));
    }
    ExpectInOrderOfBeams(released);
    found.releases = std::ssize(released);
}

void CModelChecker::CheckOffsets()
{
    if (!text.TakeHeader("*OFFSET    ; Beam End Offsets", 2)) {
        return;
    }
    std::vector<std::int32_t> shifted;
    while (!text.Peek().empty()) {
        shifted.push_back(Integer(text.TakeMatch("  %d, GLOBAL, %g, %g, %g, %g, %g, %g,  ")[0]));
    }
    text.Take("");
    Expect(!shifted.empty(), "an offset block is empty");
    ExpectInOrderOfBeams(shifted);
    found.offsets = std::ssize(shifted);
}

/// What belongs to beams is collected while they are written: one of each kind at most, in their order.
void CModelChecker::ExpectInOrderOfBeams(const std::vector<std::int32_t>& elements) const
{
    std::size_t matched = 0;
    for (const CElement& beam : beams) {
        matched += matched < elements.size() && elements[matched] == beam.number ? 1U : 0U;
    }
    if (matched < elements.size()) {
        Fail("element " + std::to_string(elements[matched]) + " is no beam, or not in the beams' order");
    }
}

}  // namespace satwecvt

#include "writer/WallElements.h"

#include "text/WriteLine.h"
#include "writer/PromisedRecords.h"
#include "writer/WriterFindings.h"

#include <algorithm>
#include <optional>
#include <string>

namespace satwecvt {

namespace {

/// A wall in its story.
struct CWallInStory {
    const T_SATWE_STIF_D& story;
    const T_SATWE_STWL_D& wall;
    std::int32_t key;

    CFinding Finding(EFinding code) const
    {
        return MemberFinding(code, story, EObject::Wall, key, wall.line, wall.seq);
    }
};

/// What is wrong with an end of a wall, whose two nodes have to be written and to stand one above the other. Heights
/// are not compared.
std::optional<CFinding> FaultOfEnd(const CWrittenNodes& writtenNodes, const CWallInStory& wall, std::int32_t numberA,
                                   std::int32_t numberB)
{
    const T_SATWE_STND_D* a = writtenNodes.Find(numberA);
    const T_SATWE_STND_D* b = writtenNodes.Find(numberB);
    if (a == nullptr || b == nullptr) {
        CFinding finding = wall.Finding(EFinding::WallCornerMissing);
        finding.values[0] = a == nullptr ? numberA : numberB;
        return finding;
    }
    const auto [dx, dy] = DistanceAtEnd(*a, *b);
    if (dx == 0.0 && dy == 0.0) {
        return std::nullopt;
    }
    CFinding finding = wall.Finding(EFinding::WallNotUpright);
    finding.values = {dx, dy};
    return finding;
}

std::optional<CFinding> FaultOf(const CWrittenNodes& writtenNodes, const CWallInStory& wall)
{
    const CNodeRow& a = wall.wall.firstListA;
    const CNodeRow& b = wall.wall.firstListB;
    std::optional<CFinding> fault = FaultOfEnd(writtenNodes, wall, a.last, b.last);
    return fault ? fault : FaultOfEnd(writtenNodes, wall, a.first, b.first);
}

bool HasOpening(const T_SATWE_STWL_D& wall)
{
    return std::any_of(wall.wallValues.begin() + 2, wall.wallValues.end(), [](double v) { return v != 0.0; });
}

void WriteWall(CElementOutput& output, const CWallInStory& inStory)
{
    const T_SATWE_STWL_D& wall = inStory.wall;
    const std::int32_t thickness = output.tables.FindOrAddThickness(wall.wallValues[1]);
    if (wall.firstCount < 1) {
        throw CInvalidArgument({ESource::StructureFile, wall.line},
                               "wall " + std::to_string(inStory.key) + " of story " +
                                   std::to_string(inStory.story.key) + " has no nodes in its rows");
    }
    if (const auto fault = FaultOf(output.writtenNodes, inStory)) {
        output.lostWalls.insert(&wall);
        output.findings.Tell(*fault);
        return;
    }
    const std::int32_t material =
        output.tables.FindOrAddMaterial(EMaterialType::Concrete, inStory.story.WallGrade(), 0);
    const CNodeRow& a = wall.firstListA;
    const CNodeRow& b = wall.firstListB;
    WriteLine(output.modelFile, "  %d, WALL, %d, %d, %d, %d, %d, %d, 1, %d\n", wall.seq, material, thickness, b.first,
              b.last, a.last, a.first, output.elementsWritten);
    ++output.counts.walls;
    if (HasOpening(wall)) {
        output.findings.Tell(inStory.Finding(EFinding::WallOpening));
    }
}

}  // namespace

void WriteWalls(CElementOutput& output, const T_SATWE_STIF_D& story)
{
    const CPromisedRecords walls(story.walls, EObject::Wall, &story);
    for (std::int32_t i = 0; i < story.wallCount; ++i) {
        const T_SATWE_STWL_D& wall = walls[i];
        WriteWall(output, {story, wall, walls.KeyAt(i)});
    }
}

}  // namespace satwecvt

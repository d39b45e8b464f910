#include "writer/WallElements.h"

#include "model/Int32.h"
#include "writer/WriteLine.h"

#include <algorithm>
#include <cmath>

namespace satwecvt {

namespace {

constexpr double kPlanTolerance = 1e-6;  // in the unit of the coordinates

/// Whether the two nodes of a wall's end were written and stand one above the other. Heights are not compared.
bool IsVertical(const CWrittenNodes& writtenNodes, std::int32_t numberA, std::int32_t numberB)
{
    const T_SATWE_STND_D* a = writtenNodes.Find(numberA);
    const T_SATWE_STND_D* b = writtenNodes.Find(numberB);
    if (a == nullptr || b == nullptr) {
        return false;
    }
    return !(std::abs(a->x - b->x) > kPlanTolerance) && !(std::abs(a->y - b->y) > kPlanTolerance);
}

bool HasOpening(const T_SATWE_STWL_D& wall)
{
    return std::any_of(wall.wallValues.begin() + 2, wall.wallValues.end(), [](double v) { return v != 0.0; });
}

}  // namespace

void WriteWalls(CElementOutput& output, const T_SATWE_STIF_D& story)
{
    const std::int32_t grade = TruncateToInt32(story.storyValues[3]);
    for (std::int32_t i = 0; i < story.wallCount; ++i) {
        const T_SATWE_STWL_D& wall = story.walls.At(i);
        const std::int32_t key = story.walls.KeyAt(i);
        const std::int32_t thickness = output.model.FindOrAddThickness(wall.wallValues[1]);
        if (wall.firstCount < 1) {
            throw CInvalidArgument("a wall without nodes");
        }
        const CNodeRow& a = wall.firstListA;
        const CNodeRow& b = wall.firstListB;
        if (!IsVertical(output.writtenNodes, a.last, b.last) || !IsVertical(output.writtenNodes, a.first, b.first)) {
            WriteLine(output.messageFile, "The wall(story id:%d,wall id:%d) has invalid shape\n", story.storyNo, key);
            ++output.counts.warnings;
            continue;
        }
        const std::int32_t material = output.model.FindOrAddMaterial(T_SATWE_MATL_D::kConcrete, grade, 0);
        WriteLine(output.modelFile, "  %d, WALL, %d, %d, %d, %d, %d, %d, 1, %d\n", wall.seq, material, thickness,
                  b.first, b.last, a.last, a.first, output.elementsWritten);
        ++output.counts.walls;
        if (HasOpening(wall)) {
            WriteLine(output.messageFile, "Opening of the wall(story id:%d,wall id:%d) is not converted\n",
                      story.storyNo, key);
            ++output.counts.warnings;
        }
    }
}

}  // namespace satwecvt

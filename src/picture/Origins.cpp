#include "picture/Origins.h"

#include "model/Int32.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>

namespace satwecvt {

namespace {

bool IsMadeOf(const CNode& node, std::int32_t number)
{
    return node.number == number;
}

/// A frame element between two nodes.
struct CFrameForm {
    std::int32_t number;
    std::int32_t nodeI;
    std::int32_t nodeJ;
};

bool IsMadeOf(const CFrameElement& element, const CFrameForm& form)
{
    return element.number == form.number && element.nodeI == WrappedAbs(form.nodeI) &&
           element.nodeJ == WrappedAbs(form.nodeJ);
}

/// A wall or a triangle.
struct CPlanarForm {
    EPlanarElement type;
    std::int32_t number;
    std::array<std::int32_t, 4> nodes;
};

bool IsMadeOf(const CPlanarElement& element, const CPlanarForm& form)
{
    return element.type == form.type && element.number == form.number && element.nodes == form.nodes;
}

/// Hands out what a model has, in its order, to the records that it was made of.
template <class Element>
class CHandedOut {
public:
    explicit CHandedOut(const std::vector<Element>& modelElements)
        : elements(modelElements),
          origins(modelElements.size())
    {}

    /// The next element has this origin if it is like the form.
    template <class Form>
    void Give(const Form& form, const COrigin& origin)
    {
        if (next < elements.size() && IsMadeOf(elements[next], form)) {
            origins[next++] = origin;
        }
    }

    std::vector<COrigin> Take() { return std::move(origins); }

private:
    const std::vector<Element>& elements;
    std::vector<COrigin> origins;
    std::size_t next = 0;
};

/// Calls `visit` with each record that the count of a table announces, and the origin that it is.
template <class Record, class Visit>
void VisitRecords(const CRecordTable<Record>& table, std::int32_t count, EObject object, std::int32_t story,
                  Visit visit)
{
    const auto announced = static_cast<std::size_t>(std::max(count, 0));
    for (std::size_t i = 0; i < std::min(announced, table.Count()); ++i) {
        visit(table.At(i), COrigin{object, story, table.KeyAt(i), table.At(i).line});
    }
}

void GiveFrames(const T_SATWE_STIF_D& story, std::int32_t index, CHandedOut<CFrameElement>& frames)
{
    const auto give = [&](const auto& record, const COrigin& origin) {
        frames.Give(CFrameForm{record.seq, record.nodeI, record.nodeJ}, origin);
    };
    VisitRecords(story.beams, story.beamCount, EObject::Beam, index, give);
    VisitRecords(story.columns, story.columnCount, EObject::Column, index,
                 [&](const T_SATWE_STCL_D& column, const COrigin& origin) {
                     if (column.hasExtra == 0) {
                         give(column, origin);
                         return;
                     }
                     const std::int32_t upper = WrappedSum(column.seq, 1);
                     frames.Give(CFrameForm{column.seq, column.nodeI, column.extraValue}, origin);
                     frames.Give(CFrameForm{upper, column.extraValue, column.nodeJ}, origin);
                 });
    VisitRecords(story.braces, story.braceCount, EObject::Brace, index, give);
}

void GiveTriangles(const T_SATWE_STIF_D& story, const T_SATWE_STPL_D& plate, const COrigin& origin,
                   CHandedOut<CPlanarElement>& planars)
{
    const std::int32_t corners = std::min(plate.vertexCount, plate.storedVertices);
    const std::int32_t* const outline = story.plateVertices.data() + plate.firstVertex;
    for (std::int32_t t = 1; t + 1 < corners; ++t) {
        planars.Give(
            CPlanarForm{
                EPlanarElement::Plate, WrappedSum(plate.seq, t - 1), {outline[0], outline[t], outline[t + 1], 0}},
            origin);
    }
}

void GivePlanars(const T_SATWE_STIF_D& story, std::int32_t index, CHandedOut<CPlanarElement>& planars)
{
    VisitRecords(
        story.walls, story.wallCount, EObject::Wall, index, [&](const T_SATWE_STWL_D& wall, const COrigin& origin) {
            const CNodeRow& upper = wall.firstListA;
            const CNodeRow& lower = wall.firstListB;
            planars.Give(
                CPlanarForm{EPlanarElement::Wall, wall.seq, {lower.first, lower.last, upper.last, upper.first}},
                origin);
        });
    VisitRecords(
        story.plates, story.plateCount, EObject::Plate, index,
        [&](const T_SATWE_STPL_D& plate, const COrigin& origin) { GiveTriangles(story, plate, origin, planars); });
}

}  // namespace

std::span<const T_SATWE_STIF_D> WrittenStories(const CSatweModel& input)
{
    const auto announced = static_cast<std::size_t>(std::max(input.storyCount, 0));
    return input.stories.Records().first(std::min(announced, input.stories.Count()));
}

std::vector<COrigin> NodeOrigins(const CSatweModel& input, const CModelFile& model)
{
    CHandedOut<CNode> nodes(model.nodes);
    const auto give = [&](const T_SATWE_STND_D& node, const COrigin& origin) { nodes.Give(node.number, origin); };
    VisitRecords(input.nodes, input.nodeCount, EObject::Node, kNoStory, give);
    std::int32_t index = 0;
    for (const T_SATWE_STIF_D& story : WrittenStories(input)) {
        VisitRecords(story.nodes, story.nodeCount, EObject::Node, index++, give);
    }
    return nodes.Take();
}

CElementOrigins ElementOrigins(const CSatweModel& input, const CModelFile& model)
{
    CHandedOut<CFrameElement> frames(model.frameElements);
    CHandedOut<CPlanarElement> planars(model.planarElements);
    std::int32_t index = 0;
    for (const T_SATWE_STIF_D& story : WrittenStories(input)) {
        GiveFrames(story, index, frames);
        GivePlanars(story, index, planars);
        ++index;
    }
    return {frames.Take(), planars.Take()};
}

}  // namespace satwecvt

#include "picture/PictureParts.h"
#include "picture/RecordColumns.h"

#include <cstdint>
#include <string>
#include <vector>

namespace satwecvt {

namespace {

void AddOrigins(CColumnBytes& columns, const std::string& record, const std::vector<COrigin>& origins)
{
    AddColumn(columns, record + ".story", origins, [](const COrigin& origin) { return origin.story; });
    AddColumn(columns, record + ".key", origins, [](const COrigin& origin) { return origin.key; });
    AddColumn(columns, record + ".line", origins, [](const COrigin& origin) { return origin.line; });
}

void AddStories(CColumnBytes& columns, const CPicture& picture)
{
    AddColumn(columns, "story.key", picture.stories, [](const CPictureStory& story) { return story.key; });
    AddColumn(columns, "story.number", picture.stories, [](const CPictureStory& story) { return story.storyNo; });
    AddColumn(columns, "story.line", picture.stories, [](const CPictureStory& story) { return story.line; });
}

void AddNodes(CColumnBytes& columns, const CPicture& picture)
{
    const std::vector<CNode>& nodes = picture.source.model.nodes;
    AddColumn(columns, "node.number", nodes, [](const CNode& node) { return node.number; });
    AddColumn(columns, "node.x", nodes, [](const CNode& node) { return node.x; });
    AddColumn(columns, "node.y", nodes, [](const CNode& node) { return node.y; });
    AddColumn(columns, "node.z", nodes, [](const CNode& node) { return node.z; });
    AddOrigins(columns, "node", picture.nodes);
}

std::int32_t FrameKind(const COrigin& origin)
{
    switch (origin.object) {
    case EObject::Beam:
        return 0;
    case EObject::Column:
        return 1;
    case EObject::Brace:
        return 2;
    default:
        return 3;
    }
}

void AddFrames(CColumnBytes& columns, const CPicture& picture)
{
    const std::vector<CFrameElement>& frames = picture.source.model.frameElements;
    AddColumn(columns, "frame.number", frames, [](const CFrameElement& frame) { return frame.number; });
    AddColumn(columns, "frame.material", frames, [](const CFrameElement& frame) { return frame.material; });
    AddColumn(columns, "frame.section", frames, [](const CFrameElement& frame) { return frame.section; });
    AddColumn(columns, "frame.nodeI", frames, [](const CFrameElement& frame) { return frame.nodeI; });
    AddColumn(columns, "frame.nodeJ", frames, [](const CFrameElement& frame) { return frame.nodeJ; });
    AddColumn(columns, "frame.angle", frames, [](const CFrameElement& frame) { return frame.angle; });
    AddColumn(columns, "frame.kind", picture.frameElements, FrameKind);
    AddOrigins(columns, "frame", picture.frameElements);
}

void AddPlanars(CColumnBytes& columns, const CPicture& picture)
{
    const std::vector<CPlanarElement>& planars = picture.source.model.planarElements;
    AddColumn(columns, "planar.type", planars,
              [](const CPlanarElement& planar) { return static_cast<std::int32_t>(planar.type); });
    AddColumn(columns, "planar.number", planars, [](const CPlanarElement& planar) { return planar.number; });
    AddColumn(columns, "planar.material", planars, [](const CPlanarElement& planar) { return planar.material; });
    AddColumn(columns, "planar.thickness", planars, [](const CPlanarElement& planar) { return planar.thickness; });
    AddRows(columns, "planar.nodes", planars, [](const CPlanarElement& planar) { return planar.nodes; });
    AddOrigins(columns, "planar", picture.planarElements);
}

}  // namespace

void AddElements(CColumnBytes& columns, const CPicture& picture)
{
    AddStories(columns, picture);
    AddNodes(columns, picture);
    AddFrames(columns, picture);
    AddPlanars(columns, picture);
}

}  // namespace satwecvt

// The nodes, and the elements between them.
#include "modelfile/LineFields.h"
#include "modelfile/ModelBlock.h"

namespace satwecvt {

namespace {

constexpr CBlockForm kNodes{.keywordLine = "*NODE    ; Nodes", .comments = 1, .noun = "node"};

/// The header stands alone where no element could be written.
constexpr CBlockForm kElements{
    .keywordLine = "*ELEMENT    ; Elements", .comments = 4, .noun = "element", .canBeEmpty = true};

[[nodiscard]] bool ReadFrameElement(CLineFields fields, CFrameElement& frame)
{
    return fields.TakeFields(frame.material, frame.section, frame.nodeI, frame.nodeJ, frame.angle) && fields.IsDone();
}

[[nodiscard]] bool ReadWall(CLineFields fields, CPlanarElement& wall)
{
    wall.type = EPlanarElement::Wall;
    return fields.TakeFields(wall.material, wall.thickness, wall.nodes, "1, 1") && fields.IsDone();
}

[[nodiscard]] bool ReadPlate(CLineFields fields, CPlanarElement& plate)
{
    plate.type = EPlanarElement::Plate;
    auto& nodes = plate.nodes;
    return fields.TakeFields(plate.material, plate.thickness, nodes[0], nodes[1], nodes[2], "0, 1") && fields.IsDone();
}

[[nodiscard]] bool ReadElement(std::string_view line, CModelFile& model)
{
    CLineFields fields(line);
    std::int32_t number = 0;
    if (!fields.Take("  ") || !fields.Take(number)) {
        return false;
    }
    if (fields.Take(", BEAM, ")) {
        CFrameElement& frame = model.frameElements.emplace_back();
        frame.number = number;
        return ReadFrameElement(fields, frame);
    }
    CPlanarElement& planar = model.planarElements.emplace_back();
    planar.number = number;
    if (fields.Take(", WALL, ")) {
        return ReadWall(fields, planar);
    }
    return fields.Take(", PLATE, ") && ReadPlate(fields, planar);
}

}  // namespace

void ReadNodes(CModelText& text, CModelFile& model)
{
    ReadNeededBlock(text, kNodes, [&model](std::string_view line) {
        CNode& node = model.nodes.emplace_back();
        return Fits(line, "  ", node.number, node.x, node.y, node.z);
    });
}

void ReadElements(CModelText& text, CModelFile& model)
{
    ReadBlock(text, kElements, [&model](std::string_view line) { return ReadElement(line, model); });
}

}  // namespace satwecvt

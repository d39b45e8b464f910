// The load cases and their loads.
#include "modelfile/LineFields.h"
#include "modelfile/ModelBlock.h"

namespace satwecvt {

namespace {

/// The header stands alone where no load of the block's kind could be written.
constexpr CBlockForm kNodalLoads{
    .keywordLine = "*CONLOAD    ; Nodal Loads", .comments = 1, .noun = "nodal load", .canBeEmpty = true};
constexpr CBlockForm kBeamLoads{
    .keywordLine = "*BEAMLOAD    ; Element Beam Loads", .comments = 2, .noun = "beam load", .canBeEmpty = true};

constexpr CBlockForm kEdgeLoads{.keywordLine = "*PRESSURE    ; Pressure Loads", .comments = 5, .noun = "pressure load"};

[[nodiscard]] bool ReadBeamLoad(std::string_view line, CBeamLoad& load)
{
    CLineFields fields(line);
    if (!fields.Take(load.element) || !fields.Take(", BEAM, ")) {
        return false;
    }
    auto& [first, second, third, fourth] = load.pairs;
    if (fields.Take("CONLOAD, GZ, NO, ")) {
        load.type = EBeamLoad::Concentrated;
        return fields.TakeFields(first.place, first.value, "0, 0, 0, 0, 0, 0") && fields.IsDone();
    }
    load.type = EBeamLoad::Distributed;
    return fields.Take("UNILOAD, GZ, NO, ") &&
           fields.TakeFields(first.place, first.value, second.place, second.value, third.place, third.value,
                             fourth.place, fourth.value) &&
           fields.IsDone();
}

[[nodiscard]] bool ReadEdgeLoad(std::string_view line, CEdgeLoad& load)
{
    constexpr std::int32_t kEdges = 4;
    return Fits(line, "", load.element, "PRES, PLATE, EDGE", load.edge, "GZ, 0, 0, 0", load.value, "0, 0,") &&
           load.edge >= 1 && load.edge <= kEdges;
}

/// A block without a load is an empty line.
void ReadLoadsOfCase(CModelText& text, CLoadCase& loadCase)
{
    loadCase.hasNodalHeader = ReadBlock(text, kNodalLoads, [&loadCase](std::string_view line) {
        CNodalLoad& load = loadCase.nodalLoads.emplace_back();
        return Fits(line, "", load.node, load.fx, load.fy, load.fz, load.mx, load.my, load.mz);
    });
    if (!loadCase.hasNodalHeader) {
        text.Expect("");
    }
    loadCase.hasBeamHeader = ReadBlock(text, kBeamLoads, [&loadCase](std::string_view line) {
        return ReadBeamLoad(line, loadCase.beamLoads.emplace_back());
    });
    if (!loadCase.hasBeamHeader) {
        text.Expect("");
    }
    loadCase.hasEdgeHeader = ReadBlock(text, kEdgeLoads, [&loadCase](std::string_view line) {
        return ReadEdgeLoad(line, loadCase.edgeLoads.emplace_back());
    });
    if (!loadCase.hasEdgeHeader) {
        text.Expect("");
    }
}

}  // namespace

void ReadLoadCases(CModelText& text, CModelFile& model)
{
    text.ExpectHeader("*STLDCASE    ; Static Load Cases", 1);
    text.Expect("  DeadLoad, D, ");
    text.Expect("  LiveLoad, L, ");
    text.Expect("");
    model.loadCases.emplace_back().name = "DeadLoad";
    model.loadCases.emplace_back().name = "LiveLoad";
}

/// Where there is no load at all, the text ends without a word of them.
void ReadLoads(CModelText& text, CModelFile& model)
{
    if (text.IsAtEnd()) {
        return;
    }
    for (CLoadCase& loadCase : model.loadCases) {
        text.Expect("*USE-STLD, " + loadCase.name);
        text.Expect("");
        ReadLoadsOfCase(text, loadCase);
        text.Expect("; End of data for load case [" + loadCase.name + "] -------------------------");
        text.Expect("");
    }
    text.Expect("");
    if (!text.IsAtEnd()) {
        text.Take();
        text.Fail("something stands behind the loads");
    }
}

}  // namespace satwecvt

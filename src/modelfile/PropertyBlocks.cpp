// What the elements are made of: materials and thicknesses.
#include "modelfile/LineFields.h"
#include "modelfile/ModelBlock.h"

#include <algorithm>
#include <iterator>

namespace satwecvt {

namespace {

constexpr CBlockForm kMaterials{.keywordLine = "*MATERIAL    ; Material", .comments = 6, .noun = "material"};
constexpr CBlockForm kThicknesses{.keywordLine = "*THICKNESS    ; Thickness", .comments = 10, .noun = "thickness"};

constexpr std::string_view kSteels[] = {"Grade3", "15MnV", "16Mn"};

/// Takes a word that is a prefix and an integer, as C30.
[[nodiscard]] bool TakeNumberedName(CLineFields& fields, std::string_view prefix, std::string& name)
{
    const std::string_view word = fields.TakeWord();
    CLineFields parts(word);
    std::int32_t number = 0;
    name = word;
    return parts.Take(prefix) && parts.Take(number) && parts.IsDone();
}

[[nodiscard]] bool TakeConcrete(CLineFields& fields, std::string& name)
{
    return TakeNumberedName(fields, "C", name);
}

[[nodiscard]] bool TakeSteel(CLineFields& fields, std::string& name)
{
    name = fields.TakeWord();
    return std::find(std::begin(kSteels), std::end(kSteels), name) != std::end(kSteels);
}

[[nodiscard]] bool ReadConcrete(CLineFields fields, CMaterial& material)
{
    material.type = EMaterial::Concrete;
    return TakeConcrete(fields, material.name) && fields.Take(", 0, 0, 1, GB(RC), ") &&
           TakeConcrete(fields, material.concrete) && material.concrete == material.name && fields.IsDone();
}

[[nodiscard]] bool ReadSteel(CLineFields fields, CMaterial& material)
{
    material.type = EMaterial::Steel;
    return TakeSteel(fields, material.name) && fields.Take(", 0, 0, 1, GB(S), ") && TakeSteel(fields, material.steel) &&
           material.steel == material.name && fields.IsDone();
}

[[nodiscard]] bool ReadComposite(CLineFields fields, CMaterial& material)
{
    material.type = EMaterial::Composite;
    return TakeNumberedName(fields, "SRC", material.name) && fields.Take(", 0, 0, 1, GB(S), ") &&
           TakeSteel(fields, material.steel) && fields.Take(", 1, GB(RC), ") &&
           TakeConcrete(fields, material.concrete) && fields.IsDone();
}

[[nodiscard]] bool ReadMaterial(std::string_view line, CMaterial& material)
{
    CLineFields fields(line);
    if (!fields.Take("  ") || !fields.Take(material.number)) {
        return false;
    }
    if (fields.Take(", CONC, ")) {
        return ReadConcrete(fields, material);
    }
    if (fields.Take(", STEEL, ")) {
        return ReadSteel(fields, material);
    }
    return fields.Take(", SRC, ") && ReadComposite(fields, material);
}

}  // namespace

/// Every element has a material. There may be materials without elements.
void ReadMaterials(CModelText& text, CModelFile& model)
{
    const bool isThere = ReadBlock(text, kMaterials, [&model](std::string_view line) {
        return ReadMaterial(line, model.materials.emplace_back());
    });
    if (!isThere && !(model.frameElements.empty() && model.planarElements.empty())) {
        text.Expect(kMaterials.keywordLine);
    }
}

/// Every wall and plate has a thickness, which may be there without them, too.
void ReadThicknesses(CModelText& text, CModelFile& model)
{
    const bool isThere = ReadBlock(text, kThicknesses, [&model](std::string_view line) {
        CThickness& thickness = model.thicknesses.emplace_back();
        return Fits(line, "  ", thickness.number, "VALUE, YES", thickness.value, "0");
    });
    if (!isThere && !model.planarElements.empty()) {
        text.Expect(kThicknesses.keywordLine);
    }
}

}  // namespace satwecvt

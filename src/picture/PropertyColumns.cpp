#include "picture/PictureParts.h"
#include "picture/RecordColumns.h"

#include <cstdint>

namespace satwecvt {

namespace {

void AddMaterials(CColumnBytes& columns, const CModelFile& model)
{
    AddColumn(columns, "material.number", model.materials, [](const CMaterial& material) { return material.number; });
    AddColumn(columns, "material.type", model.materials,
              [](const CMaterial& material) { return static_cast<std::int32_t>(material.type); });
    AddColumn(columns, "material.name", model.materials, [](const CMaterial& material) { return material.name; });
    AddColumn(columns, "material.concrete", model.materials,
              [](const CMaterial& material) { return material.concrete; });
    AddColumn(columns, "material.steel", model.materials, [](const CMaterial& material) { return material.steel; });
}

void AddSections(CColumnBytes& columns, const CModelFile& model)
{
    AddColumn(columns, "section.number", model.sections, [](const CSection& section) { return section.number; });
    AddColumn(columns, "section.type", model.sections,
              [](const CSection& section) { return static_cast<std::int32_t>(section.type); });
    AddColumn(columns, "section.shape", model.sections, [](const CSection& section) { return section.shape; });
    AddRows(columns, "section.values", model.sections, [](const CSection& section) { return section.values; });
    AddRows(columns, "section.composite", model.sections, [](const CSection& section) { return section.composite; });
    AddRows(columns, "section.further", model.sections, [](const CSection& section) { return section.further; });
}

void AddThicknesses(CColumnBytes& columns, const CModelFile& model)
{
    AddColumn(columns, "thickness.number", model.thicknesses,
              [](const CThickness& thickness) { return thickness.number; });
    AddColumn(columns, "thickness.value", model.thicknesses,
              [](const CThickness& thickness) { return thickness.value; });
}

void AddEnds(CColumnBytes& columns, const CModelFile& model)
{
    AddColumn(columns, "support.node", model.supports, [](const CSupport& support) { return support.node; });
    AddColumn(columns, "release.element", model.releases, [](const CRelease& release) { return release.element; });
    AddColumn(columns, "release.ends", model.releases,
              [](const CRelease& release) { return (release.isHingeAtI ? 1 : 0) + (release.isHingeAtJ ? 2 : 0); });
    AddColumn(columns, "offset.element", model.offsets, [](const COffset& offset) { return offset.element; });
    AddRows(columns, "offset.values", model.offsets, [](const COffset& offset) { return offset.values; });
}

}  // namespace

void AddProperties(CColumnBytes& columns, const CModelFile& model)
{
    AddMaterials(columns, model);
    AddSections(columns, model);
    AddThicknesses(columns, model);
    AddEnds(columns, model);
}

}  // namespace satwecvt

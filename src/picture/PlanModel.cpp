#include "picture/PlanModel.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <vector>

namespace satwecvt {

namespace {

/// Puts records under their numbers; of several with one number the last counts.
template <class Record, class Entry, class NumberOf, class EntryOf>
void Fill(CRecordTable<Entry>& table, const std::vector<Record>& records, NumberOf number, EntryOf entry)
{
    table.Reserve(records.size());
    for (const Record& record : records) {
        table.Insert(record.*number, entry(record));
    }
    table.SortByKey();
}

/// The corners of a planar element.
std::span<const std::int32_t> CornersOf(const CPlanarElement& element) noexcept
{
    return std::span(element.nodes).first(element.type == EPlanarElement::Wall ? 4 : 3);
}

}  // namespace

bool IsPlace(const CPicturePoint& point) noexcept
{
    constexpr double kFarthest = 1e9;
    return std::abs(point.x) <= kFarthest && std::abs(point.y) <= kFarthest && std::abs(point.z) <= kFarthest;
}

CPlanPoint RunOf(const CPlanEnds& ends) noexcept
{
    return {ends.j.x - ends.i.x, ends.j.y - ends.i.y};
}

double LengthOf(CPlanPoint run) noexcept
{
    return std::sqrt(run.x * run.x + run.y * run.y);
}

CPlanModel::CPlanModel(const CPicture& picture) : nodes(picture.source.model)
{
    const CModelFile& model = picture.source.model;
    AddProperties(model);
    longest = AddAxes(model);
    AddSections(model);
    AddDrawn(picture);
}

const CNode* CPlanModel::NodeOf(std::int32_t number) const noexcept
{
    const CNode* const node = nodes.Find(number);
    return node != nullptr && IsPlace(PlaceOf(*node)) ? node : nullptr;
}

const CSection* CPlanModel::SectionOf(const CFrameElement& frame) const noexcept
{
    const CCutSection* const found = sections.Find(frame.section);
    return found == nullptr ? nullptr : found->section;
}

const CSectionCut* CPlanModel::CutOf(const CFrameElement& frame) const noexcept
{
    const CCutSection* const found = sections.Find(frame.section);
    return found == nullptr || !found->cut ? nullptr : &*found->cut;
}

double CPlanModel::ThicknessOf(const CPlanarElement& element) const noexcept
{
    const double* const thickness = thicknesses.Find(element.thickness);
    return thickness != nullptr && *thickness > 0.0 && *thickness <= longest ? *thickness : 0.0;
}

std::optional<CPlanEnds> CPlanModel::EndsOf(const CFrameElement& frame) const noexcept
{
    const CNode* const i = NodeOf(frame.nodeI);
    const CNode* const j = NodeOf(frame.nodeJ);
    if (i == nullptr || j == nullptr || !std::isfinite(frame.angle)) {
        return std::nullopt;
    }
    CPlanEnds ends{PlaceOf(*i), PlaceOf(*j)};
    if (const COffset* const offset = offsets.Find(frame.number)) {
        const auto& [ix, iy, iz, jx, jy, jz] = offset->values;
        ends = {{ends.i.x + ix, ends.i.y + iy, ends.i.z + iz}, {ends.j.x + jx, ends.j.y + jy, ends.j.z + jz}};
    }
    return IsPlace(ends.i) && IsPlace(ends.j) ? std::optional(ends) : std::nullopt;
}

bool CPlanModel::IsOfSteel(const CFrameElement& frame) const noexcept
{
    const EMaterial* const material = materials.Find(frame.material);
    return material != nullptr && *material == EMaterial::Steel;
}

void CPlanModel::AddProperties(const CModelFile& model)
{
    Fill(materials, model.materials, &CMaterial::number, [](const CMaterial& material) { return material.type; });
    Fill(thicknesses, model.thicknesses, &CThickness::number, [](const CThickness& one) { return one.value; });
    Fill(releases, model.releases, &CRelease::element, [](const CRelease& release) { return release; });
    Fill(offsets, model.offsets, &COffset::element, [](const COffset& offset) { return offset; });
    Fill(supports, model.supports, &CSupport::node, [](const CSupport&) { return '\0'; });
}

/// Returns the longest side of the box around all nodes that elements use.
double CPlanModel::AddAxes(const CModelFile& model)
{
    CPlanBox heights;  // along x alone
    const auto add = [&](std::int32_t number) {
        if (const CNode* const node = NodeOf(number)) {
            axes.Add({node->x, node->y});
            heights.Add({node->z, 0.0});
        }
    };
    for (const CFrameElement& frame : model.frameElements) {
        add(frame.nodeI);
        add(frame.nodeJ);
    }
    for (const CPlanarElement& element : model.planarElements) {
        for (const std::int32_t corner : CornersOf(element)) {
            add(corner);
        }
    }
    return std::max({axes.Width(), axes.Height(), heights.Width()});
}

void CPlanModel::AddSections(const CModelFile& model)
{
    Fill(sections, model.sections, &CSection::number, [&](const CSection& section) {
        return CCutSection{&section, SectionCut(section, longest)};
    });
}

void CPlanModel::AddDrawn(const CPicture& picture)
{
    drawn = axes;
    const auto add = [&](const CPicturePoint& point, double reach) {
        if (IsPlace(point)) {
            drawn.Add({point.x, point.y}, reach);
        }
    };
    for (const CFrameElement& frame : picture.source.model.frameElements) {
        if (const std::optional<CPlanEnds> ends = EndsOf(frame)) {
            const CSectionCut* const cut = CutOf(frame);
            const double reach = cut == nullptr ? 0.0 : std::max(cut->width, cut->height) / 2.0;
            add(ends->i, reach);
            add(ends->j, reach);
        }
    }
    for (const CPlanarElement& element : picture.source.model.planarElements) {
        for (const std::int32_t corner : CornersOf(element)) {
            if (const CNode* const node = NodeOf(corner); node != nullptr && element.type == EPlanarElement::Wall) {
                add(PlaceOf(*node), ThicknessOf(element) / 2.0);
            }
        }
    }
    for (const CLostShape& shape : picture.lostShapes) {
        std::for_each(shape.corners.begin(), shape.corners.end(), [&](const auto& corner) { add(corner, 0.0); });
    }
    for (const CLostLoad& load : picture.lostLoads) {
        add(load.from, 0.0);
        add(load.to, 0.0);
    }
}

}  // namespace satwecvt

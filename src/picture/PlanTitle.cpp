#include "picture/PlanTitle.h"

#include "picture/PathText.h"
#include "picture/PlanText.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace satwecvt {

namespace {

struct CTitleRow {
    std::string_view name;
    std::string value;
    bool isWarning = false;
};

using CTitleRows = std::vector<CTitleRow>;

std::string ScaleText(const CPlanScale& scale)
{
    return "1:" + std::to_string(scale.Denominator()) + ", lengths taken as " + (scale.IsInMetres() ? "m" : "mm");
}

std::string SheetText(const CPlanPaper& paper)
{
    return std::string(paper.name) + ", " + std::to_string(paper.width) + " x " + std::to_string(paper.height) + " mm";
}

/// Rows about the sheet.
CTitleRows SheetRows(const CPlanDrawing& drawing, const CPictureStory& story, const CPlanStory& content)
{
    CTitleRows rows{{"Key, number", std::to_string(story.key) + ", " + std::to_string(story.storyNo)}};
    if (content.highest) {
        rows.push_back({"Highest node", "z = " + LengthText(*content.highest)});
    }
    rows.push_back({"Scale", ScaleText(drawing.scale)});
    rows.push_back({"Sheet", SheetText(drawing.scale.Paper())});
    return rows;
}

void AddCount(CTitleRows& rows, std::string_view name, std::size_t count)
{
    rows.push_back({name, std::to_string(count)});
}

/// The triangles of a slab follow each other.
std::size_t SlabCount(const CPicture& picture, const CPlanStory& content)
{
    std::size_t slabs = 0;
    const COrigin* last = nullptr;
    for (const std::size_t position : content.planars) {
        const COrigin& origin = picture.planarElements[position];
        if (origin.object == EObject::Plate && (last == nullptr || last->key != origin.key)) {
            last = &origin;
            ++slabs;
        }
    }
    return slabs;
}

/// How many elements of each kind the model has in the story.
void AddElementRows(CTitleRows& rows, const CPicture& picture, const CPlanStory& content)
{
    const auto countOf = [](const std::vector<COrigin>& origins, const std::vector<std::size_t>& positions,
                            EObject kind) {
        return static_cast<std::size_t>(std::count_if(positions.begin(), positions.end(), [&](std::size_t position) {
            return origins[position].object == kind;
        }));
    };
    AddCount(rows, "Beams", countOf(picture.frameElements, content.frames, EObject::Beam));
    AddCount(rows, "Columns", countOf(picture.frameElements, content.frames, EObject::Column));
    AddCount(rows, "Braces", countOf(picture.frameElements, content.frames, EObject::Brace));
    AddCount(rows, "Walls", countOf(picture.planarElements, content.planars, EObject::Wall));
    const std::size_t triangles = countOf(picture.planarElements, content.planars, EObject::Plate);
    rows.push_back(
        {"Slabs", std::to_string(SlabCount(picture, content)) + " in " + std::to_string(triangles) + " triangles"});
}

/// What a reader must not overlook.
void AddLossRows(CTitleRows& rows, const CPlanDrawing& drawing, const CPlanStory& content, std::size_t withoutStory)
{
    rows.push_back({"Losses", std::to_string(content.losses), content.losses > 0});
    if (drawing.notDrawn > 0) {
        rows.push_back({"Not drawn", std::to_string(drawing.notDrawn) + ", without a place", true});
    }
    if (withoutStory > 0) {
        rows.push_back(
            {"On no plan",
             std::to_string(withoutStory) + (withoutStory == 1 ? " element" : " elements") + ", story unknown", true});
    }
}

void AddRow(CSvgText& svg, const CTitleRow& row, CPaperPoint at)
{
    constexpr std::int32_t kToValue = 2000;
    svg.AddText(at, row.name, R"(fill="#666")");
    svg.AddText({at.x + kToValue, at.y}, row.value, row.isWarning ? R"(fill="#c8321e" font-weight="bold")" : "");
}

void AddRule(CSvgText& svg, const CPlanScale& scale, std::int32_t y)
{
    CPathText rule;
    rule.AddLine({scale.Field().high.x, y}, {BorderOf(scale.Paper()).high.x, y});
    svg.Open(R"(g fill="none" stroke="#111" stroke-width=".35")");
    svg.AddPath(rule.Text());
    svg.Close("g");
}

}  // namespace

void AddTitleBlock(CSvgText& svg, const CPlanDrawing& drawing, const CPictureStory& story, const CPlanStory& content,
                   std::size_t withoutStory)
{
    constexpr std::int32_t kMargin = 300;
    constexpr std::int32_t kRow = 500;
    constexpr std::int32_t kHeading = 1000;
    constexpr double kFileWidth = (kTitleWidth - 2 * kMargin) / 250.0;
    const CTitleRows sheet = SheetRows(drawing, story, content);
    CTitleRows counts;
    AddElementRows(counts, drawing.picture, content);
    AddLossRows(counts, drawing, content, withoutStory);
    const auto rowCount = static_cast<std::int32_t>(sheet.size() + counts.size());
    const CPaperPoint corner{drawing.scale.Field().high.x, drawing.scale.Field().high.y};
    const std::int32_t top = corner.y - kHeading - (rowCount + 4) * kRow;
    const std::int32_t left = corner.x + kMargin;

    svg.Open(R"(g class="title-block" font-size="2.5" fill="#111")");
    AddRule(svg, drawing.scale, top);
    svg.AddText({left, top + 750}, "Story " + std::to_string(story.key), R"(font-size="5" font-weight="bold")");
    std::int32_t y = top + kHeading + kRow;
    svg.AddText({left, y}, "Structure file", R"(fill="#666")");
    svg.AddText({left, y += kRow}, ShownEnd(ShownText(drawing.picture.source.structurePath), kFileWidth));
    for (const CTitleRow& row : sheet) {
        AddRow(svg, row, {left, y += kRow});
    }
    AddRule(svg, drawing.scale, y + kRow / 2);
    y += kRow / 2;
    for (const CTitleRow& row : counts) {
        AddRow(svg, row, {left, y += kRow});
    }
    svg.Close("g");
}

}  // namespace satwecvt

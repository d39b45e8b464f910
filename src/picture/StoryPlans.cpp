#include "picture/StoryPlans.h"

#include "picture/PlanAreas.h"
#include "picture/PlanBeams.h"
#include "picture/PlanColumns.h"
#include "picture/PlanDrawing.h"
#include "picture/PlanLegend.h"
#include "picture/PlanLosses.h"
#include "picture/PlanSheet.h"
#include "picture/PlanText.h"
#include "picture/PlanTitle.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace satwecvt {

namespace {

double LengthOf(const CPlanBox& axes)
{
    return std::max(axes.Width(), axes.Height());
}

/// Columns come first, so that what else is named keeps off them.
void AddFrames(CPlanDrawing& drawing, const CPlanStory& story)
{
    CPlanColumns columns(drawing);
    std::vector<std::pair<std::size_t, CPlanEnds>> lying;
    for (const std::size_t position : story.frames) {
        const std::optional<CPlanEnds> ends =
            drawing.model.EndsOf(drawing.picture.source.model.frameElements[position]);
        if (!ends) {
            ++drawing.notDrawn;
        } else if (Stands(drawing.picture.frameElements[position].object, *ends)) {
            columns.Add(position, *ends);
        } else {
            lying.emplace_back(position, *ends);
        }
    }
    columns.AddLabels();
    CPlanBeams beams(drawing, columns);
    for (const auto& [position, ends] : lying) {
        beams.Add(position, ends);
    }
}

/// The supports among the nodes of the story's elements, each once.
void AddSupports(CPlanDrawing& drawing, const CPlanStory& story)
{
    constexpr std::int32_t kSize = 240;
    const CModelFile& model = drawing.picture.source.model;
    std::vector<std::int32_t> supported;
    const auto add = [&](std::int32_t node) {
        if (drawing.model.IsSupported(node) && drawing.model.NodeOf(node) != nullptr) {
            supported.push_back(node);
        }
    };
    for (const std::size_t position : story.frames) {
        add(model.frameElements[position].nodeI);
        add(model.frameElements[position].nodeJ);
    }
    for (const std::size_t position : story.planars) {
        const auto& nodes = model.planarElements[position].nodes;
        std::for_each(nodes.begin(), nodes.end(), add);
    }
    std::sort(supported.begin(), supported.end());
    supported.erase(std::unique(supported.begin(), supported.end()), supported.end());
    for (const std::int32_t number : supported) {
        const CNode* const node = drawing.model.NodeOf(number);
        const CPaperPoint place = drawing.scale.ToPaper({node->x, node->y});
        drawing.layers.AddPath(EPlanLayer::Supports, TriangleBelow(place, kSize), "n" + std::to_string(number));
    }
}

/// The root element, and the paper.
void OpenSheet(CSvgText& svg, const CPlanPaper& paper, const std::string& title)
{
    const std::string width = std::to_string(paper.width);
    const std::string height = std::to_string(paper.height);
    svg.Open("svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + width + "mm\" height=\"" + height +
             "mm\" viewBox=\"0 0 " + width + " " + height + "\" font-family=\"Arial, Helvetica, sans-serif\"");
    svg.AddTitle(title);
    svg.AddEmpty("rect width=\"" + width + "\" height=\"" + height + "\" fill=\"#fff\"");
}

/// Without a sign.
std::string DigitsOf(std::int32_t key)
{
    std::string digits = std::to_string(key);
    return key < 0 ? digits.substr(1) : digits;
}

std::size_t WidestKey(const CPicture& picture)
{
    std::size_t widest = 0;
    for (const CPictureStory& story : picture.stories) {
        widest = std::max(widest, DigitsOf(story.key).size());
    }
    return widest;
}

}  // namespace

CStoryPlans::CStoryPlans(const CPicture& storyPicture)
    : picture(storyPicture),
      model(picture),
      scale(LengthOf(model.Axes()), model.Drawn()),
      stories(PlanStories(picture)),
      withoutStory(ElementsWithoutStory(picture)),
      widestKey(WidestKey(picture))
{}

std::string CStoryPlans::Plan(std::size_t story) const
{
    const std::string key = std::to_string(picture.stories[story].key);
    CPlanDrawing drawing{picture, model, scale, {}, CPlanLabels(scale.Paper())};
    AddAreas(drawing, stories[story].planars);
    AddFrames(drawing, stories[story]);
    AddSupports(drawing, stories[story]);
    AddLosses(drawing, stories[story]);

    CSvgText svg;
    OpenSheet(svg, scale.Paper(), "Story " + key);
    drawing.layers.AddTo(svg, "-" + key);
    drawing.labels.AddTo(svg);
    AddDimensions(svg, scale, model);
    AddAxes(svg, scale);
    AddScaleBar(svg, scale);
    AddBorder(svg, scale);
    AddLegend(svg, scale, drawing.layers);
    AddTitleBlock(svg, drawing, picture.stories[story], stories[story], withoutStory);
    svg.Close("svg");
    return svg.Take();
}

std::string CStoryPlans::Name(std::size_t story) const
{
    const std::int32_t key = picture.stories[story].key;
    const std::string digits = DigitsOf(key);
    return std::string(key < 0 ? "story--" : "story-") + std::string(widestKey - digits.size(), '0') + digits + ".svg";
}

}  // namespace satwecvt

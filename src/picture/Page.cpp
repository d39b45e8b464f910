#include "picture/Page.h"

#include "picture/Base64.h"
#include "picture/PageText.h"
#include "picture/PictureColumns.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace satwecvt {

namespace {

std::size_t LengthOf(std::span<const std::string_view> pieces)
{
    std::size_t length = 0;
    for (const std::string_view piece : pieces) {
        length += piece.size();
    }
    return length;
}

void Append(std::string& text, std::span<const std::string_view> pieces)
{
    for (const std::string_view piece : pieces) {
        text += piece;
    }
}

/// How long a page of this picture should be at most.
std::size_t Goal(const CPicture& picture)
{
    constexpr std::size_t kBase = 1'000'000;
    constexpr std::size_t kOfAnElement = 100;
    return kBase + kOfAnElement * (picture.frameElements.size() + picture.planarElements.size());
}

/// The plans of all stories; none where they take more than `room` bytes.
std::vector<std::string> PlansWithin(const CPicture& picture, const CStoryPlans& plans, std::size_t room)
{
    std::vector<std::string> texts;
    std::size_t length = 0;
    for (std::size_t story = 0; story < picture.stories.size(); ++story) {
        texts.push_back(plans.Plan(story));
        length += texts.back().size();
        if (length > room) {
            return {};
        }
    }
    return texts;
}

}  // namespace

std::string Page(const CPicture& picture, const CStoryPlans& plans)
{
    const std::size_t around = LengthOf(PageTextBeforePicture()) + LengthOf(PageTextBehindPicture());
    CColumnBytes columns = PictureColumns(picture);
    const std::size_t used = around + Base64Length(columns.Bytes().size());
    const std::size_t goal = std::max(Goal(picture), used);
    columns.Add("plan.svg", PlansWithin(picture, plans, (goal - used) / 4 * 3));
    std::string page;
    page.reserve(around + Base64Length(columns.Bytes().size()));
    Append(page, PageTextBeforePicture());
    AppendBase64(page, columns.Bytes());
    Append(page, PageTextBehindPicture());
    return page;
}

}  // namespace satwecvt

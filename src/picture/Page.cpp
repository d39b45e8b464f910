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

constexpr std::string_view kPlans = "plan.svg";

/// The plans of all stories; none where they would make a page of these columns longer than it should be.
std::vector<std::string> PlansWithin(std::size_t columnBytes, std::size_t most, const CPicture& picture,
                                     const CStoryPlans& plans)
{
    std::vector<std::string> texts;
    std::size_t length = 0;
    for (std::size_t story = 0; story < picture.stories.size(); ++story) {
        texts.push_back(plans.Plan(story));
        length += texts.back().size();
        const std::size_t bytes = CColumnBytes::BytesOfTexts(kPlans, picture.stories.size(), length);
        if (Base64Length(columnBytes + bytes) > most) {
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
    const std::size_t most = Goal(picture) - std::min(Goal(picture), around);
    columns.Add(kPlans, PlansWithin(columns.Bytes().size(), most, picture, plans));
    std::string page;
    page.reserve(around + Base64Length(columns.Bytes().size()));
    Append(page, PageTextBeforePicture());
    AppendBase64(page, columns.Bytes());
    Append(page, PageTextBehindPicture());
    return page;
}

}  // namespace satwecvt

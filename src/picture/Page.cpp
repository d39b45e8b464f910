#include "picture/Page.h"

#include "picture/Base64.h"
#include "picture/PageText.h"
#include "picture/PictureColumns.h"

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

/// Whether plans of these stories are so long that all of them will not fit. Stories are much alike: the first
/// megabytes tell what the rest will take, so that those of a large building are not drawn for nothing.
bool IsHopeless(std::size_t length, std::size_t drawn, std::size_t stories, std::size_t room)
{
    constexpr std::size_t kEnoughToTell = 2'000'000;
    constexpr double kToSpare = 1.25;
    const double expected = static_cast<double>(length) / static_cast<double>(drawn) * static_cast<double>(stories);
    return length > room || (length > kEnoughToTell && expected > kToSpare * static_cast<double>(room));
}

/// The plans of all stories, which take at most `room` bytes together; else none.
std::vector<std::string> PlansWithin(const CPicture& picture, const CStoryPlans& plans, std::size_t room)
{
    std::vector<std::string> texts;
    std::size_t length = 0;
    for (std::size_t story = 0; story < picture.stories.size(); ++story) {
        texts.push_back(plans.Plan(story));
        length += texts.back().size();
        if (IsHopeless(length, texts.size(), picture.stories.size(), room)) {
            return {};
        }
    }
    return texts;
}

/// How many bytes of plans can stand behind columns of a length in a page that has that much around them.
std::size_t RoomForPlans(const CPicture& picture, std::size_t around, std::size_t columnBytes)
{
    const std::size_t most = Goal(picture) / kBase64Characters * kBase64Bytes;  // as if all of the page were base64
    const std::size_t used = (around + kBase64Characters - 1) / kBase64Characters * kBase64Bytes + columnBytes +
                             CColumnBytes::BytesOfTexts(kPlansColumn, picture.stories.size(), 0);
    return most > used ? most - used : 0;
}

}  // namespace

std::string Page(const CPicture& picture, const CStoryPlans& plans)
{
    const std::size_t around = LengthOf(PageTextBeforePicture()) + LengthOf(PageTextBehindPicture());
    CColumnBytes columns = PictureColumns(picture);
    columns.Add(kPlansColumn, PlansWithin(picture, plans, RoomForPlans(picture, around, columns.Bytes().size())));
    std::string page;
    page.reserve(around + Base64Length(columns.Bytes().size()));
    Append(page, PageTextBeforePicture());
    AppendBase64(page, columns.Bytes());
    Append(page, PageTextBehindPicture());
    return page;
}

}  // namespace satwecvt

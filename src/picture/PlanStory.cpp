#include "picture/PlanStory.h"

#include <algorithm>
#include <cmath>

namespace satwecvt {

namespace {

CPlanStory* StoryAt(std::vector<CPlanStory>& stories, std::int32_t story)
{
    const bool isThere = story >= 0 && static_cast<std::size_t>(story) < stories.size();
    return isThere ? &stories[static_cast<std::size_t>(story)] : nullptr;
}

/// The story that a finding names.
CPlanStory* StoryOf(std::vector<CPlanStory>& stories, const CPicture& picture, const CFinding& finding)
{
    return finding.story ? StoryAt(stories, picture.StoryOf(*finding.story)) : nullptr;
}

/// Hands out positions by the origin of what stands there.
void HandOut(std::vector<CPlanStory>& stories, const std::vector<COrigin>& origins,
             std::vector<std::size_t> CPlanStory::*list)
{
    for (std::size_t position = 0; position < origins.size(); ++position) {
        if (CPlanStory* const story = StoryAt(stories, origins[position].story)) {
            (story->*list).push_back(position);
        }
    }
}

/// Hands out positions of what was lost by the story of the finding.
template <class Lost>
void HandOutLost(std::vector<CPlanStory>& stories, const CPicture& picture, const std::vector<Lost>& lost,
                 std::vector<std::size_t> CPlanStory::*list)
{
    for (std::size_t position = 0; position < lost.size(); ++position) {
        const CFinding& finding = picture.source.findings[lost[position].finding];
        if (CPlanStory* const story = StoryOf(stories, picture, finding)) {
            (story->*list).push_back(position);
        }
    }
}

void FindHighest(std::vector<CPlanStory>& stories, const CPicture& picture)
{
    for (std::size_t position = 0; position < picture.nodes.size(); ++position) {
        const double z = picture.source.model.nodes[position].z;
        CPlanStory* const story = StoryAt(stories, picture.nodes[position].story);
        if (story != nullptr && std::isfinite(z)) {
            story->highest = std::max(story->highest.value_or(z), z);
        }
    }
}

}  // namespace

std::vector<CPlanStory> PlanStories(const CPicture& picture)
{
    std::vector<CPlanStory> stories(picture.stories.size());
    HandOut(stories, picture.frameElements, &CPlanStory::frames);
    HandOut(stories, picture.planarElements, &CPlanStory::planars);
    HandOutLost(stories, picture, picture.lostShapes, &CPlanStory::lostShapes);
    HandOutLost(stories, picture, picture.lostLoads, &CPlanStory::lostLoads);
    for (const CFinding& finding : picture.source.findings) {
        CPlanStory* const story = StoryOf(stories, picture, finding);
        if (story != nullptr && finding.severity == ESeverity::Loss) {
            ++story->losses;
        }
    }
    FindHighest(stories, picture);
    return stories;
}

std::size_t ElementsWithoutStory(const CPicture& picture)
{
    const auto hasNone = [](const COrigin& origin) { return origin.story == kNoStory; };
    const auto count = [&](const std::vector<COrigin>& origins) {
        return static_cast<std::size_t>(std::count_if(origins.begin(), origins.end(), hasNone));
    };
    return count(picture.frameElements) + count(picture.planarElements);
}

}  // namespace satwecvt

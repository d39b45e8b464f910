#include "picture/Picture.h"

#include "picture/LostParts.h"
#include "picture/Origins.h"

#include <algorithm>
#include <utility>

namespace satwecvt {

std::int32_t CPicture::StoryOf(std::int32_t key) const
{
    const auto story = std::lower_bound(stories.begin(), stories.end(), key,
                                        [](const CPictureStory& a, std::int32_t b) { return a.key < b; });
    return story != stories.end() && story->key == key ? static_cast<std::int32_t>(story - stories.begin()) : kNoStory;
}

CPicture MakePicture(CPictureSource source)
{
    std::vector<CPictureStory> stories;
    for (const T_SATWE_STIF_D& story : WrittenStories(source.input)) {
        stories.push_back({story.key, story.storyNo, story.line});
    }
    std::vector<COrigin> nodes = NodeOrigins(source.input, source.model);
    CElementOrigins elements = ElementOrigins(source.input, source.model);
    CLostParts lost = LostParts(source.input, source.model, source.findings);
    return {std::move(source),
            std::move(stories),
            std::move(nodes),
            std::move(elements.frameElements),
            std::move(elements.planarElements),
            std::move(lost.shapes),
            std::move(lost.loads)};
}

}  // namespace satwecvt

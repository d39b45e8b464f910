// What of a building is on the plan of one story, by its position in the picture.
#pragma once

#include "picture/Picture.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace satwecvt {

struct CPlanStory {
    std::vector<std::size_t> frames;
    std::vector<std::size_t> planars;
    std::vector<std::size_t> lostShapes;
    std::vector<std::size_t> lostLoads;
    std::size_t losses = 0;         // findings of a loss
    std::optional<double> highest;  // z of the story's own nodes
};

/// By position in `CPicture::stories`. What has no known story is in none.
std::vector<CPlanStory> PlanStories(const CPicture& picture);

/// How many elements are on no plan, since their story is not known.
std::size_t ElementsWithoutStory(const CPicture& picture);

}  // namespace satwecvt

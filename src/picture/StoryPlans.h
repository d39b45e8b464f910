// Stories as plans to print: what the model has of each, to scale on a sheet, as one SVG document without styles or
// scripts. Every system writes the same bytes.
//
// Shown is what the model text file holds; in a colour of its own, what the conversion has left out. A member, a wall
// and a piece of a column is a path with the id "e" and its element number, a slab one with "s" and its key.
#pragma once

#include "picture/Picture.h"
#include "picture/PlanModel.h"
#include "picture/PlanScale.h"
#include "picture/PlanStory.h"

#include <cstddef>
#include <string>
#include <vector>

namespace satwecvt {

class CStoryPlans {
public:
    /// Takes time in proportion to the model, but for looking up numbers. The picture has to outlive the object.
    explicit CStoryPlans(const CPicture& storyPicture);

    /// The plan of the story at a position in the picture, in a time that depends on what it shows.
    std::string Plan(std::size_t story) const;

    /// The name of a file for it, which no other plan has: "story-03.svg" where the longest key has two digits.
    std::string Name(std::size_t story) const;

private:
    const CPicture& picture;
    CPlanModel model;
    CPlanScale scale;
    std::vector<CPlanStory> stories;
    std::size_t withoutStory;
    std::size_t widestKey;  // in digits
};

}  // namespace satwecvt

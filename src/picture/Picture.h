// A model as it arrived: the model text file that was read back, and what only the input can add to it, which is where
// each part came from and what was left out.
#pragma once

#include "check/LoadBalance.h"
#include "model/SatweModel.h"
#include "modelfile/ModelFile.h"
#include "satwecvt/Finding.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace satwecvt {

/// No story.
inline constexpr std::int32_t kNoStory = -1;

/// A story of the input, in the order of the keys.
struct CPictureStory {
    std::int32_t key = 0;
    std::int32_t storyNo = 0;
    std::int32_t line = 0;  // of the structure file
};

/// The record of the input that a node or an element was made of.
struct COrigin {
    EObject object = EObject::None;  // none: no record of the input is like this node or element
    std::int32_t story = kNoStory;   // its index
    std::int32_t key = 0;
    std::int32_t line = 0;  // of the structure file
};

/// A place in global directions.
struct CPicturePoint {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};

inline CPicturePoint PlaceOf(const CNode& node) noexcept
{
    return {node.x, node.y, node.z};
}

/// A wall or a triangle of a slab where it would stand, as far as its corners are there.
struct CLostShape {
    std::size_t finding = 0;  // its index
    std::vector<CPicturePoint> corners;
};

/// What a load has lost: between two places, or at one where they are the same.
struct CLostLoad {
    std::size_t finding = 0;  // its index
    CPicturePoint from;
    CPicturePoint to;
    double valueFrom = 0.0;  // in global Z: force or force per length; NaN where nobody can tell
    double valueTo = 0.0;
};

/// What a conversion has left to draw. The picture holds no copy: all of it has to outlive the picture.
struct CPictureSource {
    const CSatweModel& input;
    const CModelFile& model;
    std::span<const CFinding> findings;
    std::span<const CBalanceRow> loads;
    std::string structurePath;  // as its user gave it
    std::string loadPath;       // as its user gave it
    std::string version;        // of the program
};

struct CPicture {
    CPictureSource source;
    std::vector<CPictureStory> stories;
    std::vector<COrigin> nodes;           // of the model's nodes, by position
    std::vector<COrigin> frameElements;   // of its frame elements, by position
    std::vector<COrigin> planarElements;  // of its planar elements, by position
    std::vector<CLostShape> lostShapes;
    std::vector<CLostLoad> lostLoads;

    /// The index of the story with a key, or `kNoStory`.
    std::int32_t StoryOf(std::int32_t key) const;
};

/// Takes time in proportion to input and model.
CPicture MakePicture(CPictureSource source);

}  // namespace satwecvt

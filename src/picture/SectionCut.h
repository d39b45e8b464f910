// The cut through a section, in the local axes of its element: y to the right, z upward, the middle of the outer box at
// 0, 0. It is put together of closed loops: outer ones against the clock, holes with it.
#pragma once

#include "modelfile/ModelFile.h"

#include <optional>
#include <vector>

namespace satwecvt {

struct CCutPoint {
    double y = 0.0;
    double z = 0.0;
};

struct CCutLoop {
    std::vector<CCutPoint> corners;
    double radius = 0.0;  // of a circle around 0, 0, which has no corners
    bool isHole = false;
};

/// What a part is made of: the element's own material, or one of the two of a composite section.
enum class ECutMaterial { Own, Concrete, Steel };

struct CCutPart {
    ECutMaterial material = ECutMaterial::Own;
    std::vector<CCutLoop> loops;
};

struct CSectionCut {
    std::vector<CCutPart> parts;  // later ones lie on top
    double width = 0.0;           // of the outer box, along y
    double height = 0.0;          // along z
};

/// None for a shape that is not known, and where the dimensions make no shape: those that are below 0 or no numbers,
/// flanges and walls thicker than what they are a part of, and sides longer than `longest`.
std::optional<CSectionCut> SectionCut(const CSection& section, double longest);

}  // namespace satwecvt

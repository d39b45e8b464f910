#include "picture/SectionName.h"

#include "picture/PlanText.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <string_view>
#include <vector>

namespace satwecvt {

namespace {

/// The dimensions that name a shape, by their positions among the values.
struct CNamedShape {
    std::string_view shape;
    std::string_view letters;
    std::vector<std::size_t> dimensions;
};

const std::array<CNamedShape, 7>& NamedShapes()
{
    static const std::array<CNamedShape, 7> shapes{{{"SB", "", {1, 0}},
                                                    {"SR", "D", {0}},
                                                    {"H", "H", {0, 1, 2, 3}},
                                                    {"C", "C", {0, 1, 2, 3}},
                                                    {"2C", "2C", {0, 1, 2, 3}},
                                                    {"B", "B", {0, 1, 2, 3}},
                                                    {"P", "P", {0, 1}}}};
    return shapes;
}

}  // namespace

std::string SectionName(const CSection& section)
{
    const auto& shapes = NamedShapes();
    const auto named = std::find_if(shapes.begin(), shapes.end(),
                                    [&](const CNamedShape& known) { return known.shape == section.shape; });
    const bool isKnown = section.type == ESection::User && named != shapes.end();
    if (!isKnown ||
        !std::all_of(section.values.begin(), section.values.end(), [](double d) { return std::isfinite(d); })) {
        return "Sec" + std::to_string(section.number);
    }
    std::string name(named->letters);
    std::string_view parting;
    for (const std::size_t dimension : named->dimensions) {
        name += parting;
        name += LengthText(section.values[dimension]);
        parting = "x";
    }
    return name;
}

}  // namespace satwecvt

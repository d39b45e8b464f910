// The layers of a plan, from the lowest to the uppermost: each is a group with a look of its own, which the legend
// shows as well. Looks are presentation attributes, since a page may forbid styles.
#pragma once

#include "picture/PathText.h"
#include "picture/SvgText.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace satwecvt {

enum class EPlanLayer {
    Slabs,
    Beams,
    BeamLines,
    Walls,
    Leans,
    Braces,
    Columns,
    Hollows,
    Steel,
    ColumnMarks,
    Supports,
    Hinges,
    LostShapes,
    LostLoads,
};

inline constexpr std::size_t kPlanLayers = static_cast<std::size_t>(EPlanLayer::LostLoads) + 1;

/// What the legend draws of a layer.
enum class ELayerSample { None, Area, Line, Cross, Triangle, Circle };

struct CLayerLook {
    std::string_view name;
    std::string_view attributes;
    std::string_view meaning;
    ELayerSample sample;
};

const CLayerLook& LookOf(EPlanLayer layer) noexcept;

/// What fills a band between its lines. It lies over the lines of all bands, so that they end where bands meet.
inline constexpr std::string_view kBandFill = R"(fill="#fff" stroke="none")";

class CPlanLayers {
public:
    void AddPath(EPlanLayer layer, const CPathText& path, std::string_view id = {});
    void AddCircle(EPlanLayer layer, CPaperPoint middle, std::int32_t radius);

    bool IsUsed(EPlanLayer layer) const noexcept { return !ShapesOf(layer).Text().empty(); }

    /// The groups that are used. `suffix` tells ids apart from those of other plans in one document.
    void AddTo(CSvgText& svg, std::string_view suffix) const;

private:
    CSvgText& ShapesOf(EPlanLayer layer) noexcept { return shapes[static_cast<std::size_t>(layer)]; }
    const CSvgText& ShapesOf(EPlanLayer layer) const noexcept { return shapes[static_cast<std::size_t>(layer)]; }
    void AddGroup(CSvgText& svg, EPlanLayer layer) const;
    void AddBands(CSvgText& svg, std::string_view suffix) const;

    std::array<CSvgText, kPlanLayers> shapes;
};

/// Lines that cross in a point; each is `size` long and wide.
CPathText CrossAt(CPaperPoint middle, std::int32_t size);

/// A triangle below a point.
CPathText TriangleBelow(CPaperPoint top, std::int32_t size);

}  // namespace satwecvt

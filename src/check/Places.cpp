#include "check/Places.h"

#include <algorithm>
#include <limits>

namespace satwecvt {

namespace {

/// A quarter of the coordinates: differences of these are finite.
CVector Quarter(const T_SATWE_STND_D& node)
{
    return {node.x * 0.25, node.y * 0.25, node.z * 0.25};
}

bool IsFinite(const T_SATWE_STND_D& node)
{
    return std::isfinite(node.x) && std::isfinite(node.y) && std::isfinite(node.z);
}

struct CBounds {
    CVector low;
    double extent;  // the greatest one
};

CBounds BoundsOf(const CNodeList& nodes, const std::vector<char>& isPlaced)
{
    constexpr double kMost = std::numeric_limits<double>::max();
    CVector low{kMost, kMost, kMost};
    CVector high{-kMost, -kMost, -kMost};
    for (std::size_t position = 0; position < nodes.Count(); ++position) {
        if (isPlaced[position] != 0) {
            const CVector place = Quarter(*nodes.At(position).record);
            low = {std::min(low.x, place.x), std::min(low.y, place.y), std::min(low.z, place.z)};
            high = {std::max(high.x, place.x), std::max(high.y, place.y), std::max(high.z, place.z)};
        }
    }
    return {low, std::max({high.x - low.x, high.y - low.y, high.z - low.z})};
}

}  // namespace

std::vector<CVector> PlacesOf(const CNodeList& nodes, const CFrameList& frames, const CHangingParts& parts)
{
    std::vector<char> isPlaced(nodes.Count());
    for (std::size_t position = 0; position < nodes.Count(); ++position) {
        isPlaced[position] = parts.IsUsed(position) && IsFinite(*nodes.At(position).record) ? 1 : 0;
    }
    const CBounds bounds = BoundsOf(nodes, isPlaced);
    const double perUnit = 1.0 / bounds.extent;
    const double scale = std::isfinite(perUnit) ? perUnit : 0.0;  // without an extent they are all at one place
    constexpr double kNowhere = std::numeric_limits<double>::quiet_NaN();
    std::vector<CVector> places(frames.Positions(), {kNowhere, kNowhere, kNowhere});
    for (std::size_t position = 0; position < nodes.Count(); ++position) {
        if (isPlaced[position] != 0) {
            const CVector from = Quarter(*nodes.At(position).record) - bounds.low;
            places[position] = {from.x * scale, from.y * scale, from.z * scale};
        }
    }
    return places;
}

}  // namespace satwecvt

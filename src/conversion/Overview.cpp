#include "conversion/Overview.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace satwecvt {

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

void Include(CExtent& extent, double place)
{
    extent.from = std::min(extent.from, place);
    extent.to = std::max(extent.to, place);
}

void Include(COverview& overview, const CRecordTable<T_SATWE_STND_D>& nodes)
{
    for (const T_SATWE_STND_D& node : nodes.Records()) {
        if (std::isfinite(node.x) && std::isfinite(node.y) && std::isfinite(node.z)) {
            overview.hasNodes = true;
            Include(overview.x, node.x);
            Include(overview.y, node.y);
            Include(overview.z, node.z);
        }
    }
}

}  // namespace

COverview OverviewOf(const CSatweModel& model)
{
    COverview overview;
    overview.stories = static_cast<std::int64_t>(model.stories.Count());
    overview.x = overview.y = overview.z = {kInfinity, -kInfinity};
    Include(overview, model.nodes);
    for (const T_SATWE_STIF_D& story : model.stories.Records()) {
        Include(overview, story.nodes);
    }
    return overview;
}

}  // namespace satwecvt

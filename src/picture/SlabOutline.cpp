#include "picture/SlabOutline.h"

#include <algorithm>
#include <cstddef>

namespace satwecvt {

namespace {

/// From one node to another, whose number is higher.
struct CEdge {
    std::int32_t low;
    std::int32_t high;
    std::int32_t ways;  // 1 upward, -1 downward
};

struct CStep {
    std::int32_t from;
    std::int32_t to;
};

std::vector<CEdge> EdgesOf(std::span<const CSlabTriangle> triangles)
{
    std::vector<CEdge> edges;
    for (const auto& [a, b, c] : triangles) {
        for (const auto& [from, to] : {CStep{a, b}, CStep{b, c}, CStep{c, a}}) {
            if (from != to) {
                edges.push_back({std::min(from, to), std::max(from, to), from < to ? 1 : -1});
            }
        }
    }
    std::sort(edges.begin(), edges.end(),
              [](const CEdge& a, const CEdge& b) { return a.low != b.low ? a.low < b.low : a.high < b.high; });
    return edges;
}

/// The steps that no other takes back, sorted by where they start. As many lead to each node as from it.
std::vector<CStep> StepsOf(const std::vector<CEdge>& edges)
{
    std::vector<CStep> steps;
    for (std::size_t i = 0; i < edges.size();) {
        const auto [low, high, first] = edges[i];
        std::int32_t ways = 0;
        for (; i < edges.size() && edges[i].low == low && edges[i].high == high; ++i) {
            ways += edges[i].ways;
        }
        const CStep step = ways > 0 ? CStep{low, high} : CStep{high, low};
        steps.insert(steps.end(), static_cast<std::size_t>(ways > 0 ? ways : -ways), step);
    }
    std::stable_sort(steps.begin(), steps.end(), [](const CStep& a, const CStep& b) { return a.from < b.from; });
    return steps;
}

}  // namespace

std::vector<CSlabLoop> SlabOutline(std::span<const CSlabTriangle> triangles)
{
    const std::vector<CStep> steps = StepsOf(EdgesOf(triangles));
    std::vector<std::size_t> taken(steps.size(), 0);  // by the first step from a node: how many of its steps
    const auto firstFrom = [&](std::int32_t node) {
        const auto first = std::lower_bound(steps.begin(), steps.end(), node,
                                            [](const CStep& step, std::int32_t from) { return step.from < from; });
        return static_cast<std::size_t>(first - steps.begin());
    };
    std::vector<CSlabLoop> loops;
    for (std::size_t start = 0; start < steps.size(); ++start) {
        const std::int32_t begin = steps[start].from;
        const std::size_t first = firstFrom(begin);
        if (first + taken[first] > start) {
            continue;
        }
        CSlabLoop loop;
        std::int32_t node = begin;
        do {
            loop.push_back(node);
            const std::size_t from = firstFrom(node);
            node = steps[from + taken[from]++].to;
        } while (node != begin);
        loops.push_back(std::move(loop));
    }
    return loops;
}

}  // namespace satwecvt

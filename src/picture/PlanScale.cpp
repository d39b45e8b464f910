#include "picture/PlanScale.h"

#include <algorithm>
#include <array>

namespace satwecvt {

namespace {

constexpr std::array<CPlanPaper, 4> kPapers{{{"A4", 297, 210}, {"A3", 420, 297}, {"A2", 594, 420}, {"A1", 841, 594}}};

constexpr std::int32_t kBindingEdge = 2000;
constexpr std::int32_t kEdge = 1000;

/// What the field keeps free around the plan: for the dimensions, the axes and the scale bar.
constexpr std::int32_t kLeftOfPlan = 2000;
constexpr std::int32_t kBelowPlan = 2600;
constexpr std::int32_t kBesidePlan = 1000;

CPaperBox FieldOf(const CPlanPaper& paper) noexcept
{
    CPaperBox field = BorderOf(paper);
    field.high.x -= kTitleWidth;
    return field;
}

/// Where the plan can stand.
CPaperBox PlanRoom(const CPlanPaper& paper) noexcept
{
    const auto [low, high] = FieldOf(paper);
    return {{low.x + kLeftOfPlan, low.y + kBesidePlan}, {high.x - kBesidePlan, high.y - kBelowPlan}};
}

bool FitsOn(const CPlanPaper& paper, const CPlanBox& drawn, double perLength) noexcept
{
    const auto [low, high] = PlanRoom(paper);
    return drawn.Width() * perLength * 100.0 <= high.x - low.x && drawn.Height() * perLength * 100.0 <= high.y - low.y;
}

/// 20, 50, 100, 200, ...
std::int64_t NextDenominator(std::int64_t denominator) noexcept
{
    std::int64_t power = denominator;
    while (power % 10 == 0) {
        power /= 10;
    }
    return power == 2 ? denominator / 2 * 5 : denominator * 2;
}

}  // namespace

CPlanScale::CPlanScale(double length, const CPlanBox& drawn)
    : isInMetres(!(length > 500.0)),
      middle{(drawn.low.x + drawn.high.x) / 2.0, (drawn.low.y + drawn.high.y) / 2.0}
{
    constexpr std::int64_t kLast = 1'000'000'000'000;
    while (!FitsOn(kPapers.back(), drawn, Millimetres()) && denominator < kLast) {
        denominator = NextDenominator(denominator);
    }
    perLength = Millimetres();
    paper = std::find_if(kPapers.data(), &kPapers.back(),
                         [&](const CPlanPaper& one) { return FitsOn(one, drawn, perLength); });
}

CPaperBox CPlanScale::Field() const noexcept
{
    return FieldOf(*paper);
}

CPaperPoint CPlanScale::ToPaper(CPlanPoint point) const noexcept
{
    const auto [low, high] = PlanRoom(*paper);
    return {(low.x + high.x) / 2 + PaperLength((point.x - middle.x) * perLength),
            (low.y + high.y) / 2 - PaperLength((point.y - middle.y) * perLength)};
}

CPaperBox BorderOf(const CPlanPaper& paper) noexcept
{
    return {{kBindingEdge, kEdge}, {paper.width * 100 - kEdge, paper.height * 100 - kEdge}};
}

}  // namespace satwecvt

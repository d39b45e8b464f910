#include "model/ElasticRatio.h"

#include <algorithm>
#include <array>

namespace satwecvt {

namespace {

struct CElasticRatio {
    std::int32_t concreteGrade;
    double elast;
};

constexpr std::array<CElasticRatio, 14> kElasticRatios{{
    {15, 9.297707},
    {20, 8.106406},
    {25, 7.39146},
    {kDefaultConcreteGrade, 6.91484},
    {35, 6.574538},
    {40, 6.319212},
    {45, 6.120569},
    {50, 5.961683},
    {55, 5.831729},
    {60, 5.723494},
    {65, 5.6318},
    {70, 5.553309},
    {75, 5.485142},
    {80, 5.425621},
}};

}  // namespace

std::optional<double> ElasticRatioOf(std::int32_t concreteGrade) noexcept
{
    const auto row = std::find_if(kElasticRatios.begin(), kElasticRatios.end(),
                                  [&](const CElasticRatio& ratio) { return ratio.concreteGrade == concreteGrade; });
    return row != kElasticRatios.end() ? std::optional(row->elast) : std::nullopt;
}

}  // namespace satwecvt

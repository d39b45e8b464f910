#include "writer/CompositeProperties.h"

#include <algorithm>
#include <array>

namespace satwecvt {

namespace {

struct CElasticRatio {
    std::int32_t concreteGrade;
    double elast;
};

// Grade 30 has no row: it takes the default.
constexpr std::array<CElasticRatio, 13> kElasticRatios{{
    {15, 9.297707},
    {20, 8.106406},
    {25, 7.39146},
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
constexpr double kDefaultElasticRatio = 6.91484;

}  // namespace

CCompositeProperties GetCompositeProperties(std::int32_t concreteGrade)
{
    const auto row = std::find_if(kElasticRatios.begin(), kElasticRatios.end(),
                                  [&](const CElasticRatio& ratio) { return ratio.concreteGrade == concreteGrade; });
    const double elast = row != kElasticRatios.end() ? row->elast : kDefaultElasticRatio;
    return {elast, 3.0792, 0.3, 0.2};
}

}  // namespace satwecvt

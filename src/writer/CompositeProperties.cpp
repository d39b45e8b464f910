#include "writer/CompositeProperties.h"

#include "model/ElasticRatio.h"

namespace satwecvt {

CCompositeProperties GetCompositeProperties(std::int32_t concreteGrade)
{
    const auto ratio = ElasticRatioOf(concreteGrade);
    const double elast = ratio ? *ratio : ElasticRatioOf(kDefaultConcreteGrade).value();
    return {elast, 3.0792, 0.3, 0.2};
}

}  // namespace satwecvt

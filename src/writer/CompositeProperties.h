#pragma once

#include <cstdint>

namespace satwecvt {

/// The properties of a composite section's first line.
struct CCompositeProperties {
    double elast;  // elastic modulus of the steel over that of the concrete
    double den;    // density of the steel over that of the concrete
    double pois;   // Poisson's ratio of the steel
    double poic;   // Poisson's ratio of the concrete
};

/// The properties by concrete grade (15, 20, ... 80); any other grade has those of grade 30.
CCompositeProperties GetCompositeProperties(std::int32_t concreteGrade);

}  // namespace satwecvt

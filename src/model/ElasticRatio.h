#pragma once

#include <cstdint>
#include <optional>

namespace satwecvt {

/// The concrete grade whose ratio stands in for those that the table does not have.
inline constexpr std::int32_t kDefaultConcreteGrade = 30;

/// The elastic modulus of steel over that of a concrete grade (15, 20, ... 80); nothing for any other grade.
std::optional<double> ElasticRatioOf(std::int32_t concreteGrade) noexcept;

}  // namespace satwecvt

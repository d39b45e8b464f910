#pragma once

#include <cfenv>

namespace satwecvt {

/// The floating-point environment of a conversion: the default one, rounding to nearest with no exception trapped, so
/// that the host's settings cannot change a digit. The host's own is given back at the end.
class CFloatEnvironment {
public:
    CFloatEnvironment() noexcept
    {
        std::feholdexcept(&host);
        std::fesetenv(FE_DFL_ENV);
    }
    ~CFloatEnvironment() { std::fesetenv(&host); }
    CFloatEnvironment(const CFloatEnvironment&) = delete;
    CFloatEnvironment& operator=(const CFloatEnvironment&) = delete;

private:
    std::fenv_t host{};
};

}  // namespace satwecvt

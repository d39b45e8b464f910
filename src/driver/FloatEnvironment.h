#pragma once

#include <xmmintrin.h>

#include <cfenv>

namespace satwecvt {

/// The floating-point environment of a conversion: the default one, rounding to nearest with no exception trapped, so
/// that the host's settings cannot change a digit. The host's own is given back at the end.
///
/// Doubles are computed by the SSE unit, whose settings the C library of MinGW leaves alone where it sets the
/// environment: they are kept and set here.
class CFloatEnvironment {
public:
    CFloatEnvironment() noexcept
    {
        std::feholdexcept(&host);
        std::fesetenv(FE_DFL_ENV);
        _mm_setcsr(kDefaultSse);
    }
    ~CFloatEnvironment()
    {
        std::fesetenv(&host);
        _mm_setcsr(hostSse);
    }
    CFloatEnvironment(const CFloatEnvironment&) = delete;
    CFloatEnvironment& operator=(const CFloatEnvironment&) = delete;

private:
    static constexpr unsigned int kDefaultSse = 0x1F80;  // to nearest, all exceptions masked, no flag raised

    unsigned int hostSse = _mm_getcsr();
    std::fenv_t host{};
};

}  // namespace satwecvt

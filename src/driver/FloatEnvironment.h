#pragma once

#include <cfenv>

#if defined(__SSE2__) || defined(_M_X64) || (defined(_M_IX86_FP) && _M_IX86_FP >= 2)
#define SATWECVT_HAS_SSE
#include <xmmintrin.h>
#endif

namespace satwecvt {

#ifdef SATWECVT_HAS_SSE
/// Keeps the settings of the SSE unit, which computes the doubles: the C library of MinGW leaves them alone where it
/// sets the environment.
class CSseSettings {
public:
    CSseSettings() = default;
    ~CSseSettings() { _mm_setcsr(host); }
    CSseSettings(const CSseSettings&) = delete;
    CSseSettings& operator=(const CSseSettings&) = delete;

    static void SetDefault() noexcept
    {
        constexpr unsigned int kDefault = 0x1F80;  // to nearest, all exceptions masked, no flag raised
        _mm_setcsr(kDefault);
    }

private:
    unsigned int host = _mm_getcsr();
};
#else
/// Other processors have no settings beside those of the environment.
class CSseSettings {
public:
    static void SetDefault() noexcept {}
};
#endif

/// The floating-point environment of a conversion: the default one, rounding to nearest with no exception trapped, so
/// that the host's settings cannot change a digit. The host's own is given back at the end.
class CFloatEnvironment {
public:
    CFloatEnvironment() noexcept
    {
        std::feholdexcept(&host);
        std::fesetenv(FE_DFL_ENV);
        CSseSettings::SetDefault();
    }
    ~CFloatEnvironment() { std::fesetenv(&host); }
    CFloatEnvironment(const CFloatEnvironment&) = delete;
    CFloatEnvironment& operator=(const CFloatEnvironment&) = delete;

private:
    CSseSettings hostSse;  // given back after the environment
    std::fenv_t host{};
};

}  // namespace satwecvt

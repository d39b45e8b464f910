#pragma once

#include <cfenv>
#include <cstdint>

#if defined(__SSE2__) || defined(_M_X64) || (defined(_M_IX86_FP) && _M_IX86_FP >= 2)
#define SATWECVT_HAS_SSE
#include <xmmintrin.h>
#elif defined(_M_ARM64)
#include <intrin.h>
#endif

namespace satwecvt {

#if defined(SATWECVT_HAS_SSE)
/// Keeps the settings of the SSE unit, which computes the doubles: the C library of MinGW leaves them alone where it
/// sets the environment.
class CProcessorSettings {
public:
    CProcessorSettings() = default;
    ~CProcessorSettings() { _mm_setcsr(host); }
    CProcessorSettings(const CProcessorSettings&) = delete;
    CProcessorSettings& operator=(const CProcessorSettings&) = delete;

    static void SetDefault() noexcept
    {
        constexpr unsigned int kDefault = 0x1F80;  // to nearest, all exceptions masked, no flag raised
        _mm_setcsr(kDefault);
    }

private:
    unsigned int host = _mm_getcsr();
};
#elif defined(__aarch64__) || defined(_M_ARM64)
/// Keeps the control register of the unit that computes the doubles: where the C library sets the default environment,
/// it leaves bits of it alone that change results, such as the one that reads denormal numbers as 0.
class CProcessorSettings {
public:
    CProcessorSettings() = default;
    ~CProcessorSettings() { Set(host); }
    CProcessorSettings(const CProcessorSettings&) = delete;
    CProcessorSettings& operator=(const CProcessorSettings&) = delete;

    static void SetDefault() noexcept { Set(0); }  // to nearest, no exception trapped

private:
#if defined(_M_ARM64)
    static constexpr int kRegister = 0x5A20;  // FPCR

    static std::uint64_t Get() noexcept
    {
        return static_cast<std::uint64_t>(_ReadStatusReg(kRegister));
    }
    static void Set(std::uint64_t control) noexcept
    {
        _WriteStatusReg(kRegister, static_cast<std::int64_t>(control));
    }
#else
    static std::uint64_t Get() noexcept
    {
        std::uint64_t control = 0;
        __asm__ volatile("mrs %0, fpcr" : "=r"(control));
        return control;
    }
    static void Set(std::uint64_t control) noexcept
    {
        __asm__ volatile("msr fpcr, %0" : : "r"(control));
    }
#endif

    std::uint64_t host = Get();
};
#else
/// Other processors have no settings beside those of the environment.
class CProcessorSettings {
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
        CProcessorSettings::SetDefault();
    }
    ~CFloatEnvironment() { std::fesetenv(&host); }
    CFloatEnvironment(const CFloatEnvironment&) = delete;
    CFloatEnvironment& operator=(const CFloatEnvironment&) = delete;

private:
    [[maybe_unused]] CProcessorSettings hostSettings;  // given back after the environment
    std::fenv_t host{};
};

}  // namespace satwecvt

#pragma once

#include <version>

namespace satwecvt {

#if defined(__i386__) && defined(__GLIBCXX__)
/// While it lives, the x87 unit rounds to doubles, as the SSE unit does. libstdc++ for 32-bit x86 multiplies in the x87
/// unit when it reads a number: rounded to the 64 bits of that unit first, and to a double then, a product may become
/// the wrong one of its two neighbours.
class CDoublePrecision {
public:
    CDoublePrecision() noexcept
    {
        __asm__ volatile("fnstcw %0" : "=m"(host));
        constexpr unsigned int kPrecision = 0x300;
        constexpr unsigned int kDouble = 0x200;
        Set(static_cast<unsigned short>((host & ~kPrecision) | kDouble));
    }
    ~CDoublePrecision() { Set(host); }
    CDoublePrecision(const CDoublePrecision&) = delete;
    CDoublePrecision& operator=(const CDoublePrecision&) = delete;

private:
    static void Set(unsigned short control) noexcept { __asm__ volatile("fldcw %0" : : "m"(control)); }

    unsigned short host = 0;
};
#else
/// Doubles are read by integers, or by a unit that rounds to doubles.
class CDoublePrecision {};
#endif

}  // namespace satwecvt

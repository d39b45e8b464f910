#pragma once

#include <bit>

#ifndef __cpp_lib_bit_cast
#include <cstring>
#include <type_traits>
#endif

namespace satwecvt {

#ifdef __cpp_lib_bit_cast
using std::bit_cast;
#else
/// `std::bit_cast`, where the standard library has none.
template <class To, class From>
To bit_cast(const From& from) noexcept
{
    static_assert(sizeof(To) == sizeof(From));
    static_assert(std::is_trivially_copyable_v<To> && std::is_trivially_copyable_v<From>);
    To to;
    std::memcpy(&to, &from, sizeof to);
    return to;
}
#endif

}  // namespace satwecvt

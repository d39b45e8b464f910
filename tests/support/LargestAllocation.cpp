#include "support/LargestAllocation.h"

#include <algorithm>
#include <cstdlib>
#include <new>

namespace satwecvt {

std::size_t& LargestAllocation() noexcept
{
    static std::size_t largest = 0;
    return largest;
}

namespace {

void* Allocate(std::size_t size) noexcept
{
    std::size_t& largest = LargestAllocation();
    largest = std::max(largest, size);
    return std::malloc(size != 0 ? size : 1);
}

void* AllocateOrThrow(std::size_t size)
{
    if (void* const memory = Allocate(size)) {
        return memory;
    }
    throw std::bad_alloc();
}

}  // namespace
}  // namespace satwecvt

// All forms but the over-aligned ones, which nothing here uses: a sanitizer has its own of each.
void* operator new(std::size_t size)
{
    return satwecvt::AllocateOrThrow(size);
}
void* operator new[](std::size_t size)
{
    return satwecvt::AllocateOrThrow(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return satwecvt::Allocate(size);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    return satwecvt::Allocate(size);
}
void operator delete(void* memory) noexcept
{
    std::free(memory);
}
void operator delete[](void* memory) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, const std::nothrow_t&) noexcept
{
    std::free(memory);
}
void operator delete[](void* memory, const std::nothrow_t&) noexcept
{
    std::free(memory);
}

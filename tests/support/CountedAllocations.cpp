#include "support/CountedAllocations.h"

#include <algorithm>
#include <cstdlib>
#include <new>

namespace satwecvt {

namespace {

struct CState {
    bool isCounting = false;
    std::int64_t firstFailing = 0;
    std::int64_t lastFailing = 0;
    std::int64_t made = 0;
    std::int64_t failed = 0;
    std::size_t largest = 0;
    std::int64_t alive = 0;
};

constinit CState state;  // there before the first allocation of the program

bool Fails(std::size_t size) noexcept
{
    if (!state.isCounting) {
        return false;
    }
    ++state.made;
    state.largest = std::max(state.largest, size);
    const bool fails = state.firstFailing != 0 && state.made >= state.firstFailing && state.made <= state.lastFailing;
    state.failed += fails ? 1 : 0;
    return fails;
}

void* Allocate(std::size_t size) noexcept
{
    void* const memory = Fails(size) ? nullptr : std::malloc(size != 0 ? size : 1);
    state.alive += memory != nullptr ? 1 : 0;
    return memory;
}

void* AllocateOrThrow(std::size_t size)
{
    if (void* const memory = Allocate(size)) {
        return memory;
    }
    throw std::bad_alloc();
}

void Free(void* memory) noexcept
{
    state.alive -= memory != nullptr ? 1 : 0;
    std::free(memory);
}

}  // namespace

CCountedAllocations::CCountedAllocations(std::int64_t first, std::int64_t last) noexcept
{
    state.firstFailing = first;
    state.lastFailing = last;
    state.made = state.failed = 0;
    state.largest = 0;
    state.isCounting = true;
}

CCountedAllocations::~CCountedAllocations()
{
    state.isCounting = false;
}

std::int64_t CCountedAllocations::Made() noexcept
{
    return state.made;
}

std::int64_t CCountedAllocations::Failed() noexcept
{
    return state.failed;
}

std::size_t CCountedAllocations::Largest() noexcept
{
    return state.largest;
}

std::int64_t CCountedAllocations::Alive() noexcept
{
    return state.alive;
}

CUncountedAllocations::CUncountedAllocations() noexcept : wasCounting(state.isCounting)
{
    state.isCounting = false;
}

CUncountedAllocations::~CUncountedAllocations()
{
    state.isCounting = wasCounting;
}

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
    satwecvt::Free(memory);
}
void operator delete[](void* memory) noexcept
{
    satwecvt::Free(memory);
}
void operator delete(void* memory, std::size_t) noexcept
{
    satwecvt::Free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept
{
    satwecvt::Free(memory);
}
void operator delete(void* memory, const std::nothrow_t&) noexcept
{
    satwecvt::Free(memory);
}
void operator delete[](void* memory, const std::nothrow_t&) noexcept
{
    satwecvt::Free(memory);
}

// Memory that runs out when a test wants it to. A program that links CountedAllocations.cpp has all of its `new`
// counted; one that is made while a CCountedAllocations lives can be made to fail.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>

namespace satwecvt {

/// The allocations of the code under test: those of a scope of their own, without those of the test's own helpers.
class CCountedAllocations {
public:
    static constexpr std::int64_t kNoLimit = std::numeric_limits<std::int64_t>::max();

    /// Allocations number `first` to `last`, counted from 1, fail; none when `first` is 0.
    explicit CCountedAllocations(std::int64_t first = 0, std::int64_t last = 0) noexcept;
    ~CCountedAllocations();
    CCountedAllocations(const CCountedAllocations&) = delete;
    CCountedAllocations& operator=(const CCountedAllocations&) = delete;

    /// How many were asked for, those that failed included.
    static std::int64_t Made() noexcept;

    /// How many failed.
    static std::int64_t Failed() noexcept;

    /// The size of the largest block that was asked for, in bytes.
    static std::size_t Largest() noexcept;

    /// How many blocks of the whole program are allocated and not freed.
    static std::int64_t Alive() noexcept;
};

/// What allocates while this lives is the test's own: it is not counted, and never fails.
class CUncountedAllocations {
public:
    CUncountedAllocations() noexcept;
    ~CUncountedAllocations();
    CUncountedAllocations(const CUncountedAllocations&) = delete;
    CUncountedAllocations& operator=(const CUncountedAllocations&) = delete;

private:
    bool wasCounting;
};

}  // namespace satwecvt

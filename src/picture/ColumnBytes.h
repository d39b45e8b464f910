// Columns of values as bytes, for a page: little-endian on every machine, and each in the shortest of a few forms. A
// column is its name (a byte for the length, then ASCII), its form in a byte, how many values it has in four, and them:
//
//   1, 2, 3   integers of 8, 16, 32 bits
//   4, 5      integers as differences, of 8 or 16 bits, from the one before, the first from 0; sums wrap at 32 bits
//   6         doubles
//   7, 8      doubles as indexes, of 8 or 16 bits, into those that occur, which stand in front with their number
//   9         texts: the length of each in 32 bits, then their bytes
//   10, 11    an integer of 32 bits, or a double, that all values are
//
// A column without values is form 3, 6 or 9.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace satwecvt {

class CColumnBytes {
public:
    CColumnBytes();

    void Add(std::string_view name, std::span<const std::int32_t> integers);
    void Add(std::string_view name, std::span<const double> reals);
    void Add(std::string_view name, std::span<const std::string> texts);

    /// How many bytes a column of texts takes that are `length` bytes long together.
    static constexpr std::size_t BytesOfTexts(std::string_view name, std::size_t count, std::size_t length) noexcept
    {
        constexpr std::size_t kHead = 1 + 1 + sizeof(std::uint32_t);  // but for the name itself
        return kHead + name.size() + count * sizeof(std::uint32_t) + length;
    }

    /// What was added so far, behind the mark and the version of the form.
    const std::string& Bytes() const noexcept { return bytes; }

private:
    void Begin(std::string_view name, std::uint8_t form, std::size_t count);
    bool AddByIndex(std::string_view name, std::span<const double> reals);

    std::string bytes;
};

}  // namespace satwecvt

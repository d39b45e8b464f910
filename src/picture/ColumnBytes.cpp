#include "picture/ColumnBytes.h"

#include "doubles/BitCast.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <unordered_map>

namespace satwecvt {

namespace {

constexpr std::string_view kMark = "SATV";
constexpr std::uint32_t kVersion = 1;
constexpr std::size_t kMostDistinct = 65536;  // that an index of 16 bits can tell apart

enum EForm : std::uint8_t {
    kBytes = 1,
    kShorts = 2,
    kIntegers = 3,
    kByteSteps = 4,
    kShortSteps = 5,
    kReals = 6,
    kByteIndexes = 7,
    kShortIndexes = 8,
    kTexts = 9,
    kOneInteger = 10,
    kOneReal = 11,
};

/// Appends the lowest `size` bytes of a number, the lowest first.
void Put(std::string& bytes, std::uint64_t number, std::size_t size)
{
    constexpr unsigned kBits = 8;
    char text[sizeof number];
    for (std::size_t i = 0; i < size; ++i, number >>= kBits) {
        text[i] = static_cast<char>(number & 0xFFU);
    }
    bytes.append(text, size);
}

/// The bits of a double. A NaN has the same on every machine, whatever came before it.
std::uint64_t BitsOf(double real)
{
    return bit_cast<std::uint64_t>(std::isnan(real) ? std::numeric_limits<double>::quiet_NaN() : real);
}

void PutReal(std::string& bytes, double real)
{
    Put(bytes, BitsOf(real), sizeof real);
}

/// How many bytes hold every number from `least` to `most`: 1, 2 or 4.
std::size_t BytesFor(std::int32_t least, std::int32_t most)
{
    const auto holds = [&](auto limit) {
        using Limits = std::numeric_limits<decltype(limit)>;
        return least >= Limits::min() && most <= Limits::max();
    };
    return holds(std::int8_t{}) ? 1 : holds(std::int16_t{}) ? 2 : 4;
}

std::int32_t Step(std::int32_t from, std::int32_t to)
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(to) - static_cast<std::uint32_t>(from));
}

/// How many bytes the values need, as they are and as differences.
struct CWidths {
    std::size_t plain;
    std::size_t steps;
};

CWidths WidthsOf(std::span<const std::int32_t> integers)
{
    const auto [least, most] = std::minmax_element(integers.begin(), integers.end());
    std::int32_t last = 0;
    std::int32_t leastStep = 0;
    std::int32_t mostStep = 0;
    for (const std::int32_t integer : integers) {
        const std::int32_t step = Step(last, integer);
        leastStep = std::min(leastStep, step);
        mostStep = std::max(mostStep, step);
        last = integer;
    }
    return {BytesFor(*least, *most), BytesFor(leastStep, mostStep)};
}

EForm PlainForm(std::size_t width)
{
    return width == 1 ? kBytes : width == 2 ? kShorts : kIntegers;
}

/// Values as indexes into those that occur, which are told apart by their bits. Empty where more occur than `most` and
/// more than one.
struct CIndexedReals {
    CIndexedReals(std::span<const double> reals, std::size_t most);

    std::vector<double> distinct;
    std::vector<std::uint32_t> indexes;
};

CIndexedReals::CIndexedReals(std::span<const double> reals, std::size_t most)
{
    std::unordered_map<std::uint64_t, std::uint32_t> indexOf;
    std::uint64_t lastBits = 0;  // neighbours are often equal
    for (const double real : reals) {
        const std::uint64_t bits = BitsOf(real);
        if (!indexes.empty() && bits == lastBits) {
            indexes.push_back(indexes.back());
            continue;
        }
        lastBits = bits;
        const auto [entry, isNew] = indexOf.try_emplace(bits, static_cast<std::uint32_t>(distinct.size()));
        if (isNew) {
            distinct.push_back(real);
        }
        if (distinct.size() > std::max(most, std::size_t{1})) {
            distinct.clear();
            return;
        }
        indexes.push_back(entry->second);
    }
}

}  // namespace

CColumnBytes::CColumnBytes() : bytes(kMark)
{
    Put(bytes, kVersion, sizeof kVersion);
}

void CColumnBytes::Begin(std::string_view name, std::uint8_t form, std::size_t count)
{
    Put(bytes, name.size(), 1);
    bytes += name;
    Put(bytes, form, 1);
    Put(bytes, count, sizeof(std::uint32_t));
}

void CColumnBytes::Add(std::string_view name, std::span<const std::int32_t> integers)
{
    if (integers.empty()) {
        Begin(name, kIntegers, 0);
        return;
    }
    const bool isOne = std::all_of(integers.begin(), integers.end(),
                                   [&](std::int32_t integer) { return integer == integers.front(); });
    if (isOne) {
        Begin(name, kOneInteger, integers.size());
        Put(bytes, static_cast<std::uint32_t>(integers.front()), sizeof(std::int32_t));
        return;
    }
    const CWidths widths = WidthsOf(integers);
    const bool isInSteps = widths.steps < widths.plain;
    const std::size_t width = isInSteps ? widths.steps : widths.plain;
    Begin(name, !isInSteps ? PlainForm(width) : width == 1 ? kByteSteps : kShortSteps, integers.size());
    std::int32_t last = 0;
    for (const std::int32_t integer : integers) {
        Put(bytes, static_cast<std::uint32_t>(isInSteps ? Step(last, integer) : integer), width);
        last = integer;
    }
}

void CColumnBytes::Add(std::string_view name, std::span<const double> reals)
{
    if (AddByIndex(name, reals)) {
        return;
    }
    Begin(name, kReals, reals.size());
    for (const double real : reals) {
        PutReal(bytes, real);
    }
}

/// Adds a column of few distinct values. Returns false, and adds nothing, where that is no shorter.
bool CColumnBytes::AddByIndex(std::string_view name, std::span<const double> reals)
{
    const CIndexedReals indexed(reals, std::min(kMostDistinct, reals.size() * 3 / 4));
    if (indexed.distinct.size() == 1) {
        Begin(name, kOneReal, reals.size());
        PutReal(bytes, reals.front());
    } else if (!indexed.distinct.empty()) {
        constexpr std::size_t kOfAByte = 256;
        const std::size_t width = indexed.distinct.size() <= kOfAByte ? 1 : 2;
        Begin(name, width == 1 ? kByteIndexes : kShortIndexes, reals.size());
        Put(bytes, indexed.distinct.size(), sizeof(std::uint32_t));
        for (const double real : indexed.distinct) {
            PutReal(bytes, real);
        }
        for (const std::uint32_t index : indexed.indexes) {
            Put(bytes, index, width);
        }
    }
    return !indexed.distinct.empty();
}

void CColumnBytes::Add(std::string_view name, std::span<const std::string> texts)
{
    Begin(name, kTexts, texts.size());
    for (const std::string& text : texts) {
        Put(bytes, text.size(), sizeof(std::uint32_t));
    }
    for (const std::string& text : texts) {
        bytes += text;
    }
}

}  // namespace satwecvt

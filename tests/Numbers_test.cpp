// Numbers in and out against the C library, in bulk: strtod reads every text as the readers do, printf writes every
// double as the writers do. SATWECVT_ROUNDS makes longer runs, SATWECVT_SEED other ones.
#include "doubles/BitCast.h"
#include "doubles/CharConversion.h"
#include "lines/Decimal.h"
#include "lines/NumberPrefix.h"
#include "lines/SameDouble_test.h"
#include "support/Figure.h"
#include "text/NumberText.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <string_view>

namespace satwecvt {
namespace {

std::uint64_t FromEnvironment(const char* name, std::uint64_t otherwise)
{
    const char* const text = std::getenv(name);
    return text != nullptr ? std::strtoull(text, nullptr, 10) : otherwise;
}

std::uint64_t Rounds()
{
    return FromEnvironment("SATWECVT_ROUNDS", 300'000);
}

std::mt19937_64 Random()
{
    return std::mt19937_64(FromEnvironment("SATWECVT_SEED", 20261121));
}

/// Reads a text in all ways of the house.
void ExpectAsStrtod(const std::string& text)
{
    const double expected = std::strtod(text.c_str(), nullptr);
    ASSERT_TRUE(AreSame(expected, ParseNumberPrefix(text))) << text;

    const std::string line = text + '\n';
    const char* at = line.data();
    double value = 0.0;
    if (ReadDecimal(at, value)) {
        const std::string taken(line.data(), at);
        ASSERT_TRUE(AreSame(std::strtod(taken.c_str(), nullptr), value)) << text;
    }
}

/// A decimal number of any look: up to 30 digits, a point, an exponent.
std::string RandomDecimal(std::mt19937_64& random)
{
    std::string text = std::to_string(random()) + std::to_string(random());
    text.resize(static_cast<unsigned>(1 + random() % 30));
    if (random() % 2 == 0) {
        text.insert(static_cast<unsigned>(random() % (text.size() + 1)), ".");
    }
    if (random() % 3 == 0) {
        const std::uint64_t limit = random() % 4 == 0 ? 400 : 30;
        const auto exponent = static_cast<std::int64_t>(random() % (2 * limit)) - static_cast<std::int64_t>(limit);
        text += (random() % 2 == 0 ? "E" : "e") + std::to_string(exponent);
    }
    return text;
}

TEST(NumbersIn, EveryTextUpToFiveCharactersIsReadAsStrtodReadsIt)
{
    constexpr std::string_view kCharacters = "0123456789+-.eExX infNAN";
    std::string text;
    std::uint64_t texts = 0;
    const auto extend = [&](const auto& self) -> void {
        ExpectAsStrtod(text);
        ++texts;
        if (text.size() == 5 || HasFatalFailure()) {
            return;
        }
        for (const char c : kCharacters) {
            text.push_back(c);
            self(self);
            text.pop_back();
        }
    };
    extend(extend);
    PrintFigure(texts, "short texts read as strtod reads them");
}

TEST(NumbersIn, RandomDecimalsAreReadAsStrtodReadsThem)
{
    std::mt19937_64 random = Random();
    for (std::uint64_t round = Rounds(); round > 0; --round) {
        ExpectAsStrtod(RandomDecimal(random));
        ASSERT_FALSE(HasFatalFailure());
    }
    PrintFigure(Rounds(), "random decimals read as strtod reads them");
}

// Numbers as other programs print them.
TEST(NumbersIn, PrintedDoublesComeBack)
{
    std::mt19937_64 random = Random();
    for (std::uint64_t round = Rounds(); round > 0; --round) {
        const double number = bit_cast<double>(random() & ~(std::uint64_t{1} << 63));
        if (!std::isfinite(number)) {
            continue;
        }
        std::array<char, 32> text{};
        const char* const end = ToChars(text.data(), text.data() + text.size(), number).ptr;
        ASSERT_TRUE(AreSame(number, ParseNumberPrefix({text.data(), static_cast<std::size_t>(end - text.data())})))
            << text.data();
    }
    PrintFigure(Rounds(), "printed doubles read back");
}

void ExpectAsPrintf(double number)
{
    std::array<char, 32> expected{};
    std::snprintf(expected.data(), expected.size(), "%g", number);
    std::array<char, 32> text{};
    *WriteReal(text.data(), number) = '\0';
    ASSERT_STREQ(number != number ? "nan" : expected.data(), text.data());
}

TEST(NumbersOut, RandomDoublesAreWrittenAsByPrintf)
{
    std::mt19937_64 random = Random();
    for (std::uint64_t round = Rounds(); round > 0; --round) {
        ExpectAsPrintf(bit_cast<double>(random()));
        ExpectAsPrintf(std::ldexp(static_cast<double>(random() >> 11), -static_cast<int>(random() % 125)));
        ASSERT_FALSE(HasFatalFailure());
    }
    PrintFigure(2 * Rounds(), "random doubles written as printf writes them");
}

// An odd step meets every float before it meets one again: 2^32 rounds are all of them.
TEST(NumbersOut, FloatsAreWrittenAsByPrintf)
{
    constexpr std::uint32_t kStep = 0x9E3779B1;
    auto bits = static_cast<std::uint32_t>(Random()());
    for (std::uint64_t round = Rounds(); round > 0; --round, bits += kStep) {
        ExpectAsPrintf(static_cast<double>(bit_cast<float>(bits)));
        ASSERT_FALSE(HasFatalFailure());
    }
    PrintFigure(Rounds(), "floats written as printf writes them");
}

TEST(NumbersOut, RandomDecimalsAreWrittenAsByPrintf)
{
    std::mt19937_64 random = Random();
    constexpr std::array<double, 8> kScales{1.0, 10.0, 100.0, 1e3, 1e4, 1e6, 1e9, 1e12};
    for (std::uint64_t round = Rounds(); round > 0; --round) {
        const auto digits = static_cast<double>(random() % 1'000'000'000);
        ExpectAsPrintf(digits / kScales[random() % kScales.size()]);
        ASSERT_FALSE(HasFatalFailure());
    }
    PrintFigure(Rounds(), "random decimals written as printf writes them");
}

}  // namespace
}  // namespace satwecvt

// Numbers against strtod of the C library. That of Windows does not read every number exactly; there the tables of
// NumberPrefix_test.cpp have to do.
#ifndef _WIN32

#include "lines/NumberPrefix.h"

#include "doubles/BitCast.h"
#include "lines/SameDouble_test.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>
#include <string_view>

namespace satwecvt {
namespace {

/// The C library of Emscripten rounds hexadecimal numbers below the normal ones twice.
bool IsMisread([[maybe_unused]] const std::string& text, [[maybe_unused]] double expected)
{
#ifdef __EMSCRIPTEN__
    return text.find('x') != std::string::npos && std::abs(expected) < std::numeric_limits<double>::min();
#else
    return false;
#endif
}

void ExpectAsStrtod(const std::string& text)
{
    const double expected = std::strtod(text.c_str(), nullptr);
    const double value = ParseNumberPrefix(text);
    if (IsMisread(text, expected)) {
        return;
    }
    ASSERT_TRUE(AreSame(expected, value)) << testing::PrintToString(text) << " gives " << value << ", not " << expected;
}

template <class... Arguments>
std::string Printed(const char* format, Arguments... arguments)
{
    std::string text(2000, '\0');
    text.resize(static_cast<std::size_t>(std::snprintf(text.data(), text.size(), format, arguments...)));
    return text;
}

double RandomDouble(std::mt19937_64& random)
{
    return bit_cast<double>(random());
}

std::string RandomText(std::mt19937& random, std::string_view alphabet, std::size_t longest)
{
    std::string text(random() % (longest + 1), ' ');
    for (char& c : text) {
        c = alphabet[random() % alphabet.size()];
    }
    return text;
}

TEST(NumberPrefixTwin, RandomTextsAreReadAsByStrtod)
{
    std::mt19937 random(1);
    for (int round = 0; round < 100'000; ++round) {
        ExpectAsStrtod(RandomText(random, "0123456789.eE+-", 12));
        ExpectAsStrtod(RandomText(random, "01.eExXpPaF+- ", 10));
        ExpectAsStrtod(RandomText(random, "0x1.pE-", 8));
        ExpectAsStrtod(RandomText(random, "iInNfFtTyYaA()_1-+ ", 9));
        ASSERT_FALSE(HasFatalFailure());
    }
}

TEST(NumberPrefixTwin, RandomDecimalNumbersAreReadAsByStrtod)
{
    constexpr std::string_view kDigits = "0123456789";
    std::mt19937 random(2);
    for (int round = 0; round < 100'000; ++round) {
        const std::size_t longest = round % 20 == 0 ? 450 : 20;
        const int exponent = static_cast<int>(random() % 900) - 450;
        const std::string number = RandomText(random, kDigits, longest) + "." + RandomText(random, kDigits, longest);
        ExpectAsStrtod(number);
        ExpectAsStrtod("-" + number + "E" + std::to_string(exponent));
        ExpectAsStrtod("0." + std::string(random() % 400, '0') + number + "e" + std::to_string(exponent));
        ASSERT_FALSE(HasFatalFailure());
    }
}

TEST(NumberPrefixTwin, RandomHexadecimalNumbersAreReadAsByStrtod)
{
    constexpr std::string_view kDigits = "000fF88123456789aBcD";
    std::mt19937 random(3);
    for (int round = 0; round < 100'000; ++round) {
        const std::size_t longest = round % 20 == 0 ? 300 : 16;
        const int exponent = static_cast<int>(random() % 2400) - 1200;
        const std::string number =
            "0x" + RandomText(random, kDigits, longest) + "." + RandomText(random, kDigits, longest);
        ExpectAsStrtod(number);
        ExpectAsStrtod("-" + number + "P" + std::to_string(exponent));
        ASSERT_FALSE(HasFatalFailure());
    }
}

TEST(NumberPrefixTwin, PrintedDoublesAreReadAsByStrtod)
{
    std::mt19937_64 random(4);
    for (int round = 0; round < 100'000; ++round) {
        const double number = RandomDouble(random);
        ExpectAsStrtod(Printed("%.*g", static_cast<int>(random() % 25), number));
        ExpectAsStrtod(Printed("%a", number));
        ExpectAsStrtod(Printed("%.17g", std::ldexp(number, -2000)));  // mostly 0 and subnormal numbers
        ASSERT_FALSE(HasFatalFailure());
    }
}

// Half-way between two doubles, and a last digit up or down from there.
TEST(NumberPrefixTwin, NumbersHalfWayBetweenTwoDoublesAreReadAsByStrtod)
{
    static_assert(std::numeric_limits<long double>::digits > std::numeric_limits<double>::digits);
    std::mt19937_64 random(5);
    for (int round = 0; round < 20'000; ++round) {
        const double number = bit_cast<double>(random() % bit_cast<std::uint64_t>(std::numeric_limits<double>::max()));
        const auto next = static_cast<long double>(std::nextafter(number, std::numeric_limits<double>::infinity()));
        std::string text = Printed("%.1100Lf", (static_cast<long double>(number) + next) / 2);
        ExpectAsStrtod(text);
        text.back() = '1';
        ExpectAsStrtod(text);
        ASSERT_FALSE(HasFatalFailure());
    }
}

}  // namespace
}  // namespace satwecvt

#endif

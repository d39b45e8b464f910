// The judges: values by hand, the C library's strtod, and the standard library's own conversions where it has them.
#include "doubles/OwnCharConversion.h"

#include "doubles/BitCast.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>
#include <string_view>
#include <system_error>

namespace satwecvt {
namespace {

constexpr auto kHex = std::chars_format::hex;
constexpr auto kGeneral = std::chars_format::general;
constexpr double kUntouched = -77.0;

/// What was read of a text: the value, how many characters, the error.
struct CRead {
    double value = kUntouched;
    std::size_t length = 0;
    std::errc error{};
};

CRead Read(std::string_view text, std::chars_format format)
{
    CRead read;
    const auto [end, error] = own::FromChars(text.data(), text.data() + text.size(), read.value, format);
    read.length = static_cast<std::size_t>(end - text.data());
    read.error = error;
    return read;
}

void ExpectRead(std::string_view text, std::chars_format format, double value, std::size_t length)
{
    const CRead read = Read(text, format);
    EXPECT_EQ(std::errc(), read.error) << text;
    EXPECT_EQ(bit_cast<std::uint64_t>(value), bit_cast<std::uint64_t>(read.value)) << text;
    EXPECT_EQ(length, read.length) << text;
}

void ExpectError(std::string_view text, std::chars_format format, std::errc error, std::size_t length)
{
    const CRead read = Read(text, format);
    EXPECT_EQ(error, read.error) << text;
    EXPECT_EQ(kUntouched, read.value) << text;
    EXPECT_EQ(length, read.length) << text;
}

std::string Shortest(double value)
{
    std::array<char, 400> text{};
    return {text.data(), own::ToChars(text.data(), text.data() + text.size(), value).ptr};
}

std::string WithDigits(double value, int digits)
{
    std::array<char, 400> text{};
    return {text.data(), own::ToChars(text.data(), text.data() + text.size(), value, digits).ptr};
}

TEST(OwnFromChars, ReadsTheLongestDecimalNumber)
{
    ExpectRead("12.5", kGeneral, 12.5, 4);
    ExpectRead("12.5e1x", kGeneral, 125.0, 6);
    ExpectRead("12e", kGeneral, 12.0, 2);
    ExpectRead("12e+", kGeneral, 12.0, 2);
    ExpectRead("5.", kGeneral, 5.0, 2);
    ExpectRead(".5", kGeneral, 0.5, 2);
    ExpectRead("-0", kGeneral, -0.0, 2);
    ExpectRead("0e999", kGeneral, 0.0, 5);
    ExpectRead("0.1", kGeneral, 0x1.999999999999ap-4, 3);
    ExpectRead("9007199254740993", kGeneral, 9007199254740992.0, 16);  // halfway: to the even one
    ExpectRead("-inf", kGeneral, -std::numeric_limits<double>::infinity(), 4);
    ExpectRead("Infinity", kGeneral, std::numeric_limits<double>::infinity(), 8);
}

TEST(OwnFromChars, RefusesWhatIsNoNumber)
{
    for (const std::string_view text : {"", "x", "-", "+1", " 1", ".", "e5", "--1"}) {
        ExpectError(text, kGeneral, std::errc::invalid_argument, 0);
    }
    for (const std::string_view text : {"", "g", "-", "+1", ".", "p5", "-p1"}) {
        ExpectError(text, kHex, std::errc::invalid_argument, 0);
    }
}

TEST(OwnFromChars, TellsWhatIsTooLargeOrTooSmall)
{
    ExpectError("1e999x", kGeneral, std::errc::result_out_of_range, 5);
    ExpectError("-1e999", kGeneral, std::errc::result_out_of_range, 6);
    ExpectError("0.001e-999", kGeneral, std::errc::result_out_of_range, 10);
    ExpectError("1p1024", kHex, std::errc::result_out_of_range, 6);
    ExpectError("1.fffffffffffff8p1023", kHex, std::errc::result_out_of_range, 21);  // rounds up to 2^1024
    ExpectError("1p-1075", kHex, std::errc::result_out_of_range, 7);                 // half of the least: to the even 0
    ExpectError("1p-99999999999999999999", kHex, std::errc::result_out_of_range, 23);
}

TEST(OwnFromChars, ReadsHexadecimalNumbers)
{
    ExpectRead("0", kHex, 0.0, 1);
    ExpectRead("-0.0p9", kHex, -0.0, 6);
    ExpectRead("1.8p3", kHex, 12.0, 5);
    ExpectRead("-A", kHex, -10.0, 2);
    ExpectRead(".8", kHex, 0.5, 2);
    ExpectRead("f.", kHex, 15.0, 2);
    ExpectRead("1p", kHex, 1.0, 1);
    ExpectRead("1p+", kHex, 1.0, 1);
    ExpectRead("1p+1.", kHex, 2.0, 4);
    ExpectRead("1.2.3", kHex, 1.125, 3);
    ExpectRead("00000000000000000000000001", kHex, 1.0, 26);
    ExpectRead("1000000000000000000000000p-96", kHex, 1.0, 29);
    ExpectRead("0.00000000000000000000001p92", kHex, 1.0, 28);
}

TEST(OwnFromChars, RoundsHexadecimalNumbersOnce)
{
    ExpectRead("1.00000000000008p0", kHex, 1.0, 18);                  // halfway: to the even one
    ExpectRead("1.00000000000018p0", kHex, 0x1.0000000000002p0, 18);  // halfway, the other way
    ExpectRead("1.000000000000080000000000001", kHex, 0x1.0000000000001p0, 29);
    ExpectRead("1.fffffffffffff7p1023", kHex, 0x1.fffffffffffffp1023, 21);
    ExpectRead("1p-1074", kHex, std::numeric_limits<double>::denorm_min(), 7);
    ExpectRead("1.8p-1075", kHex, std::numeric_limits<double>::denorm_min(), 9);
    ExpectRead("1.8p-1074", kHex, 2 * std::numeric_limits<double>::denorm_min(), 9);  // halfway: to the even one
    ExpectRead("1.4p-1074", kHex, std::numeric_limits<double>::denorm_min(), 9);
    ExpectRead("0.fffffffffffffcp-1022", kHex, 0x1p-1022, 22);
}

/// A random hexadecimal number, many of them at the borders of what a double holds.
std::string RandomHex(std::mt19937& random)
{
    constexpr std::string_view kDigits = "0123456789abcdefABCDEF000000888888ffffff";
    std::string text;
    const std::size_t length = 1 + random() % 22;
    for (std::size_t i = 0; i < length; ++i) {
        text += kDigits[random() % kDigits.size()];
    }
    if (random() % 2 == 0) {
        text.insert(random() % (text.size() + 1), 1, '.');
    }
    const int exponent = static_cast<int>(random() % 2400) - 1200;
    return text + "p" + std::to_string(exponent);
}

TEST(OwnFromChars, ReadsHexadecimalNumbersAsTheCLibrary)
{
    std::mt19937 random(20261122);
    for (int round = 0; round < 100'000; ++round) {
        const std::string text = RandomHex(random);
        const double expected = std::strtod(("0x" + text).c_str(), nullptr);
        const CRead read = Read(text, kHex);
        ASSERT_EQ(text.size(), read.length) << text;
#ifdef __EMSCRIPTEN__  // whose C library rounds numbers below the normal ones twice
        if (std::abs(expected) < std::numeric_limits<double>::min()) {
            continue;
        }
#endif
        if (read.error == std::errc::result_out_of_range) {
            ASSERT_TRUE(expected == 0.0 || std::isinf(expected)) << text;
        } else {
            ASSERT_EQ(bit_cast<std::uint64_t>(expected), bit_cast<std::uint64_t>(read.value)) << text;
        }
    }
}

TEST(OwnToChars, WritesTheShortestText)
{
    EXPECT_EQ("0", Shortest(0.0));
    EXPECT_EQ("-0", Shortest(-0.0));
    EXPECT_EQ("0.1", Shortest(0.1));
    EXPECT_EQ("-12.5", Shortest(-12.5));
    EXPECT_EQ("100", Shortest(100.0));
    EXPECT_EQ("1e+05", Shortest(100000.0));
    EXPECT_EQ("123456", Shortest(123456.0));
    EXPECT_EQ("0.001", Shortest(0.001));
    EXPECT_EQ("0.00012", Shortest(0.00012));
    EXPECT_EQ("1e-04", Shortest(0.0001));
    EXPECT_EQ("2147483648", Shortest(2147483648.0));
    EXPECT_EQ("0.30000000000000004", Shortest(0.1 + 0.2));
    EXPECT_EQ("5e-324", Shortest(std::numeric_limits<double>::denorm_min()));
    EXPECT_EQ("1.7976931348623157e+308", Shortest(std::numeric_limits<double>::max()));
    EXPECT_EQ("inf", Shortest(std::numeric_limits<double>::infinity()));
}

TEST(OwnToChars, WritesSixDigitsAsPrintf)
{
    EXPECT_EQ("1e+06", WithDigits(1e6, 6));
    EXPECT_EQ("999999", WithDigits(999999.4, 6));
    EXPECT_EQ("0.0001", WithDigits(0.0001, 6));
    EXPECT_EQ("1e-05", WithDigits(0.00001, 6));
    EXPECT_EQ("-1.5e+300", WithDigits(-1.5e300, 6));
    EXPECT_EQ("-inf", WithDigits(-std::numeric_limits<double>::infinity(), 6));
    EXPECT_EQ("-0", WithDigits(-0.0, 6));
}

TEST(OwnToChars, SaysWhenThereIsNoRoom)
{
    std::array<char, 4> text{};
    EXPECT_EQ(std::errc::value_too_large, own::ToChars(text.data(), text.data() + text.size(), 12.25).ec);
    EXPECT_EQ(std::errc::value_too_large, own::ToChars(text.data(), text.data() + text.size(), 12.25, 6).ec);
    EXPECT_EQ(std::errc(), own::ToChars(text.data(), text.data() + text.size(), 12.5).ec);
}

#ifdef __cpp_lib_to_chars

std::string StandardShortest(double value)
{
    std::array<char, 400> text{};
    return {text.data(), std::to_chars(text.data(), text.data() + text.size(), value).ptr};
}

TEST(OwnToChars, WritesTheShortestTextOfTheStandardLibrary)
{
    for (int exponent = -1074; exponent < 1024; ++exponent) {
        const double power = std::ldexp(1.0, exponent);
        ASSERT_EQ(StandardShortest(power), Shortest(power));
    }
    std::mt19937_64 random(20261122);
    for (int round = 0; round < 30'000; ++round) {
        const double bits = bit_cast<double>(random());
        const double middle = static_cast<double>(static_cast<std::int64_t>(random())) / 1024.0;
        for (const double value : {bits, middle, std::round(middle), std::round(middle) / 1000.0}) {
            if (!std::isnan(value)) {
                ASSERT_EQ(StandardShortest(value), Shortest(value));
            }
        }
    }
}

TEST(OwnFromChars, ReadsWhatTheStandardLibraryReads)
{
    std::mt19937 random(20261122);
    constexpr std::string_view kCharacters = "0123456789012345.e-+ENnaIinfty()x_";
    for (int round = 0; round < 200'000; ++round) {
        std::string text;
        for (std::size_t length = random() % 12; length > 0; --length) {
            text += kCharacters[random() % kCharacters.size()];
        }
        const CRead read = Read(text, kGeneral);
        double value = kUntouched;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
        ASSERT_EQ(error, read.error) << text;
        ASSERT_EQ(end - text.data(), static_cast<std::ptrdiff_t>(read.length)) << text;
        ASSERT_TRUE(bit_cast<std::uint64_t>(value) == bit_cast<std::uint64_t>(read.value) || std::isnan(value)) << text;
    }
}

#endif

}  // namespace
}  // namespace satwecvt

#include "lines/Decimal.h"

#include "doubles/BitCast.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <random>
#include <string>

namespace satwecvt {
namespace {

/// Reads a text with a newline behind it; returns how many of its characters were taken, -1 when it was refused.
std::ptrdiff_t Read(const std::string& text, double& value)
{
    const std::string line = text + "\n";
    const char* at = line.data();
    return ReadDecimal(at, value) ? at - line.data() : -1;
}

void ExpectAsStrtod(const std::string& text)
{
    double value = 0.0;
    ASSERT_EQ(static_cast<std::ptrdiff_t>(text.size()), Read(text, value)) << text;
    const double expected = std::strtod(text.c_str(), nullptr);
    EXPECT_EQ(bit_cast<std::uint64_t>(expected), bit_cast<std::uint64_t>(value)) << text;
}

TEST(Decimal, StopsBehindTheNumber)
{
    double value = 0.0;
    EXPECT_EQ(4, Read("12.5*3", value));
    EXPECT_EQ(12.5, value);
    EXPECT_EQ(3, Read("1.5.2", value));
    EXPECT_EQ(1.5, value);
}

TEST(Decimal, StopsAtEveryCharacterThatIsNoPartOfIt)
{
    const std::string parts = "0123456789.Ee";
    for (int c = -128; c <= 127; ++c) {
        if (const char next = static_cast<char>(c); parts.find(next) == std::string::npos) {
            double value = 0.0;
            EXPECT_EQ(2, Read(std::string("12") + next + "5", value)) << c;
            EXPECT_EQ(12.0, value) << c;
            EXPECT_EQ(4, Read(std::string("12.5") + next + "5", value)) << c;
            EXPECT_EQ(12.5, value) << c;
        }
    }
}

TEST(Decimal, RefusesWhatIsNoNumberAndWhatIsTooLong)
{
    double value = 0.0;
    for (const char* text : {"", ".", "E5", "-1", "+1", " 1", "1E", "1E+", "1.E-", "12345678901234567890", "1E999",
                             "0.00000000000000000001", "1E-400"}) {
        EXPECT_EQ(-1, Read(text, value)) << text;
    }
}

TEST(Decimal, TheLimitsOfTheQuickWayAreExact)
{
    for (const char* text : {"0",
                             "0.0",
                             ".5",
                             "5.",
                             "5.E3",
                             "9007199254740992",
                             "9007199254740993",
                             "9999999999999999999",
                             "0.9007199254740993",
                             "1E22",
                             "1E23",
                             "9007199254740992E22",
                             "9007199254740993E-22",
                             "1E-22",
                             "1E-23",
                             "123456789.123456789",
                             "4.9E-324",
                             "1.7976931348623157E308",
                             "2.2250738585072014E-308",
                             "1e00000001",
                             "1e0000",
                             "000000000000000001.",
                             "3E-0001",
                             "0E999",
                             "0.1",
                             "0.3",
                             "2.5e-3"}) {
        ExpectAsStrtod(text);
    }
}

TEST(Decimal, RandomNumbersAreReadAsStrtodReadsThem)
{
    std::mt19937_64 random(20261121);
    for (int round = 0; round < 300000; ++round) {
        const auto most = static_cast<unsigned>(1 + random() % 19);
        std::string text = std::to_string(random()).substr(0, most);
        if (random() % 2 == 0) {
            text.insert(static_cast<unsigned>(random() % (text.size() + 1)), ".");
        }
        if (random() % 3 == 0) {
            text += (random() % 2 == 0 ? "E" : "e") + std::to_string(static_cast<int>(random() % 60) - 30);
        }
        ExpectAsStrtod(text);
    }
}

}  // namespace
}  // namespace satwecvt

#include "modelfile/LineFields.h"

#include "doubles/BitCast.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace satwecvt {
namespace {

/// Whether a line is one number and nothing more.
template <typename TNumber>
bool Reads(const std::string& text, TNumber& value)
{
    const std::string line = text + "\n";
    return Fits(std::string_view(line).substr(0, text.size()), "", value);
}

TEST(LineFields, AnIntegerHas32Bits)
{
    const struct {
        const char* text;
        std::int32_t value;
    } kNumbers[] = {{"0", 0},
                    {"7", 7},
                    {"-7", -7},
                    {"10", 10},
                    {"111111", 111111},
                    {"2147483647", 2147483647},
                    {"-2147483648", -2147483647 - 1}};
    for (const auto& number : kNumbers) {
        std::int32_t value = 99;
        EXPECT_TRUE(Reads(number.text, value)) << number.text;
        EXPECT_EQ(number.value, value) << number.text;
    }
}

TEST(LineFields, WhatIsNoIntegerIsRefused)
{
    for (const char* text : {"",    " ",          "-",           "+1",         "--1",
                             "-0",  "00",         "01",          "-01",        "1 ",
                             " 1",  "1.0",        "1.",          "1e2",        "1,",
                             "0x1", "x",          "1x",          "x1",         "nan",
                             "inf", "2147483648", "-2147483649", "4294967297", "99999999999999999999999999"}) {
        std::int32_t value = 0;
        EXPECT_FALSE(Reads(text, value)) << text;
    }
}

TEST(LineFields, ARealIsTheNearestDouble)
{
    const struct {
        const char* text;
        double value;
    } kNumbers[] = {{"0", 0.0},
                    {"1", 1.0},
                    {"-12.5", -12.5},
                    {"0.25", 0.25},
                    {"1500", 1500.0},
                    {"1.2348e+06", 1234800.0},
                    {"1e-07", 1e-7},
                    {"1e7", 1e7},
                    {"3e+100", 3e100},
                    {"1.79769e+308", 1.79769e308},
                    {"2.22507e-308", 2.22507e-308},
                    {"4.94066e-324", 4.94066e-324},
                    {"100000.000000000001", 100000.000000000001},
                    {"inf", HUGE_VAL},
                    {"-inf", -HUGE_VAL}};
    for (const auto& number : kNumbers) {
        double value = 99.0;
        EXPECT_TRUE(Reads(number.text, value)) << number.text;
        EXPECT_EQ(number.value, value) << number.text;
    }
}

TEST(LineFields, ARealCanBeNegativeZeroOrNoNumber)
{
    double value = 1.0;
    EXPECT_TRUE(Reads("-0", value));
    EXPECT_EQ(bit_cast<std::uint64_t>(-0.0), bit_cast<std::uint64_t>(value));
    EXPECT_TRUE(Reads("nan", value));
    EXPECT_TRUE(std::isnan(value));
}

TEST(LineFields, WhatIsNoRealIsRefused)
{
    for (const char* text : {"",     " ",      "-",   "+1",       "--1",       "00",     "01",
                             "-01",  "00.5",   "1.",  ".5",       "-.5",       ".",      "1.e5",
                             "12.",  "120.e5", "1e",  "1e+",      "e5",        "1.5.2",  "1 ",
                             " 1",   "1,5",    "1*2", "0x1p",     "0x1",       "1f",     "nano",
                             "-nan", "NaN",    "Inf", "infinity", "-infinity", "in",     "na",
                             "n",    "-i",     "i",   "1e999",    "-1e999",    "1e-999", "12345678901234567890"}) {
        double value = 0.0;
        EXPECT_FALSE(Reads(text, value)) << text;
    }
}

TEST(LineFields, FieldsAreBehindTheIndentAndPartedByACommaAndABlank)
{
    std::int32_t number = 0;
    double value = 0.0;
    std::array<std::int32_t, 3> three{};
    EXPECT_TRUE(Fits("  4, WORD, 2.5, 7, 8, 9, END", "  ", number, "WORD", value, three, "END"));
    EXPECT_EQ(4, number);
    EXPECT_EQ(2.5, value);
    EXPECT_EQ((std::array<std::int32_t, 3>{7, 8, 9}), three);
}

TEST(LineFields, OtherSeparatorsAndFieldsTooManyOrTooFewAreRefused)
{
    for (const std::string text : {"  4, 2.5\n", " 4, 2.5, 7\n", "   4, 2.5, 7\n", "  4,2.5, 7\n", "  4 , 2.5, 7\n",
                                   "  4,  2.5, 7\n", "  4; 2.5, 7\n", "  4, 2.5, 7,\n", "  4, 2.5, 7, \n",
                                   "  4, 2.5, 7, 8\n", "  4, 2.5, \n", "  4, , 7\n", "  4, 2.5, 7 \n", "\n"}) {
        std::int32_t number = 0;
        double value = 0.0;
        std::int32_t last = 0;
        const std::string_view line = std::string_view(text).substr(0, text.size() - 1);
        EXPECT_FALSE(Fits(line, "  ", number, value, last)) << text;
    }
}

TEST(LineFields, ATextThatDoesNotComeNextTakesNothing)
{
    const std::string_view line = "ab, c";
    CLineFields fields(line);
    EXPECT_FALSE(fields.Take("abc"));
    EXPECT_FALSE(fields.Take("ab, c and more"));
    EXPECT_TRUE(fields.Take("ab, "));
    EXPECT_FALSE(fields.IsDone());
    EXPECT_TRUE(fields.Take("c"));
    EXPECT_TRUE(fields.IsDone());
}

TEST(LineFields, AWordEndsInFrontOfACommaOrTheEndOfTheLine)
{
    CLineFields fields("GB(RC), C30");
    EXPECT_EQ("GB(RC)", fields.TakeWord());
    EXPECT_EQ("", fields.TakeWord());
    EXPECT_TRUE(fields.Take(", "));
    EXPECT_EQ("C30", fields.TakeWord());
    EXPECT_EQ("", fields.TakeWord());
    EXPECT_TRUE(fields.IsDone());
}

}  // namespace
}  // namespace satwecvt

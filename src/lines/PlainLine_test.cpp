// The quick way against the format's own: on every line that it takes, ReadPlainLine has to find what CStrParser finds.
#include "lines/PlainLine.h"

#include "doubles/BitCast.h"
#include "lines/StrParser.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace satwecvt {
namespace {

using Numbers = std::vector<double>;

bool IsTaken(const std::string& line)
{
    Numbers numbers;
    return ReadPlainLine(line, numbers);
}

Numbers NumbersOf(const std::string& line)
{
    Numbers numbers{99.0};  // what an earlier line left
    EXPECT_TRUE(ReadPlainLine(line, numbers)) << line;
    return numbers;
}

/// Reads a line in both ways. Returns whether the quick one took it.
bool ExpectSame(const std::string& line)
{
    Numbers quick;
    if (!ReadPlainLine(line, quick)) {
        return false;
    }
    std::string upper = line;
    EXPECT_EQ(1, CStrParser::CheckLine(upper)) << line;
    Numbers expected;
    EXPECT_EQ(1, CStrParser::ParseNumbers(upper, expected)) << line;
    EXPECT_EQ(expected.size(), quick.size()) << line;
    for (std::size_t i = 0; i < expected.size() && i < quick.size(); ++i) {
        const bool isSame = bit_cast<std::uint64_t>(expected[i]) == bit_cast<std::uint64_t>(quick[i]);
        const bool areNaNs = expected[i] != expected[i] && quick[i] != quick[i];
        EXPECT_TRUE(isSame || areNaNs) << line << ": " << expected[i] << " and " << quick[i];
    }
    return true;
}

TEST(PlainLine, UsualLinesAreTaken)
{
    EXPECT_EQ((Numbers{1, -2, 3.5, 400}), NumbersOf("1 -2  3.5\t4.E+2\n"));
    EXPECT_EQ((Numbers{1, 2, 3}), NumbersOf("  1, 2 ,3 \n"));
    EXPECT_EQ((Numbers{300, 650, 0.5, 20}), NumbersOf("2*150 600+50 3/6 2+3*4\n"));
    EXPECT_EQ((Numbers{1, 2}), NumbersOf("1 2 NAME=x, y = 3\n"));
    EXPECT_EQ((Numbers{1, 2}), NumbersOf("1,2 3=4\n"));
    EXPECT_EQ((Numbers{7}), NumbersOf("7\n"));
}

TEST(PlainLine, WhatTheTokenizerMayReadInAnotherWayIsLeftToIt)
{
    for (const char* line : {
             "",          "\n",         " \t\n",    "C 1 2\n",  "1 2",       "1 2\n3\n",   "1 2, 3\n",  "1, 2 3\n",
             "1,,2\n",    "1,2,\n",     ",1\n",     "0x10\n",   "1 INF\n",   "NAN\n",      "1 2*\n",    "1 3*-2\n",
             "1 2 * 3\n", "1 2\tN=3\n", "1 N =3\n", "1 2N=3\n", " N=3\n",    "N=3 1\n",    "1,2*N=3\n", "1 - 2\n",
             "1E\n",      "1E+ 2\n",    "1 .\n",    "1 2\r\n",  "1 1.2.3\n", "1 2 word\n", "1 +-2\n",   "1, N=3\n",
         }) {
        EXPECT_FALSE(IsTaken(line)) << line;
    }
    EXPECT_FALSE(IsTaken(std::string("1 2\0 3\n", 7)));
}

TEST(PlainLine, EveryShortLineIsReadAsTheTokenizerReadsIt)
{
    const std::string alphabet = "1 ,=.-*N\tE";
    int taken = 0;
    for (std::size_t length = 1; length <= 7; ++length) {
        std::vector<std::size_t> digits(length, 0);
        for (bool isDone = false; !isDone;) {
            std::string line;
            for (const std::size_t digit : digits) {
                line += alphabet[digit];
            }
            taken += ExpectSame(line + "\n") ? 1 : 0;
            isDone = true;
            for (std::size_t& digit : digits) {
                if (++digit < alphabet.size()) {
                    isDone = false;
                    break;
                }
                digit = 0;
            }
        }
    }
    EXPECT_GT(taken, 10000);
}

TEST(PlainLine, RandomLinesAreReadAsTheTokenizerReadsThem)
{
    const std::vector<std::string> pieces = {
        "1",
        "20",
        "-3",
        "+4.5",
        ".25",
        "6.",
        "7e3",
        "8E-2",
        "1e400",
        "1E-400",
        "12345678901234567890",
        "0",
        "-0",
        "00",
        " ",
        " ",
        "  ",
        "\t",
        ",",
        ", ",
        "=",
        "N=2",
        " A=1,2",
        "*",
        "/",
        "+",
        "-",
        "C",
        "c",
        "0x1",
        ".",
        "e",
        "\r",
        "inf",
        "nan1",
        "\v",
        "9007199254740993",
        "0.1",
        "1/0",
        "123.456e10",
        "\x80",
    };
    std::mt19937 random(20261121);
    int taken = 0;
    for (int round = 0; round < 300000; ++round) {
        std::string line;
        for (auto count = 1 + random() % 12; count > 0; --count) {
            line += pieces[random() % pieces.size()];
            line += random() % 3 == 0 ? " " : "";
        }
        taken += ExpectSame(line + "\n") ? 1 : 0;
    }
    EXPECT_GT(taken, 5000);
}

}  // namespace
}  // namespace satwecvt

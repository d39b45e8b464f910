#include "lines/StrParser.h"

#include "doubles/BitCast.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>

namespace satwecvt {
namespace {

using namespace std::string_literals;

using CNumbers = std::vector<double>;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

int Check(std::string& line)
{
    return CStrParser::CheckLine(line);
}

CNumbers NumbersOf(std::string_view text)
{
    CNumbers numbers;
    const int hasNumbers = CStrParser::ParseNumbers(text, numbers);
    EXPECT_EQ(numbers.empty() ? 0 : 1, hasNumbers);
    return numbers;
}

struct CExample {
    std::string text;
    CNumbers expected;
};

void ExpectNumbers(const std::vector<CExample>& table)
{
    for (const CExample& example : table) {
        CNumbers numbers;
        EXPECT_EQ(example.expected.empty() ? 0 : 1, CStrParser::ParseNumbers(example.text, numbers));
        EXPECT_EQ(example.expected, numbers) << testing::PrintToString(example.text);
    }
}

struct CToken {
    std::string token;
    double expected;
};

void ExpectValues(const std::vector<CToken>& table)
{
    for (const CToken& row : table) {
        EXPECT_EQ(row.expected, CStrParser::EvaluateNumber(row.token)) << testing::PrintToString(row.token);
    }
}

TEST(StrParser, ALineThatBeginsWithCIsAComment)
{
    for (std::string line : {"c any text\n", "C any text\n", "C\n", "c", "C1 2 3\n", "C=1\n"}) {
        EXPECT_EQ(0, Check(line)) << line;
    }
}

TEST(StrParser, ACBehindABlankIsADataLine)
{
    std::string line = " C 1 2\n";
    EXPECT_EQ(1, Check(line));
    EXPECT_EQ((CNumbers{0, 1, 2}), NumbersOf(line));
}

TEST(StrParser, LinesWithoutATokenAreSkipped)
{
    for (std::string line : {""s, "\n"s, "\t \n"s, " "s, "   \t\t\n"s, "  NAME=7\n"s, "7"s, "\0"s}) {
        EXPECT_EQ(0, Check(line)) << testing::PrintToString(line);
    }
}

TEST(StrParser, AnAssignmentWithoutABlankBeforeItIsADataLineOfTheValue0)
{
    std::string line = "X=5\n";
    EXPECT_EQ(1, Check(line));
    EXPECT_EQ((CNumbers{0}), NumbersOf(line));
}

TEST(StrParser, OnlyAsciiLettersArePutIntoUpperCase)
{
    std::string line = "az AZ 1.5e-3 \xE4\xFF{`[@\n";
    EXPECT_EQ(1, Check(line));
    EXPECT_EQ("AZ AZ 1.5E-3 \xE4\xFF{`[@\n", line);
    std::string comment = "comment\n";
    EXPECT_EQ(0, Check(comment));
    EXPECT_EQ("COMMENT\n", comment);
}

TEST(StrParser, CheckingALineTwiceChangesNothing)
{
    std::string line = " c 1e5\n";
    EXPECT_EQ(1, Check(line));
    EXPECT_EQ(1, Check(line));
    EXPECT_EQ(" C 1E5\n", line);
}

TEST(StrParser, AnAssignmentTailGivesNoNumber)
{
    ExpectNumbers({{"1 2 NAME=7\n", {1, 2}}, {"1 2 NAME=7 8 9\n", {1, 2}}, {"1, 2, N=7\n", {1, 2}}, {"  N=7\n", {}}});
}

TEST(StrParser, CommasPartNumbersAndAnEmptyPlaceIs0)
{
    ExpectNumbers({{"1,2,,4\n", {1, 2, 0, 4}},
                   {"1, 2 ,3\n", {1, 2, 3}},
                   {"1,2,\n", {1, 2}},
                   {",\n", {0}},
                   {"1 2, 3\n", {12, 3}}});
}

TEST(StrParser, FinalLineWithoutNewlineLosesItsLastCharacter)
{
    ExpectNumbers({{"7 8", {7}}, {"12 34", {12, 3}}, {"7", {}}});
}

TEST(StrParser, FinalLineWithoutNewlineKeepsItsLastCharacterBehindACommaAnywhere)
{
    ExpectNumbers({{"7,8", {7, 8}}, {"7,", {7}}});
}

TEST(StrParser, NumbersAreAppended)
{
    CNumbers numbers{1};
    EXPECT_EQ(1, CStrParser::ParseNumbers("2 3\n", numbers));
    EXPECT_EQ((CNumbers{1, 2, 3}), numbers);
    EXPECT_EQ(1, CStrParser::ParseNumbers("\n", numbers));
    EXPECT_EQ((CNumbers{1, 2, 3}), numbers);
}

TEST(StrParser, ATerminatorBehindAnAssignmentTailIsAnOperand)
{
    ExpectNumbers({{"1,2*\n", {1, 2}}, {"1,2* N=3\n", {1, 0}}, {"1,2- N=3\n", {1, 2}}});
}

TEST(StrParser, LinesThatWereJoinedFuseTheirNumbersByTheOperatorRule)
{
    ExpectNumbers({{"1 2\n-3 4\n", {1, -1, 4}}, {"1 2\n3 4\n", {1, 2, 4}}, {"1,2\n*3\n", {1, 6}}});
}

TEST(StrParser, ATokenIsANumber)
{
    ExpectValues({{"12", 12},
                  {"-5", -5},
                  {"+5", 5},
                  {"1E+3", 1000},
                  {"1.5E-3", 0.0015},
                  {"1.5e-3", 0.0015},
                  {"1E3\n", 1000},
                  {"12ABC", 12},
                  {"ABC", 0},
                  {"", 0},
                  {" \t\n\v\f\r", 0}});
}

TEST(StrParser, WordsAreTheTokensAsTheyStand)
{
    std::vector<std::string> words{"0"};
    EXPECT_EQ(1, CStrParser::ParseWords("one 2*3\t4.\n", words));
    EXPECT_EQ((std::vector<std::string>{"0", "one", "2*3", "4."}), words);
    words.clear();
    EXPECT_EQ(1, CStrParser::ParseWords("1 2,,3\n", words));
    EXPECT_EQ((std::vector<std::string>{"12", "", "3\n"}), words);
    words.clear();
    EXPECT_EQ(0, CStrParser::ParseWords(" \n", words));
}

TEST(StrParser, ANumberIsOneFromItsFirstCharacterToItsLast)
{
    for (const char* token : {"7", "-7", "+.5", "7.", "1E5", "1E-5", "1E5-3", "2*3/4", "0X1F", "INF", "NAN", "7\r\n"}) {
        EXPECT_TRUE(CStrParser::IsNumber(token)) << token;
    }
    for (const char* token :
         {"", "-", ".", "7A", "A7", "1E", "1D5", "2*", "*2", "2**3", "2+", "7 8", "1\n2", "--7", "\n"}) {
        EXPECT_FALSE(CStrParser::IsNumber(token)) << testing::PrintToString(token);
    }
}

TEST(StrParser, OperatorsAreEvaluatedFromLeftToRightWithoutPrecedence)
{
    ExpectValues({{"2+3*4", 20}, {"10/4", 2.5}, {"10-2-3", 5}, {"2*3+4*5", 50}, {"1/2/4", 0.125}, {"-2*3", -6}});
}

TEST(StrParser, TheSecondOfTwoOperatorsHasNothingBeforeIt)
{
    ExpectValues({{"3*-2", -2}, {"3+-2", 1}, {"3--2", 1}, {"5**2", 0}, {"-+5", 5}, {"--5", -5}, {"*3*4", 0}});
}

TEST(StrParser, AnOperatorAtEitherEndIsNone)
{
    ExpectValues({{"2*", 2}, {"2*\n", 2}, {"2- \t\n", 2}, {"*2", 0}, {"-", 0}, {"2*3+", 6}});
}

TEST(StrParser, TheSignOfAnExponentIsNoOperator)
{
    ExpectValues({{"1E+3*2", 2000}, {"2*1e-1", 0.2}, {"1E-1-1E-1", 0}, {"E-3", 0}, {"E*3", 0}, {"2E/4", 2}});
}

TEST(StrParser, AnOperatorBehindABlankIsNone)
{
    ExpectValues({{"3 -2", 3}, {"3- 2", 1}});
}

TEST(StrParser, DivisionBy0FollowsIeeeArithmetic)
{
    ExpectValues({{"1/0", kInfinity}, {"-1/0", -kInfinity}, {"1/-2", kInfinity}, {"5/X+1", kInfinity}});
    EXPECT_TRUE(std::isnan(CStrParser::EvaluateNumber("0/0")));
    EXPECT_TRUE(std::isnan(CStrParser::EvaluateNumber("1/0*0+5")));
}

// The run-time library of Windows does not read every number exactly; there the tables above have to do.
#ifndef _WIN32

/// The rules of a token one after the other, with the run-time library's own reading of numbers.
double ExpectedValue(std::string token)
{
    token.resize(token.find_last_not_of(" \t\n\v\f\r") + 1);
    std::vector<std::size_t> operators;
    for (std::size_t i = 1; i + 1 < token.size(); ++i) {
        const char before = token[i - 1];
        if ("+-*/"s.find(token[i]) != std::string::npos && before != 'E' && before != ' ') {
            operators.push_back(i);
        }
    }
    operators.push_back(token.size());
    double value = std::atof(token.substr(0, operators[0]).c_str());
    for (std::size_t i = 0; i + 1 < operators.size(); ++i) {
        const std::size_t at = operators[i] + 1;
        const double operand = std::atof(token.substr(at, operators[i + 1] - at).c_str());
        switch (token[operators[i]]) {
        case '+':
            value += operand;
            break;
        case '-':
            value -= operand;
            break;
        case '*':
            value *= operand;
            break;
        default:
            value /= operand;
            break;
        }
    }
    return value;
}

TEST(StrParser, RandomTokensAreEvaluatedRuleByRule)
{
    constexpr std::string_view kAlphabet("0123456789.E+-*/ X\n\0", 20);
    std::mt19937 random(99);
    for (int round = 0; round < 200'000; ++round) {
        std::string token(random() % 13, ' ');
        for (char& c : token) {
            c = kAlphabet[random() % kAlphabet.size()];
        }
        const double expected = ExpectedValue(token);
        const double value = CStrParser::EvaluateNumber(token);
        const bool areSame = bit_cast<std::uint64_t>(expected) == bit_cast<std::uint64_t>(value);
        ASSERT_TRUE(areSame || (std::isnan(expected) && std::isnan(value)))
            << testing::PrintToString(token) << " gives " << value << ", not " << expected;
    }
}

#endif

}  // namespace
}  // namespace satwecvt

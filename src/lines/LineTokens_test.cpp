#include "lines/LineTokens.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace satwecvt {
namespace {

using namespace std::string_literals;

using CTexts = std::vector<std::string>;

CTexts TokensOf(std::string_view text)
{
    CLineTokens tokens(text);
    CTexts texts;
    for (std::string_view token; tokens.Next(token);) {
        texts.emplace_back(token);
    }
    return texts;
}

std::string WithoutBlanks(std::string text)
{
    std::erase(text, ' ');
    return text;
}

/// The format's rules character by character, in the order in which the format tells them.
std::string Preprocessed(std::string text)
{
    const std::size_t equals = text.find('=');
    if (equals != std::string::npos) {
        for (std::size_t p = equals; p >= 1; --p) {
            if (text[p] == ' ') {
                text.resize(p + 1);
                text += '\0';
                break;
            }
        }
    }
    if (!text.empty()) {
        text.insert(text.size() - 1, 1, ' ');
    }
    for (char& c : text) {
        c = c == '\t' ? ' ' : c;
    }
    return text;
}

CTexts SplitByBlanks(std::string text)
{
    CTexts tokens;
    bool seenCharacter = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != ' ') {
            seenCharacter = true;
        } else if (seenCharacter) {
            tokens.push_back(WithoutBlanks(text.substr(0, i)));
            text.erase(0, i + 1);
            seenCharacter = false;
            i = std::string::npos;  // scan on from the front
        }
    }
    return tokens;
}

CTexts SplitByCommas(std::string text)
{
    text = WithoutBlanks(text);
    CTexts tokens;
    for (std::size_t comma = text.find(','); comma != std::string::npos; comma = text.find(',')) {
        tokens.push_back(text.substr(0, comma));
        text.erase(0, comma + 1);
    }
    if (!text.empty() && text != "\n" && text != "\0"s) {
        tokens.push_back(text);
    }
    return tokens;
}

CTexts ExpectedTokens(const std::string& text)
{
    const std::string preprocessed = Preprocessed(text);
    return preprocessed.find(',') == std::string::npos ? SplitByBlanks(preprocessed) : SplitByCommas(preprocessed);
}

struct CExample {
    std::string text;
    CTexts expected;
};

void ExpectTokens(const std::vector<CExample>& table)
{
    for (const CExample& example : table) {
        EXPECT_EQ(example.expected, ExpectedTokens(example.text))
            << "the rules, " << testing::PrintToString(example.text);
        EXPECT_EQ(example.expected, TokensOf(example.text)) << testing::PrintToString(example.text);
    }
}

TEST(LineTokens, BlanksAndTabsPartTokens)
{
    ExpectTokens({{" C 1 2\n", {"C", "1", "2"}},
                  {"1 2 3\n", {"1", "2", "3"}},
                  {"\t1\t 2   3 \t\n", {"1", "2", "3"}},
                  {"1\n", {"1"}}});
}

TEST(LineTokens, ALineWithoutCharactersHasNoToken)
{
    ExpectTokens({{"", {}}, {"\n", {}}, {" ", {}}, {"\t \n", {}}, {"   ", {}}});
}

TEST(LineTokens, AFinalLineWithoutNewlineLosesItsLastCharacter)
{
    ExpectTokens({{"12 34", {"12", "3"}}, {"7 8", {"7"}}, {"7 89 ", {"7", "89"}}, {"7", {}}});
}

TEST(LineTokens, AFinalLineWithCommasLosesNothing)
{
    ExpectTokens({{"7,8", {"7", "8"}}, {"7,8 9", {"7", "89"}}, {"7,", {"7"}}, {",", {""}}});
}

TEST(LineTokens, ACommaAnywhereMakesBlanksVanish)
{
    ExpectTokens({{"1 2, 3\n", {"12", "3\n"}},
                  {"1, 2 ,3\n", {"1", "2", "3\n"}},
                  {"1 2 3,\n", {"123"}},
                  {" \t1\t,\t2 \t\n", {"1", "2\n"}}});
}

TEST(LineTokens, TwoCommasHaveAnEmptyTokenInBetween)
{
    ExpectTokens({{"1,2,,4\n", {"1", "2", "", "4\n"}},
                  {",1\n", {"", "1\n"}},
                  {",,\n", {"", ""}},
                  {"1, ,3\n", {"1", "", "3\n"}}});
}

TEST(LineTokens, NothingButANewlineBehindTheLastCommaIsNoToken)
{
    ExpectTokens({{"1,2,\n", {"1", "2"}}, {"1,2, \t \n", {"1", "2"}}, {"1,2,\n\n", {"1", "2", "\n\n"}}});
}

TEST(LineTokens, AnAssignmentTakesItsWordAndTheRestOfTheLine)
{
    ExpectTokens({{"1 2 NAME=7\n", {"1", "2"}},
                  {"1 2 NAME =7 8\n", {"1", "2", "NAME"}},
                  {"1 2 A=3 4 B=5\n", {"1", "2"}},
                  {"1 2 A=3,4\n", {"1", "2"}},
                  {"1 2 =\n", {"1", "2"}},
                  {"1 2 A=7", {"1", "2"}}});
}

TEST(LineTokens, AnAssignmentBehindTheVeryFirstBlankStays)
{
    ExpectTokens({{" A=5 6\n", {"A=5", "6"}}, {"  A=5 6\n", {}}});
}

TEST(LineTokens, AnAssignmentWithoutABlankBeforeItStays)
{
    ExpectTokens({{"X=5\n", {"X=5"}}, {"=5 6\n", {"=5", "6"}}, {"1,2,A=5 6\n", {"1", "2", "A=56\n"}}});
}

TEST(LineTokens, ATabIsNoBlankForTheAssignment)
{
    ExpectTokens({{"1\tA=5\n", {"1", "A=5"}}, {"1 2\tA=5\n", {"1"}}});
}

TEST(LineTokens, ALineThatIsOnlyAnAssignmentHasNoToken)
{
    ExpectTokens({{"  A=5\n", {}}, {"\t NAME=7\n", {}}});
}

TEST(LineTokens, ATerminatorTakesThePlaceOfTheNewlineBehindAnAssignment)
{
    ExpectTokens({{"1,2* N=3\n", {"1", "2*\0"s}}, {"1,2*\n", {"1", "2*\n"}}, {"1,2, N=3\n", {"1", "2"}}});
}

TEST(LineTokens, ALineEndInsideATextPartsNothing)
{
    ExpectTokens({{"1 2\n3 4\n", {"1", "2\n3", "4"}},
                  {"1 2\n 3\n", {"1", "2\n", "3"}},
                  {"1,2\n3,4\n", {"1", "2\n3", "4\n"}},
                  {"1 2\nA=3 4\n", {"1"}}});
}

TEST(LineTokens, RandomTextsAreCutAsCharacterByCharacter)
{
    constexpr std::string_view kAlphabet = "12,= \t\n+-*E";
    std::mt19937 random(2024);
    for (int round = 0; round < 100'000; ++round) {
        std::string text(random() % 16, ' ');
        for (char& c : text) {
            c = kAlphabet[random() % kAlphabet.size()];
        }
        text += round % 2 == 0 ? "\n" : "";
        ASSERT_EQ(ExpectedTokens(text), TokensOf(text)) << testing::PrintToString(text);
    }
}

// In texts of the whole alphabet nearly every one has a comma and an assignment.
TEST(LineTokens, RandomTextsOfFewCharactersAreCutAsCharacterByCharacter)
{
    std::mt19937 random(2025);
    for (const std::string_view alphabet : {"1 \t\n", "1  ,\n", "1  =\n", "1 ,=\n", " =", ", =\t"}) {
        for (int round = 0; round < 10'000; ++round) {
            std::string text(random() % 12, ' ');
            for (char& c : text) {
                c = alphabet[random() % alphabet.size()];
            }
            ASSERT_EQ(ExpectedTokens(text), TokensOf(text)) << testing::PrintToString(text);
        }
    }
}

}  // namespace
}  // namespace satwecvt

#include "reader/PlateText.h"

#include "lines/LineTokens.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace satwecvt {
namespace {

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

/// Joins lines one by one; returns how many numbers there were after each of them.
std::vector<std::int64_t> CountsOf(const CTexts& lines)
{
    CPlateText plateText;
    std::vector<std::int64_t> counts;
    for (const std::string& line : lines) {
        if (counts.empty()) {
            plateText.Start(line);
        } else {
            plateText.Append(line);
        }
        counts.push_back(plateText.NumberCount());
    }
    return counts;
}

struct CExample {
    CTexts lines;
    std::vector<std::int64_t> expected;
};

void ExpectCounts(const std::vector<CExample>& table)
{
    for (const CExample& example : table) {
        EXPECT_EQ(example.expected, CountsOf(example.lines)) << testing::PrintToString(example.lines);
    }
}

TEST(PlateText, TheNumbersAtALineEndFuseIntoOne)
{
    ExpectCounts({{{"1 2\n", "3 4\n", "5\n"}, {2, 3, 3}},
                  {{"1,2\n", "3,4\n", "5,6\n"}, {2, 3, 4}},
                  {{"1 2 \n", "3 4\n"}, {2, 4}},
                  {{"1 2\n", " 3 4\n"}, {2, 4}}});
}

TEST(PlateText, ALineEndAloneBetweenBlanksIsANumber)
{
    ExpectCounts({{{"1 2 \n", " 3\n"}, {2, 4}}});
}

TEST(PlateText, ACommaBehindALineEndPartsTheNumbersOfAllLines)
{
    ExpectCounts({{{"1 2\n", "3,4\n"}, {2, 2}}, {{"1,2,\n", "3,4,\n"}, {2, 4}}, {{"1,\n", "\n", "2\n"}, {1, 2, 2}}});
}

TEST(PlateText, ALineWithoutNewlineLosesItsLastCharacterOnlyAtTheEnd)
{
    ExpectCounts({{{"1 2 3", " 4 5\n"}, {2, 5}}, {{"1 2", "3 4"}, {1, 2}}});
}

TEST(PlateText, AnAssignmentTakesAllFurtherLines)
{
    ExpectCounts({{{"1 2 A=3 4\n", "5 6\n"}, {2, 2}},
                  {{"1 2\n", "3 A=4\n", "5 6\n"}, {2, 2, 2}},
                  {{"1,2, A=3\n", "4,5\n"}, {2, 2}}});
}

TEST(PlateText, AnAssignmentThatTakesNothingIsTheOnlyOneThatCounts)
{
    ExpectCounts({{{"A=1 2\n", "3 B=4 5\n"}, {2, 4}}});
}

TEST(PlateText, StartsAnewForTheNextPlate)
{
    CPlateText plateText;
    plateText.Start("1,2 A=3\n");
    plateText.Append("4\n");
    plateText.Start("1 2 3\n");
    EXPECT_EQ("1 2 3\n", plateText.Text());
    EXPECT_EQ(3, plateText.NumberCount());
}

TEST(PlateText, ATextThatWasNeverStartedHasNoNumber)
{
    EXPECT_EQ(0, CPlateText().NumberCount());
    EXPECT_EQ((std::vector<std::int64_t>{0}), CountsOf({""}));
}

std::string RandomLine(std::mt19937& random, std::string_view alphabet)
{
    std::string line(random() % 9, ' ');
    for (char& c : line) {
        c = alphabet[random() % alphabet.size()];
    }
    return line + (random() % 8 == 0 ? "" : "\n");
}

// Counting on costs time in proportion to the lines; the answer is that of the whole text, cut anew each time.
TEST(PlateText, CountsTheTokensOfTheJoinedText)
{
    std::mt19937 random(77);
    for (const std::string_view alphabet : {"12 \t", "12  ,", "1 2 3 4 5 6=", "12 ,=\t-", " =", ",= \n"}) {
        for (int round = 0; round < 10'000; ++round) {
            CPlateText plateText;
            std::string joined = RandomLine(random, alphabet);
            plateText.Start(joined);
            for (auto lines = random() % 6; lines > 0; --lines) {
                ASSERT_EQ(static_cast<std::int64_t>(TokensOf(joined).size()), plateText.NumberCount())
                    << testing::PrintToString(joined);
                ASSERT_EQ(TokensOf(joined), TokensOf(plateText.Text())) << testing::PrintToString(joined);
                const std::string line = RandomLine(random, alphabet);
                joined += line;
                plateText.Append(line);
            }
            ASSERT_EQ(static_cast<std::int64_t>(TokensOf(joined).size()), plateText.NumberCount())
                << testing::PrintToString(joined);
        }
    }
}

}  // namespace
}  // namespace satwecvt

#include "text/WriteLine.h"

#include "text/WrittenText_test.h"

#include <gtest/gtest.h>

#include <limits>

namespace satwecvt {
namespace {

template <class... Arguments>
std::string Line(const CLineFormat<std::type_identity_t<Arguments>...>& format, const Arguments&... arguments)
{
    return WrittenText([&](COutputFile& file) { WriteLine(file, format, arguments...); });
}

TEST(WriteLine, ATextWithoutConversionsIsWrittenAsItStands)
{
    EXPECT_EQ("\n", Line("\n"));
    EXPECT_EQ("", Line(""));
    EXPECT_EQ("; [DATA1] : 1, DB, NAME\n\ttab \"quote\" \\ \r\n",
              Line("; [DATA1] : 1, DB, NAME\n\ttab \"quote\" \\ \r\n"));
}

TEST(WriteLine, IntegersRealsAndTextsTakeThePlacesOfTheirConversions)
{
    EXPECT_EQ("  7, BEAM, 1, 2, 11, 12, 0.5\n", Line("  %d, BEAM, %d, %d, %d, %d, %g\n", 7, 1, 2, 11, 12, 0.5));
    EXPECT_EQ("  1, CONC, C30, 0, 0, 1, GB(RC), C30\n",
              Line("  %d, CONC, %s, 0, 0, 1, GB(RC), %s\n", 1, "C30", std::string("C30")));
}

TEST(WriteLine, ConversionsMayStandSideBySideAndAtBothEnds)
{
    EXPECT_EQ("12-30.5ab", Line("%d%d%d%g%s%s", 1, 2, -3, 0.5, "a", std::string_view("b")));
}

TEST(WriteLine, NumbersOfAnySizeHaveRoom)
{
    constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
    EXPECT_EQ("-2147483648-2147483648-1.23457e-308-1.23457e-308",
              Line("%d%d%g%g", kMin, kMin, -1.2345678e-308, -1.2345678e-308));
}

TEST(WriteLine, APercentSignInATextArgumentIsNoConversion)
{
    EXPECT_EQ("100 %d %s\n", Line("%s\n", "100 %d %s"));
}

TEST(WriteLine, AnEmptyTextLeavesNoTrace)
{
    EXPECT_EQ("[]", Line("[%s]", ""));
}

TEST(WriteLine, LinesFollowEachOtherInTheFile)
{
    const std::string text = WrittenText([](COutputFile& file) {
        for (std::int32_t i = 0; i < 20'000; ++i) {
            WriteLine(file, "  %d, %g\n", i, 0.5);
        }
    });
    std::string expected;
    for (int i = 0; i < 20'000; ++i) {
        expected += "  " + std::to_string(i) + ", 0.5\n";
    }
    EXPECT_TRUE(expected == text);
}

TEST(WriteLine, AFileThatIsNotOpenTakesNoLine)
{
    COutputFile file(CFileSystem::System());
    EXPECT_THROW(WriteLine(file, "\n"), CFileError);
}

}  // namespace
}  // namespace satwecvt

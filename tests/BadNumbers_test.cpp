// Numbers in odd forms, and numbers that name nothing or the same thing twice.

#include "support/CheckedConversion.h"
#include "support/SmallBuilding.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

namespace satwecvt {
namespace {

struct CNumberForm {
    const char* form;
    const char* value;
    const char* negated;
};

constexpr CNumberForm kNumberForms[] = {
    {"1e999", "inf", "-inf"},
    {"-1e999", "-inf", "inf"},
    {"nan", "nan", "nan"},
    {"-NaN", "nan", "nan"},
    {"nan(7)", "nan", "nan"},
    {"inf", "inf", "-inf"},
    {"-Infinity", "-inf", "inf"},
    {"0x1p3", "8", "-8"},
    {"0X1P+3", "4", "-4"},    // the sign behind P is an operator: 1 + 3
    {"0x1e-3", "30", "-30"},  // the one behind E is none
    {"1D5", "1", "-1"},
    {"1e5", "100000", "-100000"},
    {"1E+6", "1e+06", "-1e+06"},
    {"1.5e-7", "1.5e-07", "-1.5e-07"},
    {"1e-400", "0", "-0"},
    {"-0", "-0", "0"},
    {"3*-2", "-2", "2"},
    {"-2*3", "-6", "6"},
    {"2+3*4", "20", "-20"},
    {"1/0", "inf", "-inf"},
    {"-1/0", "-inf", "inf"},
    {"0/0", "nan", "nan"},
    {"1e999-1e999", "nan", "nan"},
    {"0*1e999", "nan", "nan"},
    {"--5", "-5", "5"},
    {"+5", "5", "-5"},
    {"5-", "5", "-5"},
    {"*5", "0", "-0"},
    {".5", "0.5", "-0.5"},
    {"5.", "5", "-5"},
    {"1..2", "1", "-1"},
    {"12mm", "12", "-12"},
    {"e5", "0", "-0"},
    {"1e", "1", "-1"},
    {"0x", "0", "-0"},
    {"none", "0", "-0"},
    {"123456.5", "123456", "-123456"},
    {"1234567", "1.23457e+06", "-1.23457e+06"},
    {"2147483648", "2.14748e+09", "-2.14748e+09"},
    {"4.9e-324", "4.94066e-324", "-4.94066e-324"},
};

TEST(NumberForms, InCoordinates)
{
    for (const CNumberForm& number : kNumberForms) {
        SCOPED_TRACE(number.form);
        const std::string form = number.form;
        const CAnswer answer = Convert(
            Replaced(SmallStructure(), "\n2 102 0 6000 0 0\n", "\n2 102 0 " + form + " " + form + " " + form + "\n"),
            "");
        ExpectWritten(answer);
        const std::string value = number.value;
        const std::string line = "\n  102, " + value + ", " + value + ", " + value + "\n";
        EXPECT_NE(std::string::npos, answer.conversion.model.value().find(line)) << line;
    }
}

TEST(NumberForms, InLoads)
{
    for (const CNumberForm& number : kNumberForms) {
        SCOPED_TRACE(number.form);
        const std::string form = number.form;
        const CAnswer answer = Convert(SmallStructure(), "1\n1 777 12 1 " + form + " " + form + " " + form + "\n");
        ExpectWritten(answer);
        const std::string value = number.value;
        const std::string line = "\n777, " + value + ", " + value + ", " + number.negated + ", 0, 0, 0\n";
        EXPECT_NE(std::string::npos, answer.conversion.model.value().find(line)) << line;
    }
}

TEST(NumberForms, InEveryPlaceOfTheBuildingAreTaken)
{
    for (const char* form : {"1e999", "nan", "1e20", "2147483647", "-2147483648", "-1e20", "-1e999", "1/0", "-0"}) {
        for (std::size_t at = 0; at < SmallStructure().size(); ++at) {
            std::string text = SmallStructure();
            const bool isNumber = at > 0 && (text[at - 1] == ' ' || text[at - 1] == '\n') && text[at] != 'C';
            if (isNumber) {
                text.replace(at, std::min(text.find_first_of(" \n", at) - at, text.size()), form);
                SCOPED_TRACE(testing::PrintToString(text.substr(text.rfind('\n', at - 1) + 1, 60)));
                const int result = Convert(text, SmallLoads()).conversion.result;
                EXPECT_TRUE(result == 0 || result == -1);
            }
        }
    }
}

TEST(DuplicateKeys, LeaveFewerRecordsThanAnnouncedAndFailWhileWriting)
{
    const std::pair<const char*, const char*> lines[] = {
        {"\n2 102 0 6000 0 0\n", "\n1 102 0 6000 0 0\n"},
        {"\n4 114 0 0 5000 3600\n", "\n1 114 0 0 5000 3600\n"},
        {"\n2 -113 114 2 4 0 15\n", "\n1 -113 114 2 4 0 15\n"},
        {"\n2 -102 112 3 4 0 0\n", "\n1 -102 112 3 4 0 0\n"},
        {"\n2 102 113 1 0 0 0\n", "\n1 102 113 1 0 0 0\n"},
        {"\n2 2 1 0 0 250", "\n1 2 1 0 0 250"},
        {"\n2 5 0 150 111", "\n1 5 0 150 111"},
        {"\n2 2 0\n4\n", "\n1 2 0\n4\n"},
    };
    for (const auto& [line, duplicate] : lines) {
        SCOPED_TRACE(duplicate);
        const CAnswer answer = Convert(Replaced(SmallStructure(), line, duplicate), "");
        EXPECT_EQ(-1, answer.conversion.result);
        EXPECT_EQ(Messages{}, answer.screen.messages);
        EXPECT_TRUE(answer.conversion.model.value().starts_with("*VERSION\n  5.8.0\n\n"));
        EXPECT_EQ(std::string::npos, answer.conversion.model.value().find("*STLDCASE"));
    }
}

TEST(DuplicateKeys, OfSectionsLeaveTheLaterOne)
{
    const std::string twice = Replaced(SmallStructure(), "\n2 2 5 0 8 400", "\n1 2 5 0 8 400");
    const CAnswer answer = Convert(twice, "");
    ExpectWritten(answer);
    EXPECT_NE(std::string::npos, answer.conversion.model.value().find("  1, DBUSER, Sec1, CC, H, 2, 400, 200, 8,"));
}

TEST(UnknownNumbers, OfStructureRecordsAreWrittenOrReported)
{
    struct {
        const char* line;
        const char* unknown;
        const char* warning;
    } const lines[] = {
        {"1 111 112 1 2 0 0", "1 111 112 77 2 0 0", ""},
        {"1 111 112 1 2 0 0", "1 555 666 1 2 0 0", ""},
        {"1 101 111 4 0 0 0", "1 101 111 -1e20 0 0 0", ""},
        {"\n0 103\n", "\n0 888\n", ""},
        {"1 101 112 2 4 0 0", "1 555 112 99 4 0 0", ""},
        {"\n111 112 101 102\n", "\n111 112 101 888\n", "The wall(story id:1,wall id:1) has invalid shape\n"},
        {"111 112 113 114\n2", "111 112 113 888\n2", "The plate(story id:1,plate id:1) has invalid shape\n"},
    };
    for (const auto& [line, unknown, warning] : lines) {
        SCOPED_TRACE(unknown);
        const CAnswer answer = Convert(Replaced(SmallStructure(), line, unknown), "");
        ExpectWritten(answer);
        EXPECT_NE(std::string::npos, answer.conversion.messageLog.value().find(warning));
    }
}

TEST(UnknownNumbers, OfLoadsAreLeftOutButForWallForces)
{
    const std::string none = "1\n1 1 31 0 1\n";
    for (const char* load : {"1 77 22 1 5", "1 -1e20 22 1 5", "1 nan 22 1 5"}) {
        SCOPED_TRACE(load);
        ExpectSameFiles(Convert(SmallStructure(), none), Convert(SmallStructure(), "1\n" + std::string(load) + "\n"));
    }
    for (const char* load : {"1 77 1 1 5 5", "1 77 2 1 5 5 5 5", "1 1e20 4 1 0", "1 77 99 1 5"}) {
        SCOPED_TRACE(load);
        const CAnswer answer = Convert(SmallStructure(), "1\n" + std::string(load) + "\n");
        ExpectWritten(answer);
        EXPECT_EQ(0, answer.conversion.report.written.beamLoads);
    }
    for (const char* load : {"1 77 21 0 5 5", "1 77 21 1 5 5", "1 -1e20 21 0 5 5"}) {
        SCOPED_TRACE(load);
        EXPECT_EQ(-1, Convert(SmallStructure(), "1\n" + std::string(load) + "\n").conversion.result);
    }
}

}  // namespace
}  // namespace satwecvt

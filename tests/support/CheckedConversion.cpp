#include "support/CheckedConversion.h"

#include "file/MemoryFiles_test.h"
#include "support/SmallBuilding.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace satwecvt {

CAnswer Convert(const std::string& structure, const std::string& load)
{
    CMemoryFiles files;
    files.files = {{"structure.sat", structure}, {"load.sat", load}};
    CAnswer answer;
    answer.conversion = ConvertMemoryFiles(answer.screen, files);
    EXPECT_EQ(structure, files.files["structure.sat"]);
    EXPECT_EQ(load, files.files["load.sat"]);
    EXPECT_EQ(0, files.OpenCount());
    EXPECT_EQ(0, answer.screen.windowsAlive);
    EXPECT_TRUE(answer.screen.fileErrors.empty());
    EXPECT_EQ(answer.screen.steps, answer.conversion.report.lines.steps);
    EXPECT_EQ(answer.screen.steps, answer.conversion.report.lines.read);
    return answer;
}

void ExpectNotRead(const CAnswer& answer, const Messages& messages)
{
    EXPECT_EQ(-1, answer.conversion.result);
    EXPECT_EQ(messages, answer.screen.messages);
    EXPECT_FALSE(answer.conversion.model.has_value());
    EXPECT_FALSE(answer.conversion.messageLog.has_value());
    EXPECT_FALSE(answer.conversion.report.hasMessageLog);
    EXPECT_FALSE(answer.conversion.report.hasFileError);
}

void ExpectWritten(const CAnswer& answer)
{
    EXPECT_EQ(0, answer.conversion.result) << FailureReason(answer.conversion);
    EXPECT_EQ(Messages{}, answer.screen.messages);
    EXPECT_TRUE(answer.conversion.model.has_value());
    EXPECT_TRUE(answer.conversion.messageLog.has_value());
    EXPECT_TRUE(answer.conversion.report.hasMessageLog);
    EXPECT_FALSE(answer.conversion.report.hasFileError);
}

void ExpectSameFiles(const CAnswer& expected, const CAnswer& actual)
{
    ExpectWritten(expected);
    ExpectWritten(actual);
    EXPECT_EQ("", FirstDifference(expected.conversion.model.value_or(""), actual.conversion.model.value_or("")));
    EXPECT_EQ(expected.conversion.messageLog, actual.conversion.messageLog);
}

std::int64_t LoadCount(const CAnswer& answer)
{
    const CReadCounts& read = answer.conversion.report.read;
    return read.nodalLoads + read.beamLoads + read.pressureLoads + read.otherLoads;
}

void ExpectSmallBuilding(const CConversionResult& conversion)
{
    const CConversionResult expected = ConvertSmallBuilding();
    EXPECT_EQ(0, conversion.result);
    EXPECT_EQ("", FirstDifference(expected.model.value(), conversion.model.value_or("(no file)")));
    EXPECT_EQ(expected.messageLog, conversion.messageLog);
}

CConversionResult ConvertSmallBuilding()
{
    return Convert(SmallStructure(), SmallLoads()).conversion;
}

}  // namespace satwecvt

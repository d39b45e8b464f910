// Every system call of a conversion fails once. The building has warnings and loads, so that both outputs take bytes.

#include "support/Conversion.h"
#include "support/FailingFiles.h"
#include "support/SmallBuilding.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdint>
#include <cstring>
#include <map>
#include <string>
#include <vector>

namespace satwecvt {
namespace {

class FileFailure : public testing::TestWithParam<int> {
protected:
    FileFailure()
    {
        system.error = GetParam();
        system.files = inputs;
    }

    void Convert()
    {
        screen = CScriptedInterface();
        conversion = ConvertMemoryFiles(screen, system);
        EXPECT_EQ(0, system.OpenCount());
        EXPECT_EQ(0, screen.windowsAlive);
        EXPECT_EQ(SmallStructure(), system.files["structure.sat"]);
        EXPECT_EQ(SmallLoads(), system.files["load.sat"]);
        EXPECT_EQ(conversion.report.hasFileError, !screen.fileErrors.empty());
    }

    void ExpectWhole(std::int32_t total)
    {
        EXPECT_EQ(0, conversion.result);
        EXPECT_EQ(expected.model, conversion.model);
        EXPECT_EQ(expected.messageLog, conversion.messageLog);
        EXPECT_TRUE(screen.fileErrors.empty());
        EXPECT_TRUE(screen.messages.empty());
        EXPECT_EQ(std::vector{total}, screen.totals);
    }

    void ExpectNotRead(const std::vector<std::string>& messages)
    {
        EXPECT_EQ(-1, conversion.result);
        EXPECT_EQ(messages, screen.messages);
        EXPECT_TRUE(screen.fileErrors.empty());
        EXPECT_EQ(inputs, system.files);
    }

    void ExpectOneFileError(const std::string& path)
    {
        EXPECT_EQ(0, conversion.result);
        EXPECT_EQ(std::vector{path + ": " + std::strerror(GetParam())}, screen.fileErrors);
        EXPECT_TRUE(screen.messages.empty());
        EXPECT_TRUE(expected.model.value().starts_with(conversion.model.value_or("")));
        EXPECT_TRUE(expected.messageLog.value().starts_with(conversion.messageLog.value_or("")));
    }

    /// The outputs are those of a load file that ends where the reading of this one did.
    void ExpectLoadsInFrontOfTheStop()
    {
        const CFinding early = EndsEarly(conversion).value_or(CFinding());
        EXPECT_EQ(ESource::LoadFile, early.place.source);
        EXPECT_EQ(std::strerror(GetParam()), early.quote);
        EXPECT_FALSE(conversion.report.failure.has_value());
        const CConversionResult cut = Unharmed(FirstLines(SmallLoads(), early.place.line));
        EXPECT_EQ(0, conversion.result);
        EXPECT_EQ(cut.model, conversion.model);
        EXPECT_EQ(cut.messageLog, conversion.messageLog);
        EXPECT_TRUE(screen.fileErrors.empty());
        EXPECT_TRUE(screen.messages.empty());
    }

    /// Whole outputs, an input that could not be opened or read, or one message of an output: nothing in between.
    void ExpectOneAnswer()
    {
        if (conversion.result == -1) {
            EXPECT_LE(screen.messages.size(), 1U);
            EXPECT_TRUE(screen.fileErrors.empty());
            EXPECT_EQ(inputs, system.files);
        } else if (screen.fileErrors.empty() && EndsEarly(conversion)) {
            ExpectLoadsInFrontOfTheStop();
        } else if (screen.fileErrors.empty()) {
            EXPECT_EQ(0, conversion.result);
            EXPECT_EQ(expected.model, conversion.model);
            EXPECT_EQ(expected.messageLog, conversion.messageLog);
            EXPECT_TRUE(screen.messages.empty());
        } else {
            const bool isLog = screen.fileErrors.front().starts_with("satwecvt.msg");
            ExpectOneFileError(isLog ? "satwecvt.msg" : "structure.vkm");
        }
    }

    /// The lines of the input file that is not this one.
    std::int32_t LinesBesides(const std::string& path) const
    {
        return path == "structure.sat" ? loadLines : structureLines;
    }

    static CConversionResult Unharmed(const std::string& load)
    {
        CMemoryFiles files;
        files.files = {{"structure.sat", SmallStructure()}, {"load.sat", load}};
        CScriptedInterface ignored;
        return ConvertMemoryFiles(ignored, files);
    }

    const std::int32_t structureLines = LineCount(SmallStructure());
    const std::int32_t loadLines = LineCount(SmallLoads());
    const std::map<std::string, std::string> inputs = {{"structure.sat", SmallStructure()}, {"load.sat", SmallLoads()}};
    const CConversionResult expected = Unharmed(SmallLoads());
    CFailingFiles system;
    CScriptedInterface screen;
    CConversionResult conversion;
};

TEST_P(FileFailure, OfAnOpenForCountingCountsNoLines)
{
    for (int number = 1; number <= 2; ++number) {
        SCOPED_TRACE(number);
        system.calls.clear();
        system.files = inputs;
        system.FailOnce(ECall::OpenForReading, number);
        Convert();
        ExpectWhole(LinesBesides(system.failedPath));
    }
}

TEST_P(FileFailure, OfTheStructuresOpenIsReported)
{
    system.FailOnce(ECall::OpenForReading, 3);
    Convert();
    ExpectNotRead({"Can't open structure input file!"});
}

TEST_P(FileFailure, OfTheLoadsOpenIsReported)
{
    system.FailOnce(ECall::OpenForReading, 4);
    Convert();
    ExpectNotRead({"Can't open load file!"});
    EXPECT_EQ(4, system.calls[ECall::OpenForReading]);
}

/// The number of the first read that is not for counting: two for each file, its bytes and its end.
constexpr int kFirstReadOfReading = 5;
constexpr int kReads = 8;

TEST_P(FileFailure, OfAReadForCountingEndsTheCount)
{
    for (int number = 1; number < kFirstReadOfReading; ++number) {
        SCOPED_TRACE(number);
        system.calls.clear();
        system.files = inputs;
        system.FailOnce(ECall::Read, number);
        Convert();
        const bool isEndOfFile = number % 2 == 0;  // all lines were there to be counted
        ExpectWhole(isEndOfFile ? structureLines + loadLines : LinesBesides(system.failedPath));
    }
}

TEST_P(FileFailure, OfAReadEndsTheReadingOfItsFileWithoutAMessage)
{
    for (int number = kFirstReadOfReading; number <= kReads + 1; ++number) {
        SCOPED_TRACE(number);
        system.calls.clear();
        system.files = inputs;
        system.FailOnce(ECall::Read, number);
        Convert();
        switch (number) {
        case kFirstReadOfReading:
            ExpectNotRead({});
            break;
        case kFirstReadOfReading + 2:
            ExpectLoadsInFrontOfTheStop();
            EXPECT_EQ(0, EndsEarly(conversion).value().place.line);
            break;
        default:  // the end of a file that was read to its end, or none
            ExpectWhole(structureLines + loadLines);
        }
    }
}

TEST_P(FileFailure, OfAReadInTheMiddleOfAFileEndsTheReadingThere)
{
    system.mostBytesPerCall = 100;
    Convert();
    const int reads = system.calls[ECall::Read];
    int loadStops = 0;
    for (int number = reads / 2 + 1; number <= reads; ++number) {
        SCOPED_TRACE(number);
        system.calls.clear();
        system.files = inputs;
        system.FailOnce(ECall::Read, number);
        Convert();
        if (conversion.result == -1) {
            EXPECT_EQ("structure.sat", system.failedPath);
            ExpectNotRead({});
        } else if (EndsEarly(conversion)) {
            ++loadStops;
            ExpectLoadsInFrontOfTheStop();
        } else {
            ExpectWhole(structureLines + loadLines);
        }
    }
    EXPECT_GT(loadStops, 1);
}

TEST_P(FileFailure, OfTheLogsOpenIsOneFileErrorAtTheFirstWarning)
{
    system.FailOnce(ECall::OpenForWriting, 1);
    Convert();
    ExpectOneFileError("satwecvt.msg");
    EXPECT_FALSE(conversion.report.hasMessageLog);
}

TEST_P(FileFailure, OfTheModelsOpenIsOneFileError)
{
    system.FailOnce(ECall::OpenForWriting, 2);
    Convert();
    ExpectOneFileError("structure.vkm");
    EXPECT_FALSE(system.files.contains("structure.vkm"));
    EXPECT_EQ(std::vector<std::string>{"!!! Read Data File !!!"}, screen.stages);
}

TEST_P(FileFailure, OfAnyWriteIsOneFileError)
{
    system.mostBytesPerCall = 100;
    Convert();
    const int writes = system.calls[ECall::Write];
    ASSERT_GT(writes, 20);
    for (int number = 1; number <= writes; ++number) {
        SCOPED_TRACE(number);
        system.calls.clear();
        system.FailOnce(ECall::Write, number);
        Convert();
        ExpectOneFileError(system.failedPath);
        EXPECT_TRUE(system.failedPath == "structure.vkm" || system.failedPath == "satwecvt.msg");
        EXPECT_EQ(number, system.calls[ECall::Write]) << "something was written after the failure";
    }
}

TEST_P(FileFailure, OfAnInputsCloseLosesNothing)
{
    for (int number = 1; number <= 4; ++number) {
        SCOPED_TRACE(number);
        system.calls.clear();
        system.FailOnce(ECall::Close, number);
        Convert();
        ExpectWhole(structureLines + loadLines);
    }
}

TEST_P(FileFailure, OfAnOutputsCloseIsOneFileError)
{
    for (int number = 5; number <= 6; ++number) {
        SCOPED_TRACE(number);
        system.calls.clear();
        system.files = inputs;
        system.FailOnce(ECall::Close, number);
        Convert();
        ExpectOneFileError(system.failedPath);
        EXPECT_TRUE(system.failedPath == "structure.vkm" || system.failedPath == "satwecvt.msg");
        EXPECT_EQ(6, system.calls[ECall::Close]);
    }
}

TEST_P(FileFailure, OfEveryCallFromOneOnHasItsAnswer)
{
    for (const ECall call : {ECall::OpenForReading, ECall::OpenForWriting, ECall::Read, ECall::Write, ECall::Close}) {
        for (int number = 1; number <= kReads; ++number) {
            SCOPED_TRACE(testing::Message() << "call " << static_cast<int>(call) << " number " << number);
            system.calls.clear();
            system.files = inputs;
            system.FailFrom(call, number);
            Convert();
            ExpectOneAnswer();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, FileFailure, testing::Values(EIO, ENOSPC, EACCES));

TEST(ShortCalls, ChangeNoByte)
{
    CMemoryFiles whole;
    whole.files = {{"structure.sat", SmallStructure()}, {"load.sat", SmallLoads()}};
    CScriptedInterface screen;
    const CConversionResult expected = ConvertMemoryFiles(screen, whole);
    for (const std::size_t most : {1U, 2U, 7U, 499U, 500U, 1000U}) {
        SCOPED_TRACE(most);
        CMemoryFiles system;
        system.files = {{"structure.sat", Replaced(SmallStructure(), "\n", "\r\n")}, {"load.sat", SmallLoads()}};
        system.mostBytesPerCall = most;
        const CConversionResult conversion = ConvertMemoryFiles(screen, system);
        EXPECT_EQ(expected.model, conversion.model);
        EXPECT_EQ(expected.messageLog, conversion.messageLog);
        EXPECT_EQ(0, system.OpenCount());
    }
}

TEST(ShortCalls, ThatTakeNothingAreAFullDevice)
{
    for (int number = 1; number <= 2; ++number) {
        CFailingFiles system;
        system.files = {{"structure.sat", SmallStructure()}, {"load.sat", SmallLoads()}};
        system.failure = EFailure::NothingWritten;
        system.FailFrom(ECall::Write, number);
        CScriptedInterface screen;
        EXPECT_EQ(0, ConvertMemoryFiles(screen, system).result);
        ASSERT_EQ(1U, screen.fileErrors.size());
        EXPECT_TRUE(screen.fileErrors[0].ends_with(std::strerror(ENOSPC))) << screen.fileErrors[0];
        EXPECT_EQ(0, system.OpenCount());
    }
}

}  // namespace
}  // namespace satwecvt

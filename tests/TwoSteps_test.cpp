// Reading and writing, one after the other and apart.

#include "satwecvt/ConvertSatwe.h"
#include "satwecvt/SilentInterface.h"
#include "support/CheckedConversion.h"
#include "support/SmallBuilding.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>
#include <string>

namespace satwecvt {
namespace {

class TwoSteps : public testing::Test {
protected:
    TwoSteps() { system.files = {{"structure.sat", SmallStructure()}, {"load.sat", SmallLoads()}}; }

    /// The model and the log of a pair of paths are those of the small building.
    void ExpectSmallOutputs(const std::string& model, const std::string& messageLog)
    {
        EXPECT_EQ("", FirstDifference(expected.model.value(), system.Bytes(model).value_or("(no file)")));
        EXPECT_EQ(expected.messageLog, system.Bytes(messageLog));
    }

    const CConversionResult expected = ConvertSmallBuilding();
    const CConversionPaths paths = LibraryPaths("structure.sat", "load.sat");
    CMemoryFiles system;
    CScriptedInterface screen;
    CFindingList findings;
    CConvertSatwe converter{screen, &findings, system};
};

TEST_F(TwoSteps, OneModelWrittenTwiceGivesTheSameBytes)
{
    const auto model = converter.Read(paths);
    ASSERT_NE(nullptr, model);
    EXPECT_EQ(kWritten, converter.Write(*model, paths));
    ExpectSmallOutputs("structure.vkm", "satwecvt.msg");
    const CWrittenCounts first = converter.Report().written;
    EXPECT_EQ(kWritten, converter.Write(*model, {"structure.sat", "load.sat", "other.vkm", "other.msg"}));
    ExpectSmallOutputs("other.vkm", "other.msg");
    EXPECT_EQ(first.releases, converter.Report().written.releases);
    EXPECT_EQ(first.warnings, converter.Report().written.warnings);
    EXPECT_EQ(0, system.OpenCount());
}

TEST_F(TwoSteps, AConverterThatConvertsAgainStartsFromNothing)
{
    for (int round = 0; round < 3; ++round) {
        SCOPED_TRACE(round);
        EXPECT_EQ(kWritten, converter.Convert("structure.sat", "load.sat"));
        ExpectSmallOutputs("structure.vkm", "satwecvt.msg");
        EXPECT_EQ(5, converter.Report().read.beamLoads);
        EXPECT_EQ(expected.report.lines.read, converter.Report().lines.read);
        EXPECT_EQ(1, converter.Report().isRead);
    }
    EXPECT_EQ(3 * expected.findings.size(), findings.Findings().size());
}

TEST_F(TwoSteps, ReadingAloneWritesNothing)
{
    system.files["structure.vkm"] = "of another conversion";
    const auto before = system.files;
    const auto model = converter.Read(paths);
    ASSERT_NE(nullptr, model);
    EXPECT_EQ(before, system.files);
    EXPECT_TRUE(converter.Report().isRead);
    EXPECT_EQ(2, converter.Report().read.stories);
    EXPECT_EQ(0, converter.Report().written.nodes);
    EXPECT_EQ(EStage::Read, converter.Report().lastStage);
    EXPECT_EQ(1, screen.windowsCreated);
    EXPECT_EQ(0, screen.windowsAlive);
    EXPECT_EQ(std::vector<std::string>{"!!! Read Data File !!!"}, screen.stages);
}

TEST_F(TwoSteps, WritingAloneShowsItsStagesInAWindowOfItsOwn)
{
    const auto model = converter.Read(paths);
    ASSERT_NE(nullptr, model);
    CScriptedInterface other;
    CConvertSatwe writer(other, nullptr, system);
    EXPECT_EQ(kWritten, writer.Write(*model, paths));
    ExpectSmallOutputs("structure.vkm", "satwecvt.msg");
    EXPECT_EQ(1, other.windowsCreated);
    EXPECT_EQ(0, other.windowsAlive);
    EXPECT_EQ(0, other.steps);
    EXPECT_EQ("!!! Write File : Static Load !!!", other.stages.back());
    EXPECT_EQ(EStage::StaticLoad, writer.Report().lastStage);
}

TEST_F(TwoSteps, AModelOutlivesTheConverterThatReadIt)
{
    std::shared_ptr<const CSatweModel> model;
    {
        CSilentInterface silent;
        CConvertSatwe reader(silent, nullptr, system);
        model = reader.Read(paths);
    }
    ASSERT_NE(nullptr, model);
    EXPECT_EQ(kWritten, converter.Write(*model, paths));
    ExpectSmallOutputs("structure.vkm", "satwecvt.msg");
}

TEST_F(TwoSteps, AReadingThatFailsOrIsCancelledGivesNoModel)
{
    system.files["structure.sat"] = "1 1 1\n";
    EXPECT_EQ(nullptr, converter.Read(paths));
    EXPECT_EQ(kFailed, converter.Report().result);
    EXPECT_EQ("the file ends here", converter.Report().failure->reason);
    EXPECT_FALSE(converter.Report().isRead);

    system.files["structure.sat"] = SmallStructure();
    screen = CScriptedInterface();
    screen.cancelAtStep = 20;
    EXPECT_EQ(nullptr, converter.Read(paths));
    EXPECT_EQ(kCancelled, converter.Report().result);
    EXPECT_FALSE(converter.Report().failure.has_value());
    EXPECT_EQ(20, converter.Report().lines.steps);
    EXPECT_EQ(19, converter.Report().lines.read);
}

TEST_F(TwoSteps, AWritingThatFailsCanBeDoneAgain)
{
    const auto model = converter.Read(paths);
    ASSERT_NE(nullptr, model);
    EXPECT_EQ(kWritten, converter.Write(*model, {"structure.sat", "load.sat", "load.sat", "satwecvt.msg"}));
    EXPECT_TRUE(converter.Report().hasFileError);
    EXPECT_EQ(SmallLoads(), system.Bytes("load.sat"));
    EXPECT_EQ(std::vector<std::string>{"load.sat could not be written: it is an input file of this conversion"},
              converter.Report().messages);
    EXPECT_EQ(kWritten, converter.Write(*model, paths));
    EXPECT_FALSE(converter.Report().hasFileError);
    EXPECT_EQ(std::vector<std::string>{}, converter.Report().messages);
    ExpectSmallOutputs("structure.vkm", "satwecvt.msg");
}

TEST_F(TwoSteps, APairMayHaveItsOutputsElsewhere)
{
    EXPECT_EQ(kWritten, converter.Convert({"structure.sat", "load.sat", "out/model", "out/log"}));
    ExpectSmallOutputs("out/model", "out/log");
    EXPECT_FALSE(system.Bytes("structure.vkm").has_value());
    EXPECT_FALSE(system.Bytes("satwecvt.msg").has_value());
    EXPECT_EQ("out/model", converter.Report().paths.model);
}

TEST_F(TwoSteps, WithoutAWindowTheReportTellsWhy)
{
    screen.hasProgressWindow = false;
    EXPECT_EQ(kFailed, converter.Convert("structure.sat", "load.sat"));
    EXPECT_EQ("the progress window could not be created", converter.Report().failure->reason);
    EXPECT_EQ(ESource::Model, converter.Report().failure->place.source);
    EXPECT_EQ(std::nullopt, converter.Report().lastStage);
}

TEST_F(TwoSteps, TheSilentInterfaceShowsNothingAndConvertsTheSame)
{
    CSilentInterface silent;
    CConvertSatwe quiet(silent, nullptr, system);
    EXPECT_EQ(kWritten, quiet.Convert("structure.sat", "load.sat"));
    ExpectSmallOutputs("structure.vkm", "satwecvt.msg");
    EXPECT_EQ(kFailed, quiet.Convert("nowhere.sat", "load.sat"));
    EXPECT_EQ(std::vector<std::string>{"Can't open structure input file!"}, quiet.Report().messages);
}

TEST_F(TwoSteps, AWritingWithoutAWindowFailsAndKeepsNothingOfTheLastOne)
{
    const auto model = converter.Read(paths);
    ASSERT_NE(nullptr, model);
    EXPECT_EQ(kWritten, converter.Write(*model, paths));
    screen.hasProgressWindow = false;
    EXPECT_EQ(kFailed, converter.Write(*model, paths));
    EXPECT_EQ("the progress window could not be created", converter.Report().failure->reason);
    EXPECT_EQ(std::nullopt, converter.Report().lastStage);
    EXPECT_EQ(0, converter.Report().written.nodes);
    EXPECT_EQ(2, converter.Report().read.stories);
}

TEST_F(TwoSteps, ThePathsMayBeThoseOfTheLastReport)
{
    EXPECT_EQ(kWritten, converter.Convert("structure.sat", "load.sat"));
    EXPECT_EQ(kWritten, converter.Convert(converter.Report().paths));
    const auto model = converter.Read(converter.Report().paths);
    ASSERT_NE(nullptr, model);
    EXPECT_EQ(kWritten, converter.Write(*model, converter.Report().paths));
    EXPECT_EQ("structure.vkm", converter.Report().paths.model);
    ExpectSmallOutputs("structure.vkm", "satwecvt.msg");
}

TEST_F(TwoSteps, AReadingAfterACancelStartsFromNothing)
{
    screen.cancelAtStep = 20;
    EXPECT_EQ(kCancelled, converter.Convert("structure.sat", "load.sat"));
    screen.cancelAtStep = 0;
    EXPECT_EQ(kWritten, converter.Convert("structure.sat", "load.sat"));
    ExpectSmallOutputs("structure.vkm", "satwecvt.msg");
    EXPECT_EQ(expected.report.lines.steps, converter.Report().lines.steps);
    EXPECT_EQ(EStage::StaticLoad, converter.Report().lastStage);
}

template <class Failure>
class CFailingListener : public CFindingListener {
public:
    explicit CFailingListener(Failure thrownFailure) : failure(thrownFailure) {}

    void Tell(const CFinding& /*finding*/) override { throw failure; }

private:
    Failure failure;
};

/// A listener that throws, in the reading (a load file that ends early) and in the writing.
template <class Failure>
void ExpectFailed(const Failure& failure, const std::string& reason)
{
    for (const std::string& load : {SmallLoads(), std::string("1\n")}) {
        CMemoryFiles files;
        files.files = {{"structure.sat", SmallStructure()}, {"load.sat", load}};
        CScriptedInterface screen;
        CFailingListener<Failure> listener(failure);
        CConvertSatwe failing(screen, &listener, files);
        EXPECT_EQ(kFailed, failing.Convert("structure.sat", "load.sat"));
        EXPECT_EQ(reason, failing.Report().failure->reason);
        EXPECT_FALSE(failing.Report().hasFileError);
        EXPECT_TRUE(screen.fileErrors.empty());
        EXPECT_EQ(0, files.OpenCount());
        EXPECT_EQ(0, screen.windowsAlive);
    }
}

TEST(Listener, ThatThrowsEndsTheConversionAsAFailedOne)
{
    ExpectFailed(std::runtime_error("no room for a finding"), "no room for a finding");
    ExpectFailed(CFileError("findings.txt", "No space left on device"), "findings.txt: No space left on device");
    ExpectFailed(std::bad_alloc(), "out of memory");
    ExpectFailed(7, "a listener or the user interface failed");
}

}  // namespace
}  // namespace satwecvt

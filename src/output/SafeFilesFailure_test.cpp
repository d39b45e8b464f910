// Every step of an output fails in its turn: the old files stay, and no temporary one does.

#include "output/FailingSystem_test.h"
#include "output/OutputFolder_test.h"
#include "output/SafeFiles.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>

namespace satwecvt {
namespace {

namespace fs = std::filesystem;

class FailingOutput : public COutputFolder {};

TEST_F(FailingOutput, ANameThatIsTakenIsNotUsed)
{
    CFailure failure{EStep::Create, 1, EEXIST};
    CFailingPlaces places(failure);
    CSafeFiles files(system, places);
    ASSERT_TRUE(WriteOutput(files, Path("tower.vkm"), "model"));
    ASSERT_EQ(2U, places.created.size());
    EXPECT_NE(places.created[0], places.created[1]);
}

TEST_F(FailingOutput, OnAFullDiskTheOldFileIsNotEmptied)
{
    for (const int cause : {ENOSPC, EMFILE, EIO}) {
        Create("tower.vkm", "old model");
        CFailure failure{EStep::Create, 1, cause};
        CFailingPlaces places(failure);
        CSafeFiles files(system, places);
        EXPECT_EQ(-1, files.OpenForWriting(Path("tower.vkm").c_str()));
        EXPECT_EQ(cause, errno);
        EXPECT_EQ("old model", BytesOf("tower.vkm"));
    }
    EXPECT_EQ(StringSet{"tower.vkm"}, Names());
}

TEST_F(FailingOutput, AFailureOfAnyStepLeavesTheOldFiles)
{
    for (const EStep step : {EStep::Write, EStep::Close, EStep::Create, EStep::Sync}) {
        for (int number = 1; number <= 2; ++number) {
            SCOPED_TRACE(testing::Message() << "step " << static_cast<int>(step) << ", " << number);
            Create("satwecvt.msg", "old log");
            Create("tower.vkm", "old model");
            CFailure failure{step, number, ENOSPC};
            CFailingSystem failing(failure);
            CFailingPlaces places(failure);
            {
                CSafeFiles files(failing, places);
                const bool isLogWritten = WriteOutput(files, Path("satwecvt.msg"), "log");
                EXPECT_EQ(number == 2, isLogWritten);
                EXPECT_FALSE(isLogWritten && WriteOutput(files, Path("tower.vkm"), "model"));
            }
            EXPECT_EQ((StringSet{"satwecvt.msg", "tower.vkm"}), Names());
            EXPECT_EQ("old log", BytesOf("satwecvt.msg"));
            EXPECT_EQ("old model", BytesOf("tower.vkm"));
        }
    }
}

TEST_F(FailingOutput, WhatIsNotWholeIsNotKept)
{
    for (const EStep step : {EStep::Write, EStep::Close, EStep::Sync}) {
        CFailure failure{step, 2, ENOSPC};
        CFailingSystem failing(failure);
        CFailingPlaces places(failure);
        CSafeFiles files(failing, places);
        EXPECT_TRUE(WriteOutput(files, Path("satwecvt.msg"), "log"));
        errno = 0;
        EXPECT_FALSE(WriteOutput(files, Path("tower.vkm"), "model"));
        EXPECT_EQ(Path("tower.vkm") + ": " + std::strerror(ENOSPC), KeepFailure(files));
        EXPECT_FALSE(fs::exists(Path("tower.vkm")));
        EXPECT_FALSE(fs::exists(Path("satwecvt.msg")));
    }
    EXPECT_EQ(StringSet{}, Names());
}

TEST_F(FailingOutput, ADeviceThatTakesNothingMoreIsFull)
{
    CFailure failure{EStep::Write, 1, 0};
    CFailingSystem failing(failure);
    CSafeFiles files(failing);
    EXPECT_FALSE(WriteOutput(files, Path("tower.vkm"), "model"));
    EXPECT_EQ(Path("tower.vkm") + ": " + std::strerror(ENOSPC), KeepFailure(files));
}

TEST_F(FailingOutput, WhatIsStillOpenIsNotKept)
{
    CSafeFiles files(system);
    const int file = files.OpenForWriting(Path("tower.vkm").c_str());
    ASSERT_GE(file, 0);
    EXPECT_EQ(Path("tower.vkm") + ": " + std::strerror(EBUSY), KeepFailure(files));
    EXPECT_FALSE(fs::exists(Path("tower.vkm")));
    EXPECT_EQ(0, files.Close(file));
    EXPECT_EQ("", KeepFailure(files));
    EXPECT_TRUE(fs::exists(Path("tower.vkm")));
}

TEST_F(FailingOutput, AnOutputThatCannotTakeItsPlaceIsToldAndLeavesWhatIsThere)
{
    for (int number = 1; number <= 2; ++number) {
        Create("satwecvt.msg", "old log");
        Create("tower.vkm", "old model");
        CFailure failure{EStep::Replace, number, EACCES};
        CFailingPlaces places(failure);
        CSafeFiles files(system, places);
        ASSERT_TRUE(WriteOutput(files, Path("satwecvt.msg"), "log"));
        ASSERT_TRUE(WriteOutput(files, Path("tower.vkm"), "model"));
        const std::string name = number == 1 ? "satwecvt.msg" : "tower.vkm";
        EXPECT_EQ(Path(name) + ": " + std::strerror(EACCES), KeepFailure(files));
        EXPECT_EQ((StringSet{"satwecvt.msg", "tower.vkm"}), Names());
        EXPECT_EQ(number == 1 ? "old log" : "log", BytesOf("satwecvt.msg"));
        EXPECT_EQ("old model", BytesOf("tower.vkm"));
        EXPECT_EQ("", KeepFailure(files));  // nothing is left to keep
    }
}

TEST_F(FailingOutput, AFolderThatHasComeInTheWayStays)
{
    CSafeFiles files(system);
    ASSERT_TRUE(WriteOutput(files, Path("tower.vkm"), "model"));
    fs::create_directory(folder / "tower.vkm");
    EXPECT_NE("", KeepFailure(files));
    EXPECT_EQ(StringSet{"tower.vkm"}, Names());
    EXPECT_TRUE(fs::is_directory(folder / "tower.vkm"));
}

}  // namespace
}  // namespace satwecvt

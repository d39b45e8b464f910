// Every step of an output fails in its turn: the old files stay, and no temporary one does.

#include "output/OutputFolder_test.h"
#include "output/SafeFiles.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <vector>

namespace satwecvt {
namespace {

namespace fs = std::filesystem;

enum class EStep { OpenForWriting, Write, Close, Create, Sync, Replace };

/// The files and places of this machine, of whose steps one fails.
struct CFailure {
    EStep step = EStep::Write;
    int at = 0;  // the number of that step, counted from 1; 0: none
    int error = EIO;
    int taken = 0;

    bool Strikes(EStep each)
    {
        if (each != step || ++taken != at) {
            return false;
        }
        errno = error;
        return true;
    }
};

class CFailingSystem : public CFileSystem {
public:
    explicit CFailingSystem(CFailure& what) : failure(what) {}
    int OpenForWriting(const char* path) override
    {
        return failure.Strikes(EStep::OpenForWriting) ? -1 : CFileSystem::OpenForWriting(path);
    }
    std::ptrdiff_t Write(int file, const char* bytes, std::size_t size) override
    {
        if (failure.Strikes(EStep::Write)) {
            return failure.error == 0 ? 0 : -1;
        }
        return CFileSystem::Write(file, bytes, size);
    }
    int Close(int file) noexcept override
    {
        const int result = CFileSystem::Close(file);
        return failure.Strikes(EStep::Close) ? -1 : result;
    }

private:
    CFailure& failure;
};

class CFailingPlaces : public CFilePlaces {
public:
    explicit CFailingPlaces(CFailure& what) : failure(what) {}
    int Create(const std::string& temporary, const COutputPlace& place) override
    {
        created.push_back(temporary);
        return failure.Strikes(EStep::Create) ? -1 : CFilePlaces::Create(temporary, place);
    }
    int Sync(int file) noexcept override { return failure.Strikes(EStep::Sync) ? -1 : CFilePlaces::Sync(file); }
    int Replace(const std::string& temporary, const COutputPlace& place) override
    {
        return failure.Strikes(EStep::Replace) ? -1 : CFilePlaces::Replace(temporary, place);
    }

    std::vector<std::string> created;  // the names that were tried

private:
    CFailure& failure;
};

class FailingOutput : public COutputFolder {
protected:
    /// The path and the cause of the failure with which `Keep` ends; empty when it does not fail.
    std::string KeepFailure(CSafeFiles& files)
    {
        try {
            files.Keep();
            return "";
        } catch (const CFileError& failure) {
            return failure.what();
        }
    }
};

TEST_F(FailingOutput, ANameThatIsTakenIsNotUsed)
{
    CFailure failure{EStep::Create, 1, EEXIST};
    CFailingPlaces places(failure);
    CSafeFiles files(system, places);
    ASSERT_TRUE(WriteOutput(files, Path("tower.vkm"), "model"));
    ASSERT_EQ(2U, places.created.size());
    EXPECT_NE(places.created[0], places.created[1]);
}

TEST_F(FailingOutput, WhereTheFolderRefusesANewFileTheOldOneIsWrittenInPlace)
{
    for (const int refusal : {EACCES, EPERM, EROFS}) {
        Create("tower.vkm", "old model");
        CFailure failure{EStep::Create, 1, refusal};
        CFailingPlaces places(failure);
        {
            CSafeFiles files(system, places);
            ASSERT_TRUE(WriteOutput(files, Path("tower.vkm"), "model"));
            EXPECT_EQ("model", BytesOf("tower.vkm"));
            EXPECT_EQ("model", ReadFile(files, Path("tower.vkm")));
            files.Keep();
        }
        EXPECT_EQ(StringSet{"tower.vkm"}, Names());
        EXPECT_EQ("model", BytesOf("tower.vkm"));
    }
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

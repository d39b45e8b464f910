// Outputs that appear whole or not at all, on every system.

#include "output/SafeFiles.h"

#include "output/OutputFolder_test.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <regex>

namespace satwecvt {
namespace {

namespace fs = std::filesystem;
using StringSet = std::set<std::string>;

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

class SafeFiles : public COutputFolder {
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

    CFileSystem& system = CFileSystem::System();
};

TEST_F(SafeFiles, AnOutputAppearsWhenItIsKept)
{
    CSafeFiles files(system);
    ASSERT_TRUE(WriteOutput(files, Path("tower.vkm"), "model"));
    EXPECT_FALSE(fs::exists(Path("tower.vkm")));
    files.Keep();
    EXPECT_EQ(StringSet{"tower.vkm"}, Names());
    EXPECT_EQ("model", BytesOf("tower.vkm"));
}

TEST_F(SafeFiles, AnOldFileIsUntouchedUntilTheNewOneIsKept)
{
    Create("tower.vkm", "an older and longer model");
    CSafeFiles files(system);
    ASSERT_TRUE(WriteOutput(files, Path("tower.vkm"), "model"));
    EXPECT_EQ("an older and longer model", BytesOf("tower.vkm"));
    files.Keep();
    EXPECT_EQ(StringSet{"tower.vkm"}, Names());
    EXPECT_EQ("model", BytesOf("tower.vkm"));
}

TEST_F(SafeFiles, WhatIsNotKeptLeavesNothing)
{
    Create("tower.vkm", "old model");
    {
        CSafeFiles files(system);
        ASSERT_TRUE(WriteOutput(files, Path("satwecvt.msg"), "log"));
        ASSERT_TRUE(WriteOutput(files, Path("tower.vkm"), "model"));
        EXPECT_EQ(3U, Names().size());
    }
    EXPECT_EQ(StringSet{"tower.vkm"}, Names());
    EXPECT_EQ("old model", BytesOf("tower.vkm"));
}

TEST_F(SafeFiles, AnEmptyOutputIsOneToo)
{
    Create("satwecvt.msg", "of another conversion");
    CSafeFiles files(system);
    ASSERT_TRUE(WriteOutput(files, Path("satwecvt.msg"), ""));
    files.Keep();
    EXPECT_TRUE(fs::exists(Path("satwecvt.msg")));
    EXPECT_EQ("", BytesOf("satwecvt.msg"));
}

TEST_F(SafeFiles, KeepingNothingIsNoFailure)
{
    CSafeFiles files(system);
    files.Keep();
    ASSERT_TRUE(WriteOutput(files, Path("tower.vkm"), "model"));
    files.Keep();
    files.Keep();
    EXPECT_EQ("model", BytesOf("tower.vkm"));
}

TEST_F(SafeFiles, ATemporaryNameTellsWhoseItIs)
{
    CSafeFiles files(system);
    ASSERT_TRUE(WriteOutput(files, Path("tower.vkm"), "model"));
    ASSERT_EQ(1U, Names().size());
    EXPECT_TRUE(std::regex_match(*Names().begin(), std::regex(R"(\.tower\.vkm\.satwecvt-[a-z0-9]{6})")))
        << *Names().begin();
}

// 245 characters are a name that every file system takes; 245 and those of a temporary name are none.
TEST_F(SafeFiles, ALongNameIsWrittenUnderAShortOne)
{
    const std::string name(245, 'n');
    Create(name, "old model");
    CSafeFiles files(system);
    ASSERT_TRUE(WriteOutput(files, Path(name), "model"));
    EXPECT_EQ(2U, Names().size());
    EXPECT_TRUE(std::regex_match(*Names().begin(), std::regex(R"(\.satwecvt-[a-z0-9]{6})"))) << *Names().begin();
    EXPECT_EQ("old model", BytesOf(name));
    EXPECT_TRUE(files.IsSameFile(Path(name).c_str(), Path(name).c_str()));
    EXPECT_FALSE(files.IsSameFile(Path(name).c_str(), Path(std::string(245, 'm')).c_str()));
    files.Keep();
    EXPECT_EQ(StringSet{name}, Names());
    EXPECT_EQ("model", BytesOf(name));
}

TEST_F(SafeFiles, ANameThatIsTakenIsNotUsed)
{
    CFailure failure{EStep::Create, 1, EEXIST};
    CFailingPlaces places(failure);
    CSafeFiles files(system, places);
    ASSERT_TRUE(WriteOutput(files, Path("tower.vkm"), "model"));
    ASSERT_EQ(2U, places.created.size());
    EXPECT_NE(places.created[0], places.created[1]);
}

TEST_F(SafeFiles, NoFileIsCreatedOverAnother)
{
    Create("other", "other");
    errno = 0;
    EXPECT_EQ(-1, CFilePlaces::System().Create(Path("other"), {Path(""), "tower.vkm"}));
    EXPECT_EQ(EEXIST, errno);
    EXPECT_EQ("other", BytesOf("other"));
}

TEST_F(SafeFiles, AnOutputIsReadBackBeforeItIsKept)
{
    Create("tower.vkm", "old model");
    fs::create_directory(folder / "sub");
    CSafeFiles files(system);
    EXPECT_EQ("old model", ReadFile(files, Path("tower.vkm")));
    ASSERT_TRUE(WriteOutput(files, Path("tower.vkm"), "new model"));
    EXPECT_EQ("new model", ReadFile(files, Path("tower.vkm")));
    EXPECT_EQ("new model", ReadFile(files, Path("sub/../tower.vkm")));
    files.Keep();
    EXPECT_EQ("new model", ReadFile(files, Path("tower.vkm")));
    EXPECT_EQ(-1, files.OpenForReading(Path("missing").c_str()));
}

TEST_F(SafeFiles, AnOutputThatIsOpenedAgainStartsAfresh)
{
    CSafeFiles files(system);
    ASSERT_TRUE(WriteOutput(files, Path("tower.vkm"), "first"));
    ASSERT_TRUE(WriteOutput(files, Path("./tower.vkm"), "second"));
    EXPECT_EQ(1U, Names().size());
    files.Keep();
    EXPECT_EQ("second", BytesOf("tower.vkm"));
    EXPECT_EQ(StringSet{"tower.vkm"}, Names());
}

TEST_F(SafeFiles, AnOutputExistsForThoseWhoAskWhetherItIsTheSame)
{
    fs::create_directory(folder / "sub");
    CSafeFiles files(system);
    const std::string path = Path("tower.vkm");
    const std::string otherSpelling = Path("sub/../tower.vkm");
    EXPECT_FALSE(files.IsSameFile(path.c_str(), otherSpelling.c_str()));  // none exists, as below
    ASSERT_TRUE(WriteOutput(files, path, "model"));
    EXPECT_TRUE(files.IsSameFile(path.c_str(), path.c_str()));
    EXPECT_TRUE(files.IsSameFile(path.c_str(), otherSpelling.c_str()));
    EXPECT_TRUE(files.IsSameFile(otherSpelling.c_str(), path.c_str()));
    EXPECT_FALSE(files.IsSameFile(path.c_str(), Path("sub/tower.vkm").c_str()));
    EXPECT_FALSE(files.IsSameFile(path.c_str(), Path("tower.sat").c_str()));
    EXPECT_FALSE(files.IsSameFile(Path("tower.sat").c_str(), Path("tower.sat").c_str()));
    files.Keep();
    EXPECT_TRUE(files.IsSameFile(path.c_str(), otherSpelling.c_str()));
}

TEST_F(SafeFiles, AnExistingFileIsTheSameAsBelow)
{
    Create("tower.sat", "input");
    Create("tower.vkm", "old model");
    CSafeFiles files(system);
    ASSERT_TRUE(WriteOutput(files, Path("tower.vkm"), "model"));
    EXPECT_TRUE(files.IsSameFile(Path("tower.sat").c_str(), Path("./tower.sat").c_str()));
    EXPECT_TRUE(files.IsSameFile(Path("tower.vkm").c_str(), Path("./tower.vkm").c_str()));
    EXPECT_FALSE(files.IsSameFile(Path("tower.vkm").c_str(), Path("tower.sat").c_str()));
}

TEST_F(SafeFiles, WhatCannotBeOpenedFailsWithTheCauseOfTheSystem)
{
    CSafeFiles files(system);
    for (const std::string& path : {std::string(), Path("missing/tower.vkm"), folder.string(), Path("")}) {
        errno = 0;
        EXPECT_EQ(-1, system.OpenForWriting(path.c_str())) << path;
        const int cause = errno;
        errno = 0;
        EXPECT_EQ(-1, files.OpenForWriting(path.c_str())) << path;
        EXPECT_EQ(cause, errno) << path;
    }
    EXPECT_EQ(StringSet{}, Names());
}

TEST_F(SafeFiles, AFileThatMayNotBeWrittenIsNotReplaced)
{
    Create("tower.vkm", "old model");
    fs::permissions(folder / "tower.vkm", fs::perms::owner_read);
    CSafeFiles files(system);
    errno = 0;
    if (system.OpenForWriting(Path("tower.vkm").c_str()) >= 0) {
        GTEST_SKIP() << "this user may write everything";
    }
    EXPECT_EQ(-1, files.OpenForWriting(Path("tower.vkm").c_str()));
    EXPECT_EQ(EACCES, errno);
    EXPECT_EQ(StringSet{"tower.vkm"}, Names());
    fs::permissions(folder / "tower.vkm", fs::perms::owner_all);
    EXPECT_EQ("old model", BytesOf("tower.vkm"));
}

TEST_F(SafeFiles, WhereTheFolderRefusesANewFileTheOldOneIsWrittenInPlace)
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

TEST_F(SafeFiles, OnAFullDiskTheOldFileIsNotEmptied)
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

TEST_F(SafeFiles, AFailureOfAnyStepLeavesTheOldFiles)
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

TEST_F(SafeFiles, WhatIsNotWholeIsNotKept)
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

TEST_F(SafeFiles, ADeviceThatTakesNothingMoreIsFull)
{
    CFailure failure{EStep::Write, 1, 0};
    CFailingSystem failing(failure);
    CSafeFiles files(failing);
    EXPECT_FALSE(WriteOutput(files, Path("tower.vkm"), "model"));
    EXPECT_EQ(Path("tower.vkm") + ": " + std::strerror(ENOSPC), KeepFailure(files));
}

TEST_F(SafeFiles, WhatIsStillOpenIsNotKept)
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

TEST_F(SafeFiles, AnOutputThatCannotTakeItsPlaceIsToldAndLeavesWhatIsThere)
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

TEST_F(SafeFiles, AFolderThatHasComeInTheWayStays)
{
    CSafeFiles files(system);
    ASSERT_TRUE(WriteOutput(files, Path("tower.vkm"), "model"));
    fs::create_directory(folder / "tower.vkm");
    EXPECT_NE("", KeepFailure(files));
    EXPECT_EQ(StringSet{"tower.vkm"}, Names());
    EXPECT_TRUE(fs::is_directory(folder / "tower.vkm"));
}

TEST_F(SafeFiles, InputsAreReadAsBelow)
{
    Create("tower.sat", "structure");
    CSafeFiles files(system);
    EXPECT_EQ("structure", ReadFile(files, Path("tower.sat")));
    EXPECT_EQ(-1, files.OpenForReading(folder.string().c_str()));
}

TEST_F(SafeFiles, ADescriptorThatIsNotOpenFails)
{
    CSafeFiles files(system);
    ASSERT_TRUE(WriteOutput(files, Path("tower.vkm"), "model"));
    char byte = 'x';
    EXPECT_EQ(-1, files.Write(-1, &byte, 1));
    EXPECT_EQ(-1, files.Close(-1));
    files.Keep();
    EXPECT_EQ("model", BytesOf("tower.vkm"));
}

}  // namespace
}  // namespace satwecvt

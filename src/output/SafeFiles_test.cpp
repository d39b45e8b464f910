// Outputs that appear whole or not at all, on every system.

#include "output/SafeFiles.h"

#include "output/OutputFolder_test.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <string>
#include <string_view>

namespace satwecvt {
namespace {

namespace fs = std::filesystem;

class SafeFiles : public COutputFolder {};

/// Whether a name is this beginning and six letters or digits.
bool IsTemporary(std::string_view name, std::string_view beginning)
{
    return name.starts_with(beginning) && name.size() == beginning.size() + 6 &&
           name.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789", beginning.size()) == name.npos;
}

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
    EXPECT_TRUE(IsTemporary(*Names().begin(), ".tower.vkm.satwecvt-")) << *Names().begin();
}

// A name that the system just takes: with what a temporary one adds it is too long. Windows counts the whole path.
TEST_F(SafeFiles, ALongNameIsWrittenUnderAShortOne)
{
#ifdef _WIN32
    const std::string name(255 - folder.string().size(), 'n');
#else
    const std::string name(245, 'n');
#endif
    Create(name, "old model");
    CSafeFiles files(system);
    ASSERT_TRUE(WriteOutput(files, Path(name), "model"));
    EXPECT_EQ(2U, Names().size());
    EXPECT_TRUE(IsTemporary(*Names().begin(), ".satwecvt-")) << *Names().begin();
    EXPECT_EQ("old model", BytesOf(name));
    EXPECT_TRUE(files.IsSameFile(Path(name).c_str(), Path(name).c_str()));
    EXPECT_FALSE(files.IsSameFile(Path(name).c_str(), Path('m' + name.substr(1)).c_str()));
    files.Keep();
    EXPECT_EQ(StringSet{name}, Names());
    EXPECT_EQ("model", BytesOf(name));
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

// Outputs that are links, or share a file with others.

#include "output/OutputFolder_test.h"
#include "output/SafeFiles.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace satwecvt {
namespace {

namespace fs = std::filesystem;

class LinkedOutput : public COutputFolder {};

TEST_F(LinkedOutput, StaysALinkAndItsFileIsReplaced)
{
    fs::create_directory(folder / "models");
    Create("models/tower.vkm", "old model");
    fs::create_symlink("models/tower.vkm", folder / "link");
    fs::create_symlink(folder / "link", folder / "second");
    {
        CSafeFiles files(system);
        ASSERT_TRUE(WriteOutput(files, Path("second"), "model"));
        EXPECT_EQ("old model", BytesOf("models/tower.vkm"));
        EXPECT_EQ((StringSet{"models", "link", "second"}), Names());  // the temporary file lies beside the old one
        files.Keep();
    }
    EXPECT_TRUE(fs::is_symlink(folder / "second"));
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
    EXPECT_FALSE(fs::is_symlink(folder / "models/tower.vkm"));
    EXPECT_EQ("model", BytesOf("models/tower.vkm"));
}

TEST_F(LinkedOutput, GetsAFileWhereItLeadsToNone)
{
    fs::create_directory(folder / "models");
    fs::create_symlink("models/tower.vkm", folder / "link");
    {
        CSafeFiles files(system);
        ASSERT_TRUE(WriteOutput(files, Path("link"), "model"));
        EXPECT_FALSE(fs::exists(folder / "models/tower.vkm"));
    }
    EXPECT_TRUE(fs::is_empty(folder / "models"));
    WriteAndKeep(Path("link"));
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
    EXPECT_EQ("model", BytesOf("models/tower.vkm"));
}

TEST_F(LinkedOutput, HasTheKeyOfItsFile)
{
    fs::create_directory(folder / "models");
    fs::create_symlink("models/tower.vkm", folder / "link");
    fs::create_directory_symlink("models", folder / "same");
    CFilePlaces& places = CFilePlaces::System();
    EXPECT_EQ(places.KeyOf(Path("models/tower.vkm")), places.KeyOf(Path("link")));
    EXPECT_EQ(places.KeyOf(Path("models/tower.vkm")), places.KeyOf(Path("same/tower.vkm")));
    EXPECT_EQ(CFilePlaces::FolderKey(Path("models")), CFilePlaces::FolderKey(Path("same")));
}

TEST_F(LinkedOutput, ToAMissingFolderIsRefused)
{
    fs::create_symlink("missing/tower.vkm", folder / "link");
    ExpectRefused(Path("link"), ENOENT);
    EXPECT_EQ(StringSet{"link"}, Names());
}

TEST_F(LinkedOutput, OfACircleIsRefused)
{
    fs::create_symlink("b", folder / "a");
    fs::create_symlink("a", folder / "b");
    ExpectRefused(Path("a"), ELOOP);
}

TEST_F(LinkedOutput, IsFollowedAsFarAsTheSystemFollows)
{
    Create("0", "old model");
    for (int i = 1; i <= 41; ++i) {
        fs::create_symlink(std::to_string(i - 1), folder / std::to_string(i));
    }
    {
        CSafeFiles files(system);
        ASSERT_TRUE(WriteOutput(files, Path("40"), "model"));
        EXPECT_EQ("old model", BytesOf("0"));
        files.Keep();
    }
    EXPECT_EQ("model", BytesOf("0"));
    EXPECT_TRUE(fs::is_symlink(folder / "1"));
    ExpectRefused(Path("41"), ELOOP);
}

TEST_F(LinkedOutput, OfAFileWithOtherNamesLeavesThemTheOldBytes)
{
    Create("tower.vkm", "old model");
    fs::create_hard_link(folder / "tower.vkm", folder / "other");
    WriteAndKeep(Path("tower.vkm"));
    EXPECT_EQ("model", BytesOf("tower.vkm"));
    EXPECT_EQ("old model", BytesOf("other"));
}

TEST_F(LinkedOutput, IsOneWithTheFileThatItLeadsTo)
{
    fs::create_symlink("tower.vkm", folder / "link");
    fs::create_directory_symlink(".", folder / "here");
    CSafeFiles files(system);
    ASSERT_TRUE(WriteOutput(files, Path("link"), "log"));
    for (const char* const name : {"link", "tower.vkm", "here/tower.vkm", "here/link"}) {
        EXPECT_TRUE(files.IsSameFile(Path(name).c_str(), Path("link").c_str())) << name;
        EXPECT_TRUE(files.IsSameFile(Path("tower.vkm").c_str(), Path(name).c_str())) << name;
    }
    EXPECT_FALSE(files.IsSameFile(Path("TOWER.VKM").c_str(), Path("link").c_str()));
}

TEST_F(LinkedOutput, IsOneWithAnotherNameOfItsFile)
{
    Create("satwecvt.msg", "old log");
    fs::create_hard_link(folder / "satwecvt.msg", folder / "tower.vkm");
    CSafeFiles files(system);
    ASSERT_TRUE(WriteOutput(files, Path("satwecvt.msg"), "log"));
    EXPECT_TRUE(files.IsSameFile(Path("tower.vkm").c_str(), Path("satwecvt.msg").c_str()));
}

TEST_F(LinkedOutput, WithoutAFolderLiesInTheWorkingFolder)
{
    const fs::path previous = fs::current_path();
    fs::current_path(folder);
    fs::create_symlink("satwecvt.msg", "link");
    {
        CSafeFiles files(system);
        EXPECT_TRUE(WriteOutput(files, "satwecvt.msg", "log"));
        EXPECT_TRUE(files.IsSameFile("satwecvt.msg", "./satwecvt.msg"));
        EXPECT_TRUE(files.IsSameFile("link", Path("satwecvt.msg").c_str()));
        files.Keep();
    }
    fs::current_path(previous);
    EXPECT_EQ("log", BytesOf("satwecvt.msg"));
}

}  // namespace
}  // namespace satwecvt

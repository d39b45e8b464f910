// Outputs as Windows has them: attributes, files in use, names that are not what they seem.

#include "output/OutputFolder_test.h"
#include "output/SafeFiles.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <sys/stat.h>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace satwecvt {
namespace {

namespace fs = std::filesystem;

class WindowsOutput : public COutputFolder {
protected:
    /// Opens a file as other programs do; they let ours do what `sharing` says, but never replace it.
    int OpenElsewhere(const std::string& name, int sharing)
    {
        const int file = ::_sopen(Path(name).c_str(), _O_RDONLY | _O_BINARY, sharing);
        EXPECT_GE(file, 0);
        return file;
    }
};

// Windows refuses; Wine lets its administrator write all the same. A replaced file would not be read-only any more.
TEST_F(WindowsOutput, AReadOnlyFileIsNotReplaced)
{
    for (const char* const name : {"tower.vkm", "other.vkm"}) {
        Create(name, "old model");
        ASSERT_EQ(0, ::_chmod(Path(name).c_str(), _S_IREAD));
    }
    {
        CSafeFiles files(system);
        EXPECT_EQ(WriteOutput(system, Path("other.vkm"), "model"), WriteOutput(files, Path("tower.vkm"), "model"));
        files.Keep();
    }
    EXPECT_EQ((StringSet{"tower.vkm", "other.vkm"}), Names());
    EXPECT_EQ(BytesOf("other.vkm"), BytesOf("tower.vkm"));
    for (const char* const name : {"tower.vkm", "other.vkm"}) {
        EXPECT_NE(0, ::_access(Path(name).c_str(), 2));
        ASSERT_EQ(0, ::_chmod(Path(name).c_str(), _S_IREAD | _S_IWRITE));
    }
}

TEST_F(WindowsOutput, HasOneKeyInCapitalsAndInSmallLetters)
{
    fs::create_directory(folder / "models");
    CFilePlaces& places = CFilePlaces::System();
    EXPECT_EQ(places.KeyOf(Path("models/tower.vkm")), places.KeyOf(Path("MODELS\\Tower.VKM")));
    EXPECT_EQ(places.KeyOf(Path("missing/tower.vkm")), places.KeyOf(Path("Missing/Tower.vkm")));
}

TEST_F(WindowsOutput, AFileInUseIsRefused)
{
    Create("tower.vkm", "old model");
    const int user = OpenElsewhere("tower.vkm", _SH_DENYWR);
    ExpectRefused(Path("tower.vkm"), EACCES);
    ::_close(user);
    EXPECT_EQ("old model", BytesOf("tower.vkm"));
    EXPECT_EQ(StringSet{"tower.vkm"}, Names());
}

TEST_F(WindowsOutput, AFileInUseThatMayBeWrittenIsWrittenInPlace)
{
    Create("tower.vkm", "old model");
    const int user = OpenElsewhere("tower.vkm", _SH_DENYNO);
    {
        CSafeFiles files(system);
        ASSERT_TRUE(WriteOutput(files, Path("tower.vkm"), "model"));
        EXPECT_EQ("model", ReadFile(files, Path("tower.vkm")));
    }
    EXPECT_EQ("old model", BytesOf("tower.vkm"));
    WriteAndKeep(Path("tower.vkm"));
    char bytes[16] = "";
    EXPECT_EQ(5, ::_read(user, bytes, sizeof bytes));
    EXPECT_STREQ("model", bytes);
    ::_close(user);
    EXPECT_EQ(StringSet{"tower.vkm"}, Names());
}

TEST_F(WindowsOutput, AFileThatComesIntoUseIsLeftAsItIs)
{
    Create("tower.vkm", "old model");
    CSafeFiles files(system);
    ASSERT_TRUE(WriteOutput(files, Path("tower.vkm"), "model"));
    const int user = OpenElsewhere("tower.vkm", _SH_DENYWR);
    EXPECT_THROW(files.Keep(), CFileError);
    ::_close(user);
    EXPECT_EQ("old model", BytesOf("tower.vkm"));
    EXPECT_EQ(StringSet{"tower.vkm"}, Names());
}

TEST_F(WindowsOutput, UpperAndLowerCaseAreOneFile)
{
    CSafeFiles files(system);
    ASSERT_TRUE(WriteOutput(files, Path("tower.vkm"), "model"));
    std::string otherSlashes = Path("Tower.VKM");
    for (char& character : otherSlashes) {
        character = character == '\\' ? '/' : character;
    }
    EXPECT_TRUE(files.IsSameFile(Path("TOWER.vkm").c_str(), otherSlashes.c_str()));
    EXPECT_TRUE(files.IsSameFile(Path("tower.vkm").c_str(), Path("sub\\..\\TOWER.VKM").c_str()));
    EXPECT_FALSE(files.IsSameFile(Path("tower.vkm").c_str(), Path("tower.sat").c_str()));
}

TEST_F(WindowsOutput, AFileThatComesIntoUseBeforeItIsWrittenInPlaceIsTold)
{
    Create("tower.vkm", "old model");
    const int user = OpenElsewhere("tower.vkm", _SH_DENYNO);
    CSafeFiles files(system);
    ASSERT_TRUE(WriteOutput(files, Path("tower.vkm"), "model"));
    const int other = OpenElsewhere("tower.vkm", _SH_DENYWR);
    EXPECT_EQ(Path("tower.vkm") + ": " + std::strerror(EACCES), KeepFailure(files));
    ::_close(other);
    ::_close(user);
    EXPECT_EQ("old model", BytesOf("tower.vkm"));
    EXPECT_EQ(StringSet{"tower.vkm"}, Names());
}

TEST_F(WindowsOutput, ADeviceIsWrittenWhenItIsKept)
{
    for (const std::string& path : {std::string("NUL"), Path("NUL"), std::string(R"(\\.\NUL)")}) {
        CSafeFiles files(system);
        ASSERT_TRUE(WriteOutput(files, path, "model")) << path;
        EXPECT_EQ("model", ReadFile(files, path));
        EXPECT_EQ("", KeepFailure(files)) << path;
    }
    EXPECT_EQ(StringSet{}, Names());
}

TEST_F(WindowsOutput, AHiddenFileIsRefused)
{
    Create("tower.vkm", "old model");
    const std::string hide = "attrib +h \"" + Path("tower.vkm") + "\"";
    ASSERT_EQ(0, std::system(hide.c_str()));
    CSafeFiles files(system);
    errno = 0;
    EXPECT_EQ(-1, files.OpenForWriting(Path("tower.vkm").c_str()));
    EXPECT_EQ(EACCES, errno);
    EXPECT_EQ("old model", BytesOf("tower.vkm"));
}

TEST_F(WindowsOutput, APartOfAFileIsWrittenWhereTheDriveHasThem)
{
    const std::string part = Path("tower.vkm:model");
    Create("tower.vkm", "file");
    CSafeFiles files(system);
    EXPECT_EQ(WriteOutput(system, Path("tower.vkm:log"), "log"), WriteOutput(files, part, "model"));
    EXPECT_EQ("file", BytesOf("tower.vkm"));
}

TEST_F(WindowsOutput, ANameWithoutAFolderLiesInTheWorkingFolder)
{
    const fs::path previous = fs::current_path();
    fs::current_path(folder);
    {
        CSafeFiles files(system);
        EXPECT_TRUE(WriteOutput(files, "satwecvt.msg", "log"));
        EXPECT_TRUE(files.IsSameFile("satwecvt.msg", Path("SATWECVT.MSG").c_str()));
        files.Keep();
    }
    fs::current_path(previous);
    EXPECT_EQ("log", BytesOf("satwecvt.msg"));
}

}  // namespace
}  // namespace satwecvt

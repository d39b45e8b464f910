// The real files of this machine, in a folder that every test gets for itself.

#include "satwecvt/FileSystem.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string_view>

#ifdef _WIN32
#include <io.h>
#else
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace satwecvt {
namespace {

namespace fs = std::filesystem;
using namespace std::string_view_literals;

class FileSystem : public testing::Test {
protected:
    FileSystem()
    {
        std::random_device random;
        do {
            folder = fs::temp_directory_path() / ("satwecvt-file-" + std::to_string(random()));
        } while (!fs::create_directory(folder));
    }
    ~FileSystem() override
    {
        std::error_code ignored;
        fs::remove_all(folder, ignored);
    }

    std::string Path(const char* name) const { return (folder / name).string(); }

    void Create(const char* name, std::string_view bytes) const
    {
        std::ofstream(folder / name, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }

    std::string BytesOf(const char* name) const
    {
        std::ifstream in(folder / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }

    std::string ReadThroughSystem(const char* name)
    {
        const int file = system.OpenForReading(Path(name).c_str());
        EXPECT_GE(file, 0);
        std::string bytes;
        char buffer[7];
        for (std::ptrdiff_t count = 1; count > 0;) {
            count = system.Read(file, buffer, sizeof buffer);
            EXPECT_GE(count, 0);
            bytes.append(buffer, static_cast<std::size_t>(std::max<std::ptrdiff_t>(count, 0)));
        }
        EXPECT_EQ(0, system.Close(file));
        return bytes;
    }

    void WriteThroughSystem(const char* name, std::string_view bytes)
    {
        const int file = system.OpenForWriting(Path(name).c_str());
        EXPECT_GE(file, 0);
        EXPECT_EQ(static_cast<std::ptrdiff_t>(bytes.size()), system.Write(file, bytes.data(), bytes.size()));
        EXPECT_EQ(0, system.Close(file));
    }

    CFileSystem& system = CFileSystem::System();
    fs::path folder;
};

// No text mode of any platform may lay hands on them.
constexpr std::string_view kTrickyBytes = "line\r\nline\n\rend\x1A more\0\xFF\xC3"sv;

TEST_F(FileSystem, BytesAreReadAsTheyStand)
{
    Create("input", kTrickyBytes);
    EXPECT_EQ(kTrickyBytes, ReadThroughSystem("input"));
}

TEST_F(FileSystem, BytesAreWrittenAsTheyAreGiven)
{
    WriteThroughSystem("output", kTrickyBytes);
    EXPECT_EQ(kTrickyBytes, BytesOf("output"));
}

TEST_F(FileSystem, AnEmptyFileIsReadAsNothing)
{
    Create("input", "");
    EXPECT_EQ("", ReadThroughSystem("input"));
}

TEST_F(FileSystem, OpeningForWritingEmptiesTheFile)
{
    Create("output", "an older and longer text");
    WriteThroughSystem("output", "new");
    EXPECT_EQ("new", BytesOf("output"));
}

// A host without a console may have closed it.
TEST_F(FileSystem, TheDescriptorOfStandardInputIsOneAsGoodAsOthers)
{
    Create("file", "text");
    const int standardInput = dup(0);
    close(0);
    const int file = system.OpenForReading(Path("file").c_str());
    char byte = '\0';
    const std::ptrdiff_t count = file >= 0 ? system.Read(file, &byte, 1) : -1;
    system.Close(file);
    dup2(standardInput, 0);
    close(standardInput);
    EXPECT_EQ(0, file);
    EXPECT_EQ(1, count);
    EXPECT_EQ('t', byte);
}

TEST_F(FileSystem, AMissingFileDoesNotOpenForReading)
{
    errno = 0;
    EXPECT_EQ(-1, system.OpenForReading(Path("missing").c_str()));
    EXPECT_EQ(ENOENT, errno);
    EXPECT_EQ(-1, system.OpenForReading(""));
}

TEST_F(FileSystem, AFolderDoesNotOpenForReading)
{
    errno = 0;
    EXPECT_EQ(-1, system.OpenForReading(folder.string().c_str()));
    EXPECT_NE(0, errno);
}

TEST_F(FileSystem, AFolderDoesNotOpenForWriting)
{
    EXPECT_EQ(-1, system.OpenForWriting(folder.string().c_str()));
}

TEST_F(FileSystem, AFileInAMissingFolderDoesNotOpenForWriting)
{
    errno = 0;
    EXPECT_EQ(-1, system.OpenForWriting((folder / "missing" / "file").string().c_str()));
    EXPECT_EQ(ENOENT, errno);
}

TEST_F(FileSystem, TwoSpellingsOfAPathNameTheSameFile)
{
    Create("file", "");
    fs::create_directory(folder / "sub");
    EXPECT_TRUE(system.IsSameFile(Path("file").c_str(), Path("file").c_str()));
    EXPECT_TRUE(system.IsSameFile(Path("file").c_str(), (folder / "sub" / ".." / "file").string().c_str()));
}

TEST_F(FileSystem, TwoFilesWithEqualBytesAreNotTheSame)
{
    Create("a", "text");
    Create("b", "text");
    EXPECT_FALSE(system.IsSameFile(Path("a").c_str(), Path("b").c_str()));
}

TEST_F(FileSystem, AMissingFileIsTheSameAsNone)
{
    Create("a", "text");
    EXPECT_FALSE(system.IsSameFile(Path("a").c_str(), Path("missing").c_str()));
    EXPECT_FALSE(system.IsSameFile(Path("missing").c_str(), Path("a").c_str()));
    EXPECT_FALSE(system.IsSameFile(Path("missing").c_str(), Path("missing").c_str()));
}

TEST(FileError, TellsPathAndCause)
{
    const CFileError error("folder/model.vkm", "no space left");
    EXPECT_EQ("folder/model.vkm", error.Path());
    EXPECT_EQ("no space left", error.Cause());
    EXPECT_STREQ("folder/model.vkm: no space left", error.what());
}

#ifdef _WIN32

TEST_F(FileSystem, WhatHasNoIdentityIsKnownByItsPath)
{
    Create("file", "");
    EXPECT_TRUE(system.IsSameFile("NUL", "nul"));
    EXPECT_FALSE(system.IsSameFile("NUL", Path("file").c_str()));
    EXPECT_FALSE(system.IsSameFile(Path("file").c_str(), "NUL"));
}

TEST_F(FileSystem, PathsThatAreTooLongAreNotTheSameForThat)
{
    std::string longWay = folder.string();
    for (int i = 0; i < 200; ++i) {
        longWay += "\\.";
    }
    EXPECT_FALSE(system.IsSameFile((longWay + "\\tower.vkm").c_str(), (longWay + "\\tower.sat").c_str()));
}

#else

TEST_F(FileSystem, LinksNameTheSameFile)
{
    Create("file", "");
    fs::create_hard_link(folder / "file", folder / "hard");
    fs::create_symlink("file", folder / "soft");
    EXPECT_TRUE(system.IsSameFile(Path("file").c_str(), Path("hard").c_str()));
    EXPECT_TRUE(system.IsSameFile(Path("soft").c_str(), Path("hard").c_str()));
}

TEST_F(FileSystem, ADeviceDoesNotOpenForReading)
{
    errno = 0;
    EXPECT_EQ(-1, system.OpenForReading("/dev/null"));
    EXPECT_EQ(EINVAL, errno);
}

TEST_F(FileSystem, APipeThatNobodyWritesToIsRefusedWithoutWaiting)
{
    ASSERT_EQ(0, ::mkfifo(Path("pipe").c_str(), 0600));
    EXPECT_EQ(-1, system.OpenForReading(Path("pipe").c_str()));
}

TEST_F(FileSystem, WhatIsRefusedIsNotLeftOpen)
{
    Create("file", "");
    const auto lowestFreeDescriptor = [this] {
        const int file = system.OpenForReading(Path("file").c_str());
        EXPECT_EQ(0, system.Close(file));
        return file;
    };
    const int free = lowestFreeDescriptor();
    EXPECT_EQ(-1, system.OpenForReading("/dev/null"));
    EXPECT_EQ(-1, system.OpenForReading(folder.c_str()));
    EXPECT_EQ(free, lowestFreeDescriptor());
}

TEST_F(FileSystem, ADescriptorThatIsNotOpenFails)
{
    char byte = 'x';
    EXPECT_EQ(-1, system.Read(-1, &byte, 1));
    EXPECT_EQ(-1, system.Write(-1, &byte, 1));
    EXPECT_EQ(-1, system.Close(-1));
}

#endif

}  // namespace
}  // namespace satwecvt

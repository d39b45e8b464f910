// Outputs that can be no new file: they are held back and written in place when they are kept, or refused for the
// system's cause.

#include "output/OrdinaryUser_test.h"
#include "output/SafeFiles.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>
#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>

#ifdef __linux__
#include <sys/mount.h>
#endif

namespace satwecvt {
namespace {

namespace fs = std::filesystem;

class InPlace : public COrdinaryUsersFolder {
protected:
    /// Writes an output over a file whose folder takes no new one, and does not keep it.
    void ExpectHeldBack(const std::string& name)
    {
        CSafeFiles files(system);
        EXPECT_TRUE(WriteOutput(files, Path(name), "model"));
        EXPECT_EQ("old model", BytesOf(name));
        EXPECT_EQ("model", ReadFile(files, Path(name)));
        EXPECT_EQ(StringSet{name}, Names());
    }
};

TEST_F(InPlace, AFileThatMayNotBeWrittenIsRefused)
{
    CreateForUser("tower.vkm", 0444);
    const COrdinaryUser user;
    ExpectRefused(Path("tower.vkm"), EACCES);
    EXPECT_EQ("old model", BytesOf("tower.vkm"));
    EXPECT_EQ(StringSet{"tower.vkm"}, Names());
}

TEST_F(InPlace, AnOldFileIsWrittenWhereTheFolderTakesNoNewOne)
{
    CreateForUser("tower.vkm", 0644);
    ASSERT_EQ(0, ::chmod(folder.c_str(), 0555));
    {
        const COrdinaryUser user;
        ExpectHeldBack("tower.vkm");
        EXPECT_EQ("old model", BytesOf("tower.vkm"));
        EXPECT_FALSE(IsReplaced("tower.vkm"));
        EXPECT_EQ("model", BytesOf("tower.vkm"));
        ExpectRefused(Path("new"), EACCES);
        EXPECT_EQ(StringSet{"tower.vkm"}, Names());
    }
    ASSERT_EQ(0, ::chmod(folder.c_str(), 0755));
}

TEST_F(InPlace, AFileInAFolderThatMayNotBeSearchedIsRefused)
{
    CreateForUser("tower.vkm", 0644);
    ASSERT_EQ(0, ::chmod(folder.c_str(), 0000));
    {
        const COrdinaryUser user;
        ExpectRefused(Path("tower.vkm"), EACCES);
    }
    ASSERT_EQ(0, ::chmod(folder.c_str(), 0755));
    EXPECT_EQ("old model", BytesOf("tower.vkm"));
}

TEST_F(InPlace, WhatIsNoPlaceForAFileIsRefused)
{
    fs::create_directory(folder / "sub");
    fs::create_directory_symlink("sub", folder / "link");
    fs::create_symlink("new/", folder / "slash");
    Create("file", "text");
    for (const char* const name : {"sub", "sub/", "sub/.", "sub/..", "link", "slash", "new/", "file/"}) {
        ExpectRefused(Path(name), EISDIR);
    }
    ExpectRefused(Path("file/tower.vkm"), ENOTDIR);
    ExpectRefused(Path(std::string(256, 'n')), ENAMETOOLONG);
    EXPECT_EQ((StringSet{"sub", "link", "slash", "file"}), Names());
    EXPECT_TRUE(fs::is_empty(folder / "sub"));
}

// As a user who may not replace it: a fault of ours must not cost the machine its devices.
TEST_F(InPlace, ADeviceIsWritten)
{
    fs::create_symlink("/dev/full", folder / "link");
    const COrdinaryUser user;
    CSafeFiles files(system);
    EXPECT_TRUE(WriteOutput(files, "/dev/null", "model"));
    EXPECT_EQ("model", ReadFile(files, "/dev/null"));
    files.Keep();
    EXPECT_EQ(-1, files.OpenForReading("/dev/null"));
    EXPECT_TRUE(WriteOutput(files, Path("link"), "model"));
    EXPECT_EQ(Path("link") + ": " + std::strerror(ENOSPC), KeepFailure(files));
    EXPECT_EQ("", KeepFailure(files));  // nothing is left to keep
    EXPECT_EQ(StringSet{"link"}, Names());
}

TEST_F(InPlace, ASocketIsRefused)
{
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_GE(socket, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const std::string path = Path("socket");
    ASSERT_LT(path.size(), sizeof address.sun_path);
    path.copy(address.sun_path, path.size());
    ASSERT_EQ(0, ::bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address));
    ExpectRefused(path, ENXIO);
    ::close(socket);
}

TEST_F(InPlace, AFileThatMayNotGrowIsTold)
{
    CreateForUser("tower.vkm", 0644);
    ASSERT_EQ(0, ::chmod(folder.c_str(), 0555));
    const auto previous = std::signal(SIGXFSZ, SIG_IGN);
    struct rlimit unlimited {};
    ASSERT_EQ(0, ::getrlimit(RLIMIT_FSIZE, &unlimited));
    {
        const COrdinaryUser user;
        CSafeFiles files(system);
        EXPECT_TRUE(WriteOutput(files, Path("tower.vkm"), "model"));
        const struct rlimit limit {
            3, unlimited.rlim_max
        };
        EXPECT_EQ(0, ::setrlimit(RLIMIT_FSIZE, &limit));
        EXPECT_EQ(Path("tower.vkm") + ": " + std::strerror(EFBIG), KeepFailure(files));
        EXPECT_EQ(0, ::setrlimit(RLIMIT_FSIZE, &unlimited));
    }
    static_cast<void>(std::signal(SIGXFSZ, previous));
    ASSERT_EQ(0, ::chmod(folder.c_str(), 0755));
    EXPECT_EQ(StringSet{"tower.vkm"}, Names());
}

// As /dev/stdout may be: the file is open elsewhere, under whatever name, or under none.
TEST_F(InPlace, AnOpenFileOfAProcessIsWritten)
{
    Create("stdout", "");
    const int file = ::open(Path("stdout").c_str(), O_WRONLY);
    ASSERT_GE(file, 0);
    const std::string path = "/dev/fd/" + std::to_string(file);
    fs::create_symlink(path, folder / "link");
    for (const std::string& each : {path, Path("link")}) {
        WriteAndKeep(each);
        EXPECT_EQ("model", BytesOf("stdout"));
        struct stat status {};
        EXPECT_EQ(0, ::fstat(file, &status));
        EXPECT_EQ(status.st_ino, StatusOf("stdout").st_ino);
    }
    fs::remove(folder / "stdout");
    WriteAndKeep(Path("link"));
    EXPECT_EQ(StringSet{"link"}, Names());
    ::close(file);
}

// No temporary path fits beside the longest one that the system takes.
TEST_F(InPlace, AFileWithTheLongestPathIsWritten)
{
    constexpr std::size_t kLongestPath = 4095;
    constexpr std::size_t kLongName = 200;
    constexpr std::string_view kName = "/m";
    const fs::path previous = fs::current_path();
    std::string path = folder.string();
    fs::current_path(folder);
    while (path.size() + 1 < kLongestPath - kName.size()) {
        const std::string name(std::min(kLongName, kLongestPath - kName.size() - path.size() - 1), 'd');
        ASSERT_TRUE(fs::create_directory(name));
        fs::current_path(name);
        path += "/" + name;
    }
    path += kName;
    std::ofstream("m") << "old model";
    struct stat before {};
    EXPECT_EQ(0, ::stat("m", &before));
    WriteAndKeep(path);
    struct stat after {};
    EXPECT_EQ(0, ::stat("m", &after));
    EXPECT_EQ(before.st_ino, after.st_ino);
    EXPECT_EQ(5, after.st_size);
    fs::current_path(previous);
}

#ifdef __linux__

// As a container mounts a single file.
TEST_F(InPlace, AFileThatIsMountedIsWritten)
{
    Create("tower.vkm", "hidden");
    fs::create_directory(folder / "disk");
    if (::mount("tmpfs", Path("disk").c_str(), "tmpfs", 0, "size=64k") != 0) {
        // Only a privileged user may mount, and not in every container; files that cannot be replaced for other reasons
        // are tested above without that right.
        GTEST_SKIP() << "nothing can be mounted here: " << std::strerror(errno);
    }
    Create("disk/mounted", "old model");
    EXPECT_EQ(0, ::mount(Path("disk/mounted").c_str(), Path("tower.vkm").c_str(), "none", MS_BIND, nullptr));
    WriteAndKeep(Path("tower.vkm"));
    EXPECT_EQ("model", BytesOf("disk/mounted"));
    EXPECT_EQ(0, ::umount(Path("tower.vkm").c_str()));
    EXPECT_EQ(0, ::umount(Path("disk").c_str()));
    EXPECT_EQ("hidden", BytesOf("tower.vkm"));
}

#endif

}  // namespace
}  // namespace satwecvt

// Pipes as outputs: they get all of an output when it is kept, and nothing before.

#include "output/OrdinaryUser_test.h"
#include "output/SafeFiles.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>
#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>

namespace satwecvt {
namespace {

namespace fs = std::filesystem;

/// A pipe of the test's folder, and its reader.
class InPlacePipe : public COrdinaryUsersFolder {
protected:
    InPlacePipe() { EXPECT_EQ(0, ::mkfifo(Path("pipe").c_str(), 0600)); }
    ~InPlacePipe() override { ::close(reader); }

    void OpenReader()
    {
        reader = ::open(Path("pipe").c_str(), O_RDONLY | O_NONBLOCK);
        ASSERT_GE(reader, 0);
    }

    /// What the reader gets now.
    std::string Arrived() const
    {
        char bytes[16];
        const ssize_t count = ::read(reader, bytes, sizeof bytes);
        return {bytes, static_cast<std::size_t>(std::max<ssize_t>(count, 0))};
    }

    /// Whether a writer has come and gone since the reader was there.
    bool HadWriter() const
    {
        pollfd status{reader, POLLIN, 0};
        return ::poll(&status, 1, 0) == 1;
    }

    int reader = -1;
};

TEST_F(InPlacePipe, IsWrittenWhenItIsKept)
{
    OpenReader();
    CSafeFiles files(system);
    EXPECT_TRUE(WriteOutput(files, Path("pipe"), "model"));
    EXPECT_EQ("model", ReadFile(files, Path("pipe")));
    EXPECT_FALSE(HadWriter());
    files.Keep();
    EXPECT_EQ("model", Arrived());
    files.Keep();
    EXPECT_EQ("", Arrived());
    EXPECT_TRUE(fs::is_fifo(folder / "pipe"));
}

TEST_F(InPlacePipe, IsNotOpenedWhenItIsNotKept)
{
    OpenReader();
    {
        CSafeFiles files(system);
        EXPECT_TRUE(WriteOutput(files, Path("pipe"), "model"));
    }
    EXPECT_FALSE(HadWriter());
}

// Whoever opens such a pipe waits for its reader.
TEST_F(InPlacePipe, WithoutAReaderHoldsNobodyUpBeforeItIsKept)
{
    CSafeFiles files(system);
    EXPECT_TRUE(WriteOutput(files, Path("pipe"), "model"));
    EXPECT_EQ("model", ReadFile(files, Path("pipe")));
}

TEST_F(InPlacePipe, WhoseReaderGoesAwayIsTold)
{
    class CReaderGone : public CFileSystem {
    public:
        explicit CReaderGone(int& openReader) : reader(openReader) {}
        std::ptrdiff_t Write(int file, const char* bytes, std::size_t size) override
        {
            ::close(reader);
            reader = -1;
            return CFileSystem::Write(file, bytes, size);
        }

    private:
        int& reader;
    };
    const auto previous = std::signal(SIGPIPE, SIG_IGN);
    OpenReader();
    CReaderGone readerGone(reader);
    CSafeFiles files(readerGone);
    EXPECT_TRUE(WriteOutput(files, Path("pipe"), "model"));
    EXPECT_EQ(Path("pipe") + ": " + std::strerror(EPIPE), KeepFailure(files));
    static_cast<void>(std::signal(SIGPIPE, previous));
}

TEST_F(InPlacePipe, TakesTwoOutputsOneAfterTheOther)
{
    OpenReader();
    const std::string byNumber = "/dev/fd/" + std::to_string(reader);
    CSafeFiles files(system);
    EXPECT_TRUE(WriteOutput(files, Path("pipe"), "log "));
    EXPECT_TRUE(files.IsSameFile(Path("pipe").c_str(), byNumber.c_str()));
    EXPECT_TRUE(WriteOutput(files, byNumber, "model"));
    EXPECT_EQ("log ", ReadFile(files, Path("pipe")));
    EXPECT_EQ("model", ReadFile(files, byNumber));
    files.Keep();
    EXPECT_EQ("log model", Arrived());
}

TEST_F(InPlacePipe, ThatIsOpenedAgainStartsAfresh)
{
    fs::create_symlink("pipe", folder / "link");
    OpenReader();
    CSafeFiles files(system);
    EXPECT_TRUE(WriteOutput(files, Path("pipe"), "first"));
    EXPECT_TRUE(WriteOutput(files, Path("link"), "second"));
    files.Keep();
    EXPECT_EQ("second", Arrived());
}

TEST_F(InPlacePipe, ThatMayNotBeWrittenIsRefused)
{
    ASSERT_EQ(0, ::chmod(Path("pipe").c_str(), 0444));
    const COrdinaryUser user;
    ExpectRefused(Path("pipe"), EACCES);
}

}  // namespace
}  // namespace satwecvt

// A disk that is full at every possible moment: a small one in memory, with a page more each time.

#include "output/OutputFolder_test.h"
#include "output/SafeFiles.h"

#include <gtest/gtest.h>

#include <sys/mount.h>
#include <unistd.h>
#include <cerrno>
#include <cstring>

namespace satwecvt {
namespace {

/// The test's folder as a disk of its own.
class SmallDisk : public COutputFolder {
protected:
    void SetUp() override
    {
        isMounted = ::mount("tmpfs", folder.c_str(), "tmpfs", 0, "size=1m") == 0;
        if (!isMounted) {
            // Only a privileged user may mount, and not in every container. File-size limits and /dev/full, for which
            // nobody needs a right, show the same of the program everywhere.
            GTEST_SKIP() << "nothing can be mounted here: " << std::strerror(errno);
        }
    }
    void TearDown() override
    {
        if (isMounted) {
            EXPECT_EQ(0, ::umount(folder.c_str()));
        }
    }

    void Remount(const std::string& options)
    {
        ASSERT_EQ(0, ::mount("tmpfs", folder.c_str(), "tmpfs", MS_REMOUNT, options.c_str())) << std::strerror(errno);
    }

    /// Writes a log and a model as a conversion does; returns whether they were kept.
    bool WriteBoth()
    {
        CSafeFiles files(CFileSystem::System());
        const bool isWritten = WriteOutput(files, Path("satwecvt.msg"), log) && WriteOutput(files, Path("m"), model);
        if (isWritten) {
            files.Keep();
        }
        return isWritten;
    }

    void ExpectOldFiles()
    {
        EXPECT_EQ((StringSet{"satwecvt.msg", "m"}), Names());
        EXPECT_EQ("old log", BytesOf("satwecvt.msg"));
        EXPECT_EQ("old model", BytesOf("m"));
    }

    const std::size_t page = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
    const std::string log = std::string(page + 1, 'l');        // two pages
    const std::string model = std::string(5 * page + 1, 'm');  // six
    bool isMounted = false;
};

TEST_F(SmallDisk, HoldsTheOldFilesOrTheNewOnes)
{
    for (std::size_t pages = 2; pages <= 12; ++pages) {
        SCOPED_TRACE(pages);
        Create("satwecvt.msg", "old log");
        Create("m", "old model");
        Remount("size=" + std::to_string(pages * page));
        const bool isKept = WriteBoth();
        EXPECT_EQ(pages >= 2 + 2 + 6, isKept);  // a page for each old file
        if (isKept) {
            EXPECT_EQ(log, BytesOf("satwecvt.msg"));
            EXPECT_EQ(model, BytesOf("m"));
            EXPECT_EQ((StringSet{"satwecvt.msg", "m"}), Names());
        } else {
            ExpectOldFiles();
        }
        Remount("size=1m");
    }
}

// As where the folder takes no new file.
TEST_F(SmallDisk, ThatIsFullWhenAnOutputIsWrittenInPlaceIsTold)
{
    class CRefusal : public CFilePlaces {
    public:
        int Create(const std::string& /*temporary*/, const COutputPlace& /*place*/) override
        {
            errno = EACCES;
            return -1;
        }
    };
    Remount("size=" + std::to_string(3 * page));
    Create("m", "old model");
    CRefusal places;
    CSafeFiles files(CFileSystem::System(), places);
    ASSERT_TRUE(WriteOutput(files, Path("m"), model));
    EXPECT_EQ("old model", BytesOf("m"));
    EXPECT_EQ(Path("m") + ": " + std::strerror(ENOSPC), KeepFailure(files));
    EXPECT_EQ(StringSet{"m"}, Names());
}

TEST_F(SmallDisk, WithoutRoomForAnotherFileHoldsTheOldOnes)
{
    Create("satwecvt.msg", "old log");
    Create("m", "old model");
    for (const int inodes : {3, 4}) {  // the folder, the old files, and once a new one
        Remount("nr_inodes=" + std::to_string(inodes));
        EXPECT_FALSE(WriteBoth());
        ExpectOldFiles();
    }
    Remount("nr_inodes=5");
    EXPECT_TRUE(WriteBoth());
}

TEST_F(SmallDisk, ThatIsReadOnlyRefusesEveryFile)
{
    Create("satwecvt.msg", "old log");
    Create("m", "old model");
    ASSERT_EQ(0, ::mount("tmpfs", folder.c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, ""));
    CSafeFiles files(CFileSystem::System());
    for (const char* const name : {"m", "new"}) {
        errno = 0;
        EXPECT_EQ(-1, files.OpenForWriting(Path(name).c_str()));
        EXPECT_EQ(EROFS, errno);
    }
    ExpectOldFiles();
}

}  // namespace
}  // namespace satwecvt

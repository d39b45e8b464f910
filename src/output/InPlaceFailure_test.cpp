// Outputs whose folder takes no new file: they are held back and written in place when they are kept, and what fails
// there is told.

#include "output/FailingSystem_test.h"
#include "output/OutputFolder_test.h"
#include "output/SafeFiles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <limits>

namespace satwecvt {
namespace {

namespace fs = std::filesystem;

class OutputInPlace : public COutputFolder {};

TEST_F(OutputInPlace, IsHeldBackUntilItIsKept)
{
    for (const int refusal : {EACCES, EPERM, EROFS}) {
        Create("tower.vkm", "old model");
        CFailure failure{EStep::Create, 1, refusal};
        CFailingPlaces places(failure);
        {
            CSafeFiles files(system, places);
            ASSERT_TRUE(WriteOutput(files, Path("tower.vkm"), "model"));
            EXPECT_EQ("old model", BytesOf("tower.vkm"));
            EXPECT_EQ("model", ReadFile(files, Path("tower.vkm")));
            files.Keep();
        }
        EXPECT_EQ(StringSet{"tower.vkm"}, Names());
        EXPECT_EQ("model", BytesOf("tower.vkm"));
    }
}

TEST_F(OutputInPlace, IsToldAndNoOtherOutputTakesItsPlace)
{
    struct CCase {
        EStep step;
        int error;
        int expected;
    };
    for (const CCase& each : {CCase{EStep::OpenForWriting, EMFILE, EMFILE},
                              {EStep::Write, ENOSPC, ENOSPC},
                              {EStep::Write, 0, ENOSPC},
                              {EStep::Close, EIO, EIO}}) {
        SCOPED_TRACE(testing::Message() << "step " << static_cast<int>(each.step) << ", " << each.error);
        Create("satwecvt.msg", "old log");
        Create("tower.vkm", "old model");
        CFailure none;
        CFailure refusal{EStep::Create, 2, EACCES};
        CFailingSystem failing(none);
        CFailingPlaces places(refusal);
        CSafeFiles files(failing, places);
        ASSERT_TRUE(WriteOutput(files, Path("satwecvt.msg"), "log"));
        ASSERT_TRUE(WriteOutput(files, Path("tower.vkm"), "model"));
        EXPECT_EQ("old model", BytesOf("tower.vkm"));
        none = {each.step, 1, each.error};
        EXPECT_EQ(Path("tower.vkm") + ": " + std::strerror(each.expected), KeepFailure(files));
        EXPECT_EQ("", KeepFailure(files));  // nothing is left to keep
        EXPECT_EQ("old log", BytesOf("satwecvt.msg"));
        EXPECT_EQ((StringSet{"satwecvt.msg", "tower.vkm"}), Names());
    }
}

TEST_F(OutputInPlace, ComesBeforeWhatCannotTakeItsPlace)
{
    Create("tower.vkm", "old model");
    CFailure refusal{EStep::Create, 2, EACCES};
    CFailingPlaces places(refusal);
    CSafeFiles files(system, places);
    ASSERT_TRUE(WriteOutput(files, Path("satwecvt.msg"), "log"));
    ASSERT_TRUE(WriteOutput(files, Path("tower.vkm"), "model"));
    fs::create_directory(folder / "satwecvt.msg");
    EXPECT_TRUE(KeepFailure(files).starts_with(Path("satwecvt.msg") + ": "));
    EXPECT_EQ("model", BytesOf("tower.vkm"));
    EXPECT_EQ((StringSet{"satwecvt.msg", "tower.vkm"}), Names());
}

TEST_F(OutputInPlace, IsWrittenWholeByHoweverManyCalls)
{
    class CShortWrites : public CFileSystem {
    public:
        std::ptrdiff_t Write(int file, const char* bytes, std::size_t size) override
        {
            return CFileSystem::Write(file, bytes, std::min<std::size_t>(size, 2));
        }
    };
    Create("tower.vkm", "an older and longer model");
    CFailure refusal{EStep::Create, 1, EACCES};
    CFailingPlaces places(refusal);
    CShortWrites shortWrites;
    CSafeFiles files(shortWrites, places);
    ASSERT_TRUE(WriteOutput(files, Path("tower.vkm"), "model"));
    files.Keep();
    EXPECT_EQ("model", BytesOf("tower.vkm"));
}

TEST_F(OutputInPlace, ThatExceedsTheMemoryIsNotKept)
{
    Create("tower.vkm", "old model");
    CFailure refusal{EStep::Create, 1, EACCES};
    CFailingPlaces places(refusal);
    CSafeFiles files(system, places);
    const int file = files.OpenForWriting(Path("tower.vkm").c_str());
    EXPECT_EQ(5, files.Write(file, "model", 5));
    EXPECT_EQ(-1, files.Write(file, "", std::numeric_limits<std::size_t>::max() / 2));
    EXPECT_EQ(Path("tower.vkm") + ": " + std::strerror(EBUSY), KeepFailure(files));
    EXPECT_EQ(0, files.Close(file));
    EXPECT_EQ(Path("tower.vkm") + ": " + std::strerror(ENOMEM), KeepFailure(files));
    EXPECT_EQ("old model", BytesOf("tower.vkm"));
}

// The folder takes files again.
TEST_F(OutputInPlace, ThatIsOpenedAgainMayBeANewFile)
{
    Create("tower.vkm", "old model");
    CFailure refusal{EStep::Create, 1, EACCES};
    CFailingPlaces places(refusal);
    CSafeFiles files(system, places);
    ASSERT_TRUE(WriteOutput(files, Path("tower.vkm"), "first"));
    ASSERT_TRUE(WriteOutput(files, Path("tower.vkm"), "second"));
    EXPECT_EQ("second", ReadFile(files, Path("tower.vkm")));
    EXPECT_EQ(2U, Names().size());
    EXPECT_EQ("", KeepFailure(files));
    EXPECT_EQ("second", BytesOf("tower.vkm"));
    EXPECT_EQ(StringSet{"tower.vkm"}, Names());
}

}  // namespace
}  // namespace satwecvt

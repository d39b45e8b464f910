// Every allocation of a conversion fails once, and once with all that come after it: the conversion fails, or was
// cancelled before, and nothing is lost: no memory, no open file, no byte of an input.

#include "file/MemoryFiles_test.h"
#include "satwecvt/ConvertSatwe.h"
#include "support/CountedAllocations.h"
#include "support/Figure.h"
#include "support/SmallBuilding.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

namespace satwecvt {
namespace {

/// Files in memory that never lack any for themselves.
class CCalmFiles : public CMemoryFiles {
public:
    int OpenForReading(const char* path) override
    {
        const CUncountedAllocations own;
        return CMemoryFiles::OpenForReading(path);
    }
    int OpenForWriting(const char* path) override
    {
        const CUncountedAllocations own;
        return path != refusedPath ? CMemoryFiles::OpenForWriting(path) : -1;
    }
    std::ptrdiff_t Write(int file, const char* bytes, std::size_t size) override
    {
        const CUncountedAllocations own;
        return CMemoryFiles::Write(file, bytes, size);
    }
    bool IsSameFile(const char* a, const char* b) override
    {
        const CUncountedAllocations own;
        return CMemoryFiles::IsSameFile(a, b);
    }

    std::string_view refusedPath;
};

/// A user interface without any memory of what it is shown, that cancels at a step.
class CCalmInterface : public CUserInterface {
public:
    explicit CCalmInterface(std::int64_t cancelStep) : cancelAtStep(cancelStep) {}

    void ShowMessage(std::string_view) override {}
    void ReportFileError(std::string_view, std::string_view) override { ++fileErrors; }
    std::unique_ptr<CProgressWindow> CreateProgressWindow() override
    {
        const CUncountedAllocations own;
        return std::make_unique<CWindow>(*this);
    }

    int fileErrors = 0;
    int windowsAlive = 0;
    std::int64_t steps = 0;

private:
    class CWindow : public CProgressWindow {
    public:
        explicit CWindow(CCalmInterface& calmInterface) : owner(calmInterface) { ++owner.windowsAlive; }
        ~CWindow() override { --owner.windowsAlive; }

        void SetTotalLines(std::int32_t) override {}
        int StepLine(std::int32_t) override { return ++owner.steps == owner.cancelAtStep ? 0 : 1; }
        void SetStageText(std::string_view) override {}

    private:
        CCalmInterface& owner;
    };

    std::int64_t cancelAtStep;
};

struct CExample {
    const char* name;
    std::string structure;
    std::string load;
    int result = kWritten;
    std::int64_t cancelAtStep = 0;
    const char* refusedPath = "";
};

std::ostream& operator<<(std::ostream& out, const CExample& example)
{
    return out << example.name;
}

struct CEnd {
    int result = 0;
    bool wasCancelled = false;
    int fileErrors = 0;
    std::int64_t made = 0;
    std::int64_t failed = 0;
    std::optional<std::string> model;
    std::optional<std::string> messageLog;
};

CEnd Convert(const CExample& example, std::int64_t firstFailing, std::int64_t lastFailing)
{
    CEnd end;
    CCalmFiles files;
    files.refusedPath = example.refusedPath;
    files.files = {{"structure.sat", example.structure}, {"load.sat", example.load}};
    CCalmInterface screen(example.cancelAtStep);
    {
        const CCountedAllocations counted(firstFailing, lastFailing);
        CConvertSatwe converter(screen, nullptr, files);
        end.result = converter.Convert("structure.sat", "load.sat");
    }
    end.made = CCountedAllocations::Made();
    end.failed = CCountedAllocations::Failed();
    end.wasCancelled = example.cancelAtStep != 0 && screen.steps == example.cancelAtStep;
    end.fileErrors = screen.fileErrors;
    end.model = files.Bytes("structure.vkm");
    end.messageLog = files.Bytes("satwecvt.msg");
    EXPECT_EQ(0, files.OpenCount());
    EXPECT_EQ(0, screen.windowsAlive);
    EXPECT_EQ(example.structure, files.files["structure.sat"]);
    EXPECT_EQ(example.load, files.files["load.sat"]);
    return end;
}

class AllocationFailure : public testing::TestWithParam<CExample> {
protected:
    AllocationFailure()
    {
        EXPECT_EQ(GetParam().result, whole.result);
        EXPECT_GT(whole.made, 10);
    }

    /// Nothing stands in the outputs that would not stand there otherwise.
    void ExpectBeginning(const std::optional<std::string>& expected, const std::optional<std::string>& actual) const
    {
        EXPECT_TRUE(!actual || (expected && expected->starts_with(*actual)));
    }

    void ExpectFailed(std::int64_t firstFailing, std::int64_t lastFailing) const
    {
        SCOPED_TRACE(firstFailing);
        const std::int64_t alive = CCountedAllocations::Alive();
        {
            const CEnd end = Convert(GetParam(), firstFailing, lastFailing);
            EXPECT_GE(end.failed, 1);
            // Once the user was told of a file error, the message is only kept for the report.
            const bool wasTold = whole.fileErrors != 0 && end.fileErrors == whole.fileErrors;
            EXPECT_EQ(end.wasCancelled ? kCancelled : wasTold ? whole.result : kFailed, end.result);
            EXPECT_LE(end.fileErrors, whole.fileErrors);
            EXPECT_TRUE(whole.result != kWritten || whole.fileErrors != 0 || end.model != whole.model)
                << "a whole model, but the conversion failed";
            ExpectBeginning(whole.model, end.model);
            ExpectBeginning(whole.messageLog, end.messageLog);
        }
        EXPECT_EQ(alive, CCountedAllocations::Alive());
    }

    const CEnd whole = Convert(GetParam(), 0, 0);
};

TEST_P(AllocationFailure, OfOneAllocationFailsTheConversion)
{
    for (std::int64_t number = 1; number <= whole.made; ++number) {
        ExpectFailed(number, number);
    }
    PrintFigure(static_cast<std::uint64_t>(whole.made), "allocations failed, each alone and with all after it");
}

TEST_P(AllocationFailure, OfAllFromOneOnFailsTheConversion)
{
    for (std::int64_t number = 1; number <= whole.made; ++number) {
        ExpectFailed(number, CCountedAllocations::kNoLimit);
    }
}

TEST_P(AllocationFailure, ThatDoesNotComeLeavesNothingBehind)
{
    const std::int64_t alive = CCountedAllocations::Alive();
    {
        const CEnd end = Convert(GetParam(), whole.made + 1, CCountedAllocations::kNoLimit);
        EXPECT_EQ(0, end.failed);
        EXPECT_EQ(whole.result, end.result);
        EXPECT_EQ(whole.model, end.model);
        EXPECT_EQ(whole.messageLog, end.messageLog);
    }
    EXPECT_EQ(alive, CCountedAllocations::Alive());
}

std::string Sample(const char* name)
{
    return ReadBytes(std::string(SATWECVT_SAMPLES "/") + name).value();
}

INSTANTIATE_TEST_SUITE_P(
    All, AllocationFailure,
    testing::Values(CExample{"frame", Sample("frame/structure.sat"), Sample("frame/load.sat")},
                    CExample{"tower", Sample("tower/structure.sat"), Sample("tower/load.sat")},
                    CExample{"small", SmallStructure(), SmallLoads()},
                    CExample{"loadsCutShort", SmallStructure(), "1\n"},
                    CExample{"shortLine", Replaced(SmallStructure(), "4 9 0 0 5000 7200", "4 9 0"), SmallLoads(),
                             kFailed},
                    CExample{"twoNodesWithOneKey", Replaced(SmallStructure(), "4 9 0 0 5000 7200", "1 9 0 0 5000 7200"),
                             SmallLoads(), kFailed},
                    CExample{"cancelled", SmallStructure(), SmallLoads(), kCancelled, LineCount(SmallStructure()) + 5},
                    CExample{"refusedModel", SmallStructure(), SmallLoads(), kWritten, 0, "structure.vkm"}),
    [](const testing::TestParamInfo<CExample>& example) { return example.param.name; });

}  // namespace
}  // namespace satwecvt

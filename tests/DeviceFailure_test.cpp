// The device under a conversion breaks: whichever of its calls is the first to fail, alone or with all that come after
// it. The outputs are larger than what is gathered before a write, so that writing fails in the middle of a block too.

#include "file/MemoryFiles_test.h"
#include "support/Conversion.h"
#include "support/Figure.h"
#include "support/SmallBuilding.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
#include <tuple>

namespace satwecvt {
namespace {

constexpr int kForGood = std::numeric_limits<int>::max();

/// What a failing write does: it takes nothing, or some of the bytes before the next one fails.
enum class EWrite { Refused, Short };

class CBreakingDevice : public CMemoryFiles {
public:
    int calls = 0;
    int failAt = 0;  // the number of a call of any kind, counted from 1
    int failUntil = 0;
    int error = EIO;
    EWrite failingWrite = EWrite::Refused;

    int OpenForReading(const char* path) override { return Fails() ? -1 : CMemoryFiles::OpenForReading(path); }
    int OpenForWriting(const char* path) override { return Fails() ? -1 : CMemoryFiles::OpenForWriting(path); }
    std::ptrdiff_t Read(int file, char* buffer, std::size_t size) override
    {
        return Fails() ? -1 : CMemoryFiles::Read(file, buffer, size);
    }
    std::ptrdiff_t Write(int file, const char* bytes, std::size_t size) override
    {
        const bool wasBroken = IsBroken();
        if (!Fails()) {
            return CMemoryFiles::Write(file, bytes, size);
        }
        const std::size_t taken = failingWrite == EWrite::Short && !wasBroken ? size / 2 : 0;
        return taken != 0 ? CMemoryFiles::Write(file, bytes, taken) : -1;
    }
    int Close(int file) noexcept override
    {
        const bool isClosed = CMemoryFiles::Close(file) == 0;  // the descriptor is gone in any case
        return Fails() || !isClosed ? -1 : 0;
    }

private:
    bool IsBroken() const { return failAt != 0 && calls >= failAt && calls <= failUntil; }

    bool Fails()
    {
        ++calls;
        if (!IsBroken()) {
            return false;
        }
        errno = error;
        return true;
    }
};

/// The small building with so many leaning walls more in its second story that log and model are some blocks long.
std::string LargeStructure()
{
    constexpr int kWalls = 3000;
    std::string walls = "1 2 0 0 0 200 0 0 0 0\n121 122 113 114\n";
    for (int key = 2; key <= kWalls; ++key) {
        walls += std::to_string(key) + " 2 0 0 0 200 1 2 3 4\n121 122 113 114\n";
    }
    const std::string counted =
        Replaced(SmallStructure(), "4 1 1 0 1 2\n", "4 1 1 0 " + std::to_string(kWalls) + " 2\n");
    return Replaced(counted, "1 2 0 0 0 200 0 0 0 0\n121 122 113 114\n", walls);
}

std::string LargeLoads()
{
    constexpr int kLoads = 3000;
    std::string loads = std::to_string(kLoads) + "\n";
    for (int number = 1; number <= kLoads; ++number) {
        loads += "1 111 12 0 1 2 3\n";
    }
    return loads + "0\n";
}

class DeviceFailure : public testing::TestWithParam<std::tuple<int, EWrite>> {
protected:
    /// Converts on a device that breaks at a call, and returns whether there was such a call.
    bool Convert(int failAt, int failUntil)
    {
        SCOPED_TRACE(failAt);
        CBreakingDevice device;
        std::tie(device.error, device.failingWrite) = GetParam();
        device.failAt = failAt;
        device.failUntil = failUntil;
        device.files = {{"structure.sat", structure}, {"load.sat", load}};
        CScriptedInterface screen;
        const CConversionResult conversion = ConvertMemoryFiles(screen, device);
        EXPECT_EQ(0, device.OpenCount());
        EXPECT_EQ(0, screen.windowsAlive);
        EXPECT_EQ(structure, device.files["structure.sat"]);
        EXPECT_EQ(load, device.files["load.sat"]);
        ExpectOneAnswer(conversion, screen);
        return device.calls >= failAt;
    }

    /// What the reading of the load file left: all of its lines, or those in front of a read that failed.
    CConversionResult Expected(const CConversionResult& conversion) const
    {
        const std::optional<CFinding> early = EndsEarly(conversion);
        return early ? Unharmed(structure, FirstLines(load, early->place.line)) : whole;
    }

    /// Whole outputs of what was read, a structure file that could not be read, or one message of an output: nothing in
    /// between.
    void ExpectOneAnswer(const CConversionResult& conversion, const CScriptedInterface& screen) const
    {
        const CConversionResult expected = Expected(conversion);
        EXPECT_TRUE(expected.model.value().starts_with(conversion.model.value_or("")));
        EXPECT_TRUE(expected.messageLog.value().starts_with(conversion.messageLog.value_or("")));
        EXPECT_EQ(conversion.report.hasFileError, !screen.fileErrors.empty());
        if (conversion.result == -1) {
            EXPECT_TRUE(conversion.report.failure.has_value());
            EXPECT_FALSE(conversion.model.has_value() || conversion.messageLog.has_value());
            EXPECT_TRUE(screen.fileErrors.empty());
        } else if (screen.fileErrors.empty()) {
            EXPECT_EQ(0, conversion.result);
            EXPECT_EQ(expected.model, conversion.model);
            EXPECT_EQ(expected.messageLog, conversion.messageLog);
        } else {
            EXPECT_EQ(0, conversion.result);
            ASSERT_EQ(1U, screen.fileErrors.size());
            EXPECT_TRUE(screen.fileErrors[0].ends_with(std::strerror(std::get<int>(GetParam()))));
        }
    }

    static CConversionResult Unharmed(const std::string& structure, const std::string& load)
    {
        CMemoryFiles files;
        files.files = {{"structure.sat", structure}, {"load.sat", load}};
        CScriptedInterface ignored;
        return ConvertMemoryFiles(ignored, files);
    }

    const std::string structure = LargeStructure();
    const std::string load = LargeLoads();
    const CConversionResult whole = Unharmed(structure, load);
};

TEST_P(DeviceFailure, OfOneCallHasOneAnswer)
{
    constexpr std::size_t kGathered = std::size_t{64} * 1024;
    ASSERT_GT(whole.model.value().size(), 2 * kGathered);
    ASSERT_GT(whole.messageLog.value().size(), 2 * kGathered);
    int number = 1;
    while (Convert(number, number)) {
        ++number;
    }
    EXPECT_GT(number, 20);
    PrintFigure(static_cast<std::uint64_t>(number - 1), "calls on files failed, each alone and with all after it");
}

TEST_P(DeviceFailure, OfAllCallsFromOneOnHasOneAnswer)
{
    for (int number = 1; Convert(number, kForGood); ++number) {
    }
}

INSTANTIATE_TEST_SUITE_P(All, DeviceFailure,
                         testing::Combine(testing::Values(EIO, ENOSPC),
                                          testing::Values(EWrite::Refused, EWrite::Short)));

}  // namespace
}  // namespace satwecvt

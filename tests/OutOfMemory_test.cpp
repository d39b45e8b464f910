// Every call that can run out of memory does so once: the conversion fails, and leaves nothing open.

#include "satwecvt/ConvertSatwe.h"
#include "support/Conversion.h"
#include "support/FailingFiles.h"
#include "support/SmallBuilding.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <new>
#include <string_view>

namespace satwecvt {
namespace {

TEST(OutOfMemory, InAnyFileCallFailsAndLeavesNothingOpen)
{
    for (const ECall call :
         {ECall::OpenForReading, ECall::OpenForWriting, ECall::Read, ECall::Write, ECall::IsSameFile}) {
        for (int number = 1;; ++number) {
            SCOPED_TRACE(testing::Message() << "call " << static_cast<int>(call) << " number " << number);
            CFailingFiles system;
            system.files = {{"structure.sat", SmallStructure()}, {"load.sat", SmallLoads()}};
            system.failure = EFailure::OutOfMemory;
            system.mostBytesPerCall = 1000;
            system.FailOnce(call, number);
            CScriptedInterface screen;
            const int result = ConvertMemoryFiles(screen, system).result;
            EXPECT_EQ(0, system.OpenCount());
            EXPECT_EQ(0, screen.windowsAlive);
            EXPECT_EQ(SmallStructure(), system.files["structure.sat"]);
            EXPECT_EQ(SmallLoads(), system.files["load.sat"]);
            const bool isReached = system.calls[call] >= number;
            EXPECT_EQ(isReached ? -1 : 0, result);
            if (!isReached) {
                EXPECT_GT(number, 2);
                break;
            }
        }
    }
}

/// A user interface one of whose calls runs out of memory.
class CStarvingInterface : public CUserInterface {
public:
    explicit CStarvingInterface(int failingCall) : throwAt(failingCall) {}

    int calls = 0;
    int windowsAlive = 0;

    void ShowMessage(std::string_view) override { Count(); }
    void ReportFileError(std::string_view, std::string_view) override { Count(); }
    std::unique_ptr<CProgressWindow> CreateProgressWindow() override
    {
        Count();
        return std::make_unique<CWindow>(*this);
    }

private:
    class CWindow : public CProgressWindow {
    public:
        explicit CWindow(CStarvingInterface& starvingInterface) : owner(starvingInterface) { ++owner.windowsAlive; }
        ~CWindow() override { --owner.windowsAlive; }

        void SetTotalLines(std::int32_t) override { owner.Count(); }
        int StepLine(std::int32_t) override
        {
            owner.Count();
            return 1;
        }
        void SetStageText(std::string_view) override { owner.Count(); }

    private:
        CStarvingInterface& owner;
    };

    void Count()
    {
        if (++calls == throwAt) {
            throw std::bad_alloc();
        }
    }

    int throwAt;
};

/// Runs out of memory at one call of the user interface after the other, until a conversion makes no more of them.
template <class Prepare>
int CountFailingCalls(Prepare prepare)
{
    for (int number = 1;; ++number) {
        SCOPED_TRACE(number);
        CFailingFiles system;
        system.files = {{"structure.sat", SmallStructure()}, {"load.sat", SmallLoads()}};
        prepare(system);
        CStarvingInterface screen(number);
        CConvertSatwe converter(screen, nullptr, system);
        const int result = converter.Convert("structure.sat", "load.sat");
        EXPECT_EQ(0, system.OpenCount());
        EXPECT_EQ(0, screen.windowsAlive);
        if (screen.calls < number) {
            return number - 1;
        }
        EXPECT_EQ(-1, result);
    }
}

TEST(OutOfMemory, InAnyCallOfTheUserInterfaceFailsAndLeavesNothingOpen)
{
    const int steps = LineCount(SmallStructure()) + LineCount(SmallLoads()) + 2;
    const int whole = CountFailingCalls([](CFailingFiles&) {});
    EXPECT_EQ(1 + 1 + steps + 10, whole);  // window, total, steps, stages
    const int missingStructure = CountFailingCalls([](CFailingFiles& system) { system.files.erase("structure.sat"); });
    EXPECT_EQ(1 + 1 + 1, missingStructure);
    const int refusedModel =
        CountFailingCalls([](CFailingFiles& system) { system.FailOnce(ECall::OpenForWriting, 2); });
    EXPECT_EQ(1 + 1 + steps + 1, refusedModel);
}

}  // namespace
}  // namespace satwecvt

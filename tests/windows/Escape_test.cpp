// Escape cancels the reading when it was pressed since the line before, whichever window of whichever program has the
// focus.

#include "windows/HostWindow.h"
#include "windows/LibraryWindows.h"
#include "windows/Processes.h"
#include "windows/ProgressTest.h"

namespace satwecvt {
namespace {

// What the system answers when it is asked for a key.
constexpr SHORT kIsDown = -0x8000;
constexpr SHORT kPressedSinceLastQuestion = 1;

class Escape : public CProgressTest {
protected:
    /// Has the library hear this answer at every step from this one on, and that nothing is pressed before.
    void AnswerFrom(std::int64_t step, SHORT answer)
    {
        watch.onKey = [=, this](int key) {
            EXPECT_EQ(VK_ESCAPE, key);
            return watch.Steps() < step ? SHORT{0} : answer;
        };
    }
};

/// With the keyboard itself, on a screen of their own: who has the keyboard at the end of one of these is left open.
using Keyboard = CProgressTest;

void PressEscape(HWND)
{
    PressKey(VK_ESCAPE);
}

TEST_F(Escape, EndsAConversionInTheStructureFile)
{
    ExpectCancelAt(10, PressEscape);
}

TEST_F(Escape, EndsAConversionInTheLoadFile)
{
    ExpectCancelAt(kFirstLoadStep, PressEscape);
}

TEST_F(Escape, CountsWhenAnotherWindowOfTheHostHasTheFocus)
{
    const CHostWindowThread elsewhere;
    ExpectCancelAt(10, [&](HWND) {
        EXPECT_TRUE(elsewhere.ComesToTheFront());
        PressKey(VK_ESCAPE);
    });
}

TEST_F(Keyboard, EscapeCountsWithAnotherApplicationInFront)
{
    ExpectCancelAt(10, [](HWND) {
        const CProcess other("other_application.exe");
        EXPECT_TRUE(WaitUntil([&] {
            DWORD inFront = 0;
            ::GetWindowThreadProcessId(::GetForegroundWindow(), &inFront);
            return inFront == other.Id();
        }));
        // The other application ends when the key arrives.
        EXPECT_TRUE(WaitUntil([&] {
            PressEscapeOnTheKeyboard("another application");
            return other.HasEnded(500);
        }));
    });
}

TEST_F(Keyboard, EscapeCountsWhenTheProgressWindowIsInFront)
{
    WriteBytes(InFolder("satwecvt.msg"), "old log");
    watch.onStep = [](std::int64_t step, HWND window) {
        if (step % 500 == 10) {
            EXPECT_EQ(window, ::GetForegroundWindow());
            PressEscapeOnTheKeyboard(kProgressTitle);
        }
        ::Sleep(1);
    };
    EXPECT_EQ(1, Convert(WriteStructure(20'000), WriteLoad()));
    ExpectNothingWritten();
}

TEST_F(Escape, APressSinceTheLastQuestionCounts)
{
    AnswerFrom(10, kPressedSinceLastQuestion);
    ExpectCancelledAt(10);
}

TEST_F(Escape, APressSinceTheLastQuestionCountsWhileTheKeyIsDown)
{
    AnswerFrom(10, kIsDown | kPressedSinceLastQuestion);
    ExpectCancelledAt(10);
}

TEST_F(Escape, AKeyThatIsDownSinceEarlierDoesNotCount)
{
    AnswerFrom(1, kIsDown);
    EXPECT_EQ(0, ConvertSmallBuilding());
    EXPECT_EQ(kSteps, watch.Steps());
}

TEST_F(Escape, APressBeforeTheCallDoesNotCount)
{
    // Before the call, not just before the reading: an import dialog that is coming up would take the key for itself.
    {
        const CHostWindow elsewhere;
        PressKey(VK_ESCAPE);
    }
    EXPECT_EQ(0, ConvertSmallBuilding());
}

TEST_F(Escape, APressBeforeTheProgressWindowComesDoesNotCount)
{
    watch.onStatus = [&](const std::string&, HWND) {
        if (watch.Steps() < 0) {
            PressKey(VK_ESCAPE);
        }
    };
    EXPECT_EQ(0, ConvertSmallBuilding());
    EXPECT_EQ(kSteps, watch.Steps());
}

TEST_F(Escape, OfAMessageBoxClosesTheBoxAlone)
{
    CLibraryCall call;
    ASSERT_TRUE(ImportFiles(WriteStructure(), InFolder("no such file.sat")));
    const HWND box = WaitFor(FindMessageBox);
    ASSERT_NE(nullptr, box);
    EXPECT_TRUE(WaitUntil([&] { return ::IsChild(box, FocusOf(call.ThreadId())) != 0; }));
    PressKey(VK_ESCAPE);
    EXPECT_EQ(-1, call.Result());

    EXPECT_EQ(0, ConvertSmallBuilding());
}

}  // namespace
}  // namespace satwecvt

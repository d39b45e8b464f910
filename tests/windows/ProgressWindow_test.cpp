#include "ui/win32/resource.h"
#include "windows/DialogTemplate.h"
#include "windows/HostWindows.h"
#include "windows/LibraryCall.h"
#include "windows/Screenshot.h"
#include "windows/StepWatch.h"
#include "windows/WindowsTest.h"

#include <commctrl.h>

#include <filesystem>

namespace satwecvt {
namespace {

namespace fs = std::filesystem;

int BarPosition(HWND window)
{
    return static_cast<int>(::SendDlgItemMessageA(window, IDC_PROGRESS_BAR, PBM_GETPOS, 0, 0));
}

/// What the window shows of its progress.
struct CShown {
    std::string total;
    std::string line;
    int position;
    std::string status;

    bool operator==(const CShown&) const = default;
};

CShown Shown(HWND window)
{
    return {Text(window, IDC_TOTAL_LINE), Text(window, IDC_PARSING_LINE), BarPosition(window),
            Text(window, IDC_STATUS)};
}

void PrintTo(const CShown& shown, std::ostream* out)
{
    *out << shown.total << " | " << shown.line << " | " << shown.position << " | " << shown.status;
}

class ProgressWindow : public CWindowsTest {
protected:
    /// Converts two files to the end and returns the result.
    int Convert(const std::string& structurePath, const std::string& loadPath)
    {
        CLibraryCall call;
        EXPECT_TRUE(ImportFiles(structurePath, loadPath));
        const int result = call.Result();
        outputPath = call.OutputPath();
        return result;
    }

    /// Has to be the state of the working folder after a cancel: no model text file, the old log as it was.
    void ExpectNothingWritten() const
    {
        EXPECT_EQ(CLibraryCall::kUntouched, outputPath);
        EXPECT_FALSE(fs::exists(InFolder("tower.vkm")));
        EXPECT_EQ("old log", ReadBytes(InFolder("satwecvt.msg")));
        EXPECT_FALSE(::IsWindow(watch.Window()));
    }

    /// What the window showed after each step, from what the next step sees.
    std::vector<CShown> ShownAfterEachStep(const std::string& structurePath, const std::string& loadPath)
    {
        std::vector<CShown> shown;
        watch.onStep = [&](std::int64_t, HWND window) { shown.push_back(Shown(window)); };
        Convert(structurePath, loadPath);
        return shown;
    }

    /// Cancels at a step by some means and converts.
    int ConvertAndCancelAt(std::int64_t step, const std::function<void(HWND)>& cancel)
    {
        WriteBytes(InFolder("satwecvt.msg"), "old log");
        watch.onStep = [=](std::int64_t now, HWND window) {
            if (now == step) {
                cancel(window);
            }
        };
        return Convert(WriteStructure(), WriteLoad());
    }

    /// The first step at which a line of the load file is read.
    static constexpr int kFirstLoadStep = kSteps - kLoadLines + 1;

    CStepWatch watch;
    std::string outputPath;
};

void PressCancelButton(HWND window)
{
    ::SendMessageA(::GetDlgItem(window, IDC_CANCEL_READING), BM_CLICK, 0, 0);
}

void PressEscape(HWND)
{
    PressKey(VK_ESCAPE);
}

TEST_F(ProgressWindow, StandsAsInTheTemplate)
{
    watch.onStep = [](std::int64_t step, HWND window) {
        if (step == 2) {
            ExpectTemplate(window, {194, 70},
                           {{1001, "msctls_progress32", "", {7, 7, 180, 14}, 0},
                            {-1, "static", "Total Line", {6, 27, 44, 8}, SS_LEFT},
                            {-1, "static", "Parsing Line", {7, 39, 49, 8}, SS_LEFT},
                            {-1, "static", ":", {56, 27, 8, 8}, SS_LEFT},
                            {-1, "static", ":", {56, 39, 8, 8}, SS_LEFT},
                            {1003, "static", "36", {66, 27, 44, 8}, SS_LEFT},
                            {1004, "static", "0", {66, 39, 44, 8}, SS_LEFT},
                            {4002, "button", "Cancel", {137, 22, 50, 24}, WS_TABSTOP | BS_PUSHBUTTON},
                            {8004, "static", "!!! Read Data File !!!", {7, 55, 180, 10}, SS_CENTER}});
            ExpectNothingCutOffOrCovered(window);
            EXPECT_EQ(kProgressTitle, Text(window));
            EXPECT_EQ("MS Sans Serif", FontName(::GetDlgItem(window, IDC_STATUS)));
            EXPECT_EQ(9, FontPoints(::GetDlgItem(window, IDC_STATUS)));
            constexpr LONG_PTR kFrame = WS_POPUP | WS_CAPTION | WS_VISIBLE;
            EXPECT_EQ(kFrame, ::GetWindowLongPtrA(window, GWL_STYLE) & (kFrame | WS_SYSMENU | WS_THICKFRAME));
            EXPECT_EQ(nullptr, ::GetWindow(window, GW_OWNER));
            EXPECT_EQ(1000, ::SendDlgItemMessageA(window, IDC_PROGRESS_BAR, PBM_GETRANGE, FALSE, 0));
            EXPECT_EQ(0, ::SendDlgItemMessageA(window, IDC_PROGRESS_BAR, PBM_GETRANGE, TRUE, 0));
        }
    };
    EXPECT_EQ(0, Convert(WriteStructure(), WriteLoad()));
    EXPECT_EQ(kSteps, watch.Steps());
}

TEST_F(ProgressWindow, StandsInTheMiddleOfTheScreen)
{
    watch.onStep = [](std::int64_t step, HWND window) {
        if (step == 1) {
            RECT place{};
            RECT screen{};
            ::GetWindowRect(window, &place);
            ::SystemParametersInfoA(SPI_GETWORKAREA, 0, &screen, 0);
            EXPECT_NEAR(screen.left + screen.right, place.left + place.right, 2);
            EXPECT_NEAR(screen.top + screen.bottom, place.top + place.bottom, 2);
        }
    };
    EXPECT_EQ(0, Convert(WriteStructure(), WriteLoad()));
}

TEST_F(ProgressWindow, ConvertsToTheEnd)
{
    EXPECT_EQ(0, Convert(WriteStructure(), WriteLoad()));

    EXPECT_EQ(InFolder("tower.vkm"), outputPath);
    EXPECT_EQ(ExpectedModel(), ReadBytes(outputPath));
    EXPECT_EQ("", ReadBytes(InFolder("satwecvt.msg")));
    EXPECT_FALSE(::IsWindow(watch.Window()));
    EXPECT_EQ(kSteps, watch.Steps());
}

TEST_F(ProgressWindow, ShowsEveryLineAndTheBarThatBelongsToIt)
{
    const std::vector<CShown> shown = ShownAfterEachStep(WriteComments(1500), WriteComments(500, "load.sat"));

    ASSERT_EQ(1501U, shown.size());  // the structure file's lines, and the one that is not there
    EXPECT_EQ((CShown{"2000", "", 0, "!!! Read Data File !!!"}), shown[0]);
    for (int line = 0; line < 1500; ++line) {
        const CShown expected{"2000", std::to_string(line), line / 2, "!!! Read Data File !!!"};
        ASSERT_EQ(expected, shown[static_cast<std::size_t>(line) + 1]);
    }
    EXPECT_EQ(250, shown[501].position);
}

TEST_F(ProgressWindow, TruncatesTheBarsPosition)
{
    const std::vector<CShown> shown = ShownAfterEachStep(WriteComments(3), WriteComments(0, "load.sat"));

    ASSERT_EQ(4U, shown.size());
    EXPECT_EQ((CShown{"3", "1", 333, "!!! Read Data File !!!"}), shown[2]);
    EXPECT_EQ((CShown{"3", "2", 666, "!!! Read Data File !!!"}), shown[3]);
}

TEST_F(ProgressWindow, CountsOnOverBothFilesAndLinesThatAreReadTwice)
{
    const std::vector<CShown> shown = ShownAfterEachStep(WriteStructure(), WriteLoad());

    ASSERT_EQ(static_cast<std::size_t>(kSteps), shown.size());
    EXPECT_EQ((CShown{"36", "36", 1000, "!!! Read Data File !!!"}), shown.back());
}

TEST_F(ProgressWindow, ATotalOf0LinesDoesNoHarm)
{
    EXPECT_EQ(-1, Convert(WriteComments(0), WriteComments(0, "load.sat")));
    EXPECT_EQ(1, watch.Steps());
    EXPECT_FALSE(::IsWindow(watch.Window()));
}

TEST_F(ProgressWindow, IsClosedWhenReadingFails)
{
    EXPECT_EQ(-1, Convert(WriteComments(5), WriteLoad()));
    EXPECT_FALSE(::IsWindow(watch.Window()));
    EXPECT_EQ(CLibraryCall::kUntouched, outputPath);
}

TEST_F(ProgressWindow, ShowsTheStagesInTheirOrder)
{
    std::vector<std::string> stages;
    watch.onStatus = [&](const std::string& status, HWND) { stages.push_back(status); };

    EXPECT_EQ(0, Convert(WriteStructure(), WriteLoad()));

    const std::vector<std::string> expected = {"!!! Read Data File !!!",
                                               "!!! Write Data File : Node !!!",
                                               "!!! Write Data File : Element !!!",
                                               "!!! Write Data File : Material !!!",
                                               "!!! Write Data File : Section !!!",
                                               "!!! Write Data File : Thickness !!!",
                                               "!!! Write Data File : Support !!!",
                                               "!!! Write Data File : Beam End Release !!!",
                                               "!!! Write Data File : Beam End Offset !!!",
                                               "!!! Write Data File : Load Case !!!",
                                               "!!! Write File : Static Load !!!"};
    EXPECT_EQ(expected, stages);
}

TEST_F(ProgressWindow, EveryTextFitsIntoItsPlace)
{
    watch.onStatus = [](const std::string&, HWND window) { ExpectNothingCutOffOrCovered(window); };
    EXPECT_EQ(0, Convert(WriteStructure(), WriteLoad()));
}

TEST_F(ProgressWindow, TheCancelButtonEndsAConversionInTheStructureFile)
{
    EXPECT_EQ(1, ConvertAndCancelAt(10, PressCancelButton));
    EXPECT_EQ(10, watch.Steps());
    ExpectNothingWritten();
}

TEST_F(ProgressWindow, TheCancelButtonEndsAConversionInTheLoadFile)
{
    EXPECT_EQ(1, ConvertAndCancelAt(kFirstLoadStep, PressCancelButton));
    EXPECT_EQ(kFirstLoadStep, watch.Steps());
    ExpectNothingWritten();
}

TEST_F(ProgressWindow, EscapeEndsAConversionInTheStructureFile)
{
    EXPECT_EQ(1, ConvertAndCancelAt(10, PressEscape));
    EXPECT_EQ(10, watch.Steps());
    ExpectNothingWritten();
}

TEST_F(ProgressWindow, EscapeEndsAConversionInTheLoadFile)
{
    EXPECT_EQ(1, ConvertAndCancelAt(kFirstLoadStep, PressEscape));
    EXPECT_EQ(kFirstLoadStep, watch.Steps());
    ExpectNothingWritten();
}

TEST_F(ProgressWindow, EscapeCountsWhereverTheFocusIs)
{
    const HWND elsewhere = ::CreateWindowA("Edit", "elsewhere", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 200, 100,
                                           nullptr, nullptr, nullptr, nullptr);
    const int result = ConvertAndCancelAt(10, [&](HWND) {
        ::SetForegroundWindow(elsewhere);
        PressKey(VK_ESCAPE);
    });
    EXPECT_EQ(1, result);
    EXPECT_EQ(10, watch.Steps());
    ExpectNothingWritten();
    ::DestroyWindow(elsewhere);
}

TEST_F(ProgressWindow, AClickIsActedOnAtTheNextLine)
{
    WriteBytes(InFolder("satwecvt.msg"), "old log");
    bool isAliveAfterTheClick = false;
    std::int64_t clickedAt = 0;
    watch.onStep = [&](std::int64_t step, HWND window) {
        if (step == 10) {
            Click(window, IDC_CANCEL_READING);  // lies in the queue, which the next step empties
            clickedAt = step;
        }
        isAliveAfterTheClick = isAliveAfterTheClick || (step == 11 && ::IsWindow(window) != 0);
    };
    EXPECT_EQ(1, Convert(WriteStructure(), WriteLoad()));
    EXPECT_TRUE(isAliveAfterTheClick);
    EXPECT_EQ(11, watch.Steps());
    ExpectNothingWritten();
}

TEST_F(ProgressWindow, AUserCancelsALongConversion)
{
    WriteBytes(InFolder("satwecvt.msg"), "old log");
    CLibraryCall call;
    ASSERT_TRUE(ImportFiles(WriteStructure(300'000), WriteLoad()));
    const HWND window = WaitFor(FindProgressWindow);
    ASSERT_NE(nullptr, window);
    ASSERT_TRUE(WaitUntil([&] { return std::atoi(Text(window, IDC_PARSING_LINE).c_str()) > 1000; }));

    Click(window, IDC_CANCEL_READING);

    EXPECT_EQ(1, call.Result());
    outputPath = call.OutputPath();
    ExpectNothingWritten();
}

TEST_F(ProgressWindow, AnEscapePressedBeforeDoesNotCount)
{
    const HWND elsewhere = ::CreateWindowA("Edit", "elsewhere", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 200, 100,
                                           nullptr, nullptr, nullptr, nullptr);
    // Before the call: while the import dialog comes up it takes the focus at a moment of its own, and the Escape is
    // its.
    ::SetForegroundWindow(elsewhere);
    PressKey(VK_ESCAPE);
    ::DestroyWindow(elsewhere);
    CLibraryCall call;
    ASSERT_TRUE(ImportFiles(WriteStructure(), WriteLoad()));
    EXPECT_EQ(0, call.Result());
}

TEST_F(ProgressWindow, OnlyTheCancelButtonAndEscapeEndIt)
{
    watch.onStep = [](std::int64_t step, HWND window) {
        if (step == 5) {
            ::PostMessageA(window, WM_CLOSE, 0, 0);
            ::PostMessageA(window, WM_COMMAND, IDCANCEL, 0);
            ::PostMessageA(window, WM_COMMAND, IDOK, 0);
            ::PostMessageA(window, WM_SYSCOMMAND, SC_CLOSE, 0);
            // The dialog's own Escape handling sends the number of a standard Cancel button, which this one is not.
            ::PostMessageA(::GetDlgItem(window, IDC_CANCEL_READING), WM_KEYDOWN, VK_ESCAPE, 1);
        }
    };
    EXPECT_EQ(0, Convert(WriteStructure(), WriteLoad()));
    EXPECT_EQ(kSteps, watch.Steps());
}

TEST_F(ProgressWindow, WritingCannotBeCancelled)
{
    watch.onStatus = [](const std::string& status, HWND window) {
        if (status == "!!! Write Data File : Element !!!") {
            PressCancelButton(window);
            PressKey(VK_ESCAPE);
        }
    };
    EXPECT_EQ(0, Convert(WriteStructure(), WriteLoad()));
    EXPECT_EQ(ExpectedModel(), ReadBytes(outputPath));
}

TEST_F(ProgressWindow, ShowsTheWaitCursor)
{
    HCURSOR during = nullptr;
    HCURSOR after = nullptr;
    watch.onStep = [&](std::int64_t step, HWND) {
        if (step == 10) {
            during = ::GetCursor();
        }
    };
    CLibraryCall call([&](std::string& path) {
        ::SetCursor(::LoadCursorA(nullptr, MAKEINTRESOURCEA(32515)));  // a cross: neither arrow nor hourglass
        const int result = ConvertFile2(path);
        after = ::GetCursor();
        return result;
    });
    ASSERT_TRUE(ImportFiles(WriteStructure(), WriteLoad()));
    EXPECT_EQ(0, call.Result());
    EXPECT_EQ(::LoadCursorA(nullptr, MAKEINTRESOURCEA(32514)), during);
    EXPECT_NE(during, after);
}

TEST_F(ProgressWindow, TheLastLineReadIsOnTheScreenWhileTheModelIsWritten)
{
    watch.onStatus = [](const std::string& status, HWND window) {
        if (status == "!!! Write Data File : Element !!!") {
            const HWND line = ::GetDlgItem(window, IDC_PARSING_LINE);
            const std::vector<char> found = ScreenBytes(line);
            ::RedrawWindow(line, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
            EXPECT_TRUE(found == ScreenBytes(line));
        }
    };
    EXPECT_EQ(0, Convert(WriteStructure(2000), WriteLoad()));
}

TEST_F(ProgressWindow, IsDrawnWhole)
{
    constexpr int kComments = 40'000;
    watch.onStep = [&](std::int64_t step, HWND window) {
        const auto isTime = [&](double part) { return step == static_cast<std::int64_t>(kComments * part); };
        if (step == 1 || isTime(0.35) || isTime(0.7)) {
            const char* const name = step == 1 ? "progress-start" : isTime(0.35) ? "progress-third" : "progress-middle";
            EXPECT_TRUE(SaveScreenshot(window, name));
        }
    };
    watch.onStatus = [](const std::string& status, HWND window) {
        if (status == "!!! Write Data File : Section !!!") {
            EXPECT_TRUE(SaveScreenshot(window, "progress-writing"));
        }
    };
    EXPECT_EQ(0, Convert(WriteStructure(kComments), WriteLoad()));
}

}  // namespace
}  // namespace satwecvt

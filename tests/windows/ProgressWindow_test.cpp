#include "support/Stages.h"
#include "ui/win32/resource.h"
#include "windows/DialogTemplate.h"
#include "windows/LibraryWindows.h"
#include "windows/ProgressTest.h"
#include "windows/Screenshot.h"

#include <commctrl.h>

#include <algorithm>
#include <atomic>
#include <memory>

namespace satwecvt {
namespace {

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

class ProgressWindow : public CProgressTest {
protected:
    /// What the window showed after each step, from what the next step sees.
    std::vector<CShown> ShownAfterEachStep(const std::string& structurePath, const std::string& loadPath)
    {
        std::vector<CShown> shown;
        watch.onStep = [&](std::int64_t, HWND window) { shown.push_back(Shown(window)); };
        Convert(structurePath, loadPath);
        return shown;
    }
};

void PressCancelButton(HWND window)
{
    ::SendMessageA(::GetDlgItem(window, IDC_CANCEL_READING), BM_CLICK, 0, 0);
}

TEST_F(ProgressWindow, StandsAsInTheTemplate)
{
    AtStep(2, [](HWND window) {
        constexpr DWORD kStatic = SS_LEFT | WS_GROUP;
        ExpectTemplate(window,
                       {"Conversion Progress Window",
                        {194, 70},
                        DS_MODALFRAME | DS_CENTER | DS_SETFONT | WS_POPUP | WS_CAPTION,
                        "MS Sans Serif",
                        9},
                       {{1001, "msctls_progress32", "", {7, 7, 180, 14}, 0},
                        {-1, "static", "Total Line", {6, 27, 44, 8}, kStatic},
                        {-1, "static", "Parsing Line", {7, 39, 49, 8}, kStatic},
                        {-1, "static", ":", {56, 27, 8, 8}, kStatic},
                        {-1, "static", ":", {56, 39, 8, 8}, kStatic},
                        {1003, "static", "36", {66, 27, 44, 8}, kStatic},
                        {1004, "static", "0", {66, 39, 44, 8}, kStatic},
                        {4002, "button", "Cancel", {137, 22, 50, 24}, WS_TABSTOP | BS_PUSHBUTTON},
                        {8004, "static", "!!! Read Data File !!!", {7, 55, 180, 10}, SS_CENTER | WS_GROUP}});
        ExpectNothingCutOffOrCovered(window);
        EXPECT_EQ(1000, ::SendDlgItemMessageA(window, IDC_PROGRESS_BAR, PBM_GETRANGE, FALSE, 0));
        EXPECT_EQ(0, ::SendDlgItemMessageA(window, IDC_PROGRESS_BAR, PBM_GETRANGE, TRUE, 0));
    });
    EXPECT_EQ(0, ConvertSmallBuilding());
    EXPECT_EQ(kSteps, watch.Steps());
}

/// The texts that the progress window has at the moment in which the system is about to show it.
std::vector<std::string> textsWhenShown;

LRESULT CALLBACK SeeShowing(int code, WPARAM wParam, LPARAM lParam)
{
    const auto& message = *reinterpret_cast<const CWPSTRUCT*>(lParam);
    if (code == HC_ACTION && message.message == WM_SHOWWINDOW && message.wParam != 0 &&
        Text(message.hwnd) == kProgressTitle && textsWhenShown.empty()) {
        for (const int control : {IDC_TOTAL_LINE, IDC_PARSING_LINE, IDC_STATUS}) {
            textsWhenShown.push_back(Text(message.hwnd, control));
        }
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

TEST_F(ProgressWindow, NeverShowsTheTextsOfTheTemplate)
{
    textsWhenShown.clear();
    CLibraryCall call([](std::string& path) {
        const HHOOK hook = ::SetWindowsHookExA(WH_CALLWNDPROC, SeeShowing, nullptr, ::GetCurrentThreadId());
        const int result = ConvertFile2(path);
        ::UnhookWindowsHookEx(hook);
        return result;
    });
    ASSERT_TRUE(ImportFiles(WriteStructure(), WriteLoad()));
    EXPECT_EQ(0, call.Result());
    EXPECT_EQ((std::vector<std::string>{"", "", "!!! Read Data File !!!"}), textsWhenShown);
}

/// Counts how often the text of the parsing line is drawn, and the bar.
class CDrawings {
public:
    explicit CDrawings(HWND progressWindow)
    {
        current = this;
        for (CControl* const control : {&line, &bar}) {
            control->window = ::GetDlgItem(progressWindow, control == &bar ? IDC_PROGRESS_BAR : IDC_PARSING_LINE);
            control->procedure = reinterpret_cast<WNDPROC>(
                ::SetWindowLongPtrA(control->window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&SeePainting)));
        }
    }

    int OfTheLine() const { return line.count; }
    int OfTheBar() const { return bar.count; }

private:
    struct CControl {
        HWND window = nullptr;
        WNDPROC procedure = nullptr;
        int count = 0;
    };

    static LRESULT CALLBACK SeePainting(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        CControl& control = window == current->bar.window ? current->bar : current->line;
        control.count += message == WM_PAINT ? 1 : 0;
        return ::CallWindowProcA(control.procedure, window, message, wParam, lParam);
    }

    static inline CDrawings* current = nullptr;
    CControl line;
    CControl bar;
};

// The clock is the test's: a step takes a millisecond, whatever the machine is busy with.
TEST_F(ProgressWindow, DrawsTheLineAndTheBarAtLeast10AndAtMost100TimesASecond)
{
    constexpr int kLines = 3000;
    ULONGLONG now = 1'000'000;
    const CLibraryImport<"GetTickCount64", ULONGLONG()> clock([&] { return now; });
    std::unique_ptr<CDrawings> drawings;
    std::vector<int> lineAtStep;
    std::vector<int> barAtStep;
    watch.onStep = [&](std::int64_t step, HWND window) {
        if (step == 1) {
            drawings = std::make_unique<CDrawings>(window);
        }
        lineAtStep.push_back(drawings->OfTheLine());
        barAtStep.push_back(drawings->OfTheBar());
        ++now;
    };
    EXPECT_EQ(-1, Convert(WriteComments(kLines), WriteLoad()));
    ASSERT_EQ(kLines + 1U, lineAtStep.size());
    for (const std::vector<int>& atStep : {lineAtStep, barAtStep}) {
        for (std::size_t step = 0; step + 100 < atStep.size(); ++step) {
            const int drawn = atStep[step + 100] - atStep[step];
            ASSERT_TRUE(drawn >= 1 && drawn <= 10) << drawn << " drawings in 100 ms from step " << step;
        }
    }
}

TEST_F(ProgressWindow, StandsInTheMiddleOfTheScreen)
{
    AtStep(1, [](HWND window) {
        RECT place{};
        RECT screen{};
        ::GetWindowRect(window, &place);
        ::SystemParametersInfoA(SPI_GETWORKAREA, 0, &screen, 0);
        EXPECT_NEAR(screen.left + screen.right, place.left + place.right, 2);
        EXPECT_NEAR(screen.top + screen.bottom, place.top + place.bottom, 2);
    });
    EXPECT_EQ(0, ConvertSmallBuilding());
}

TEST_F(ProgressWindow, ConvertsToTheEnd)
{
    EXPECT_EQ(0, ConvertSmallBuilding());

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

TEST_F(ProgressWindow, HasTheCurrentValuesForWhoeverAsksForOneOfThemAlone)
{
    const auto isCurrent = [](std::int64_t step, HWND window) {
        const HWND text = ::GetDlgItem(window, IDC_PARSING_LINE);
        const auto line = std::to_string(step - 2);  // what the step before has shown
        switch (step % 3) {
        case 0:
            return ::SendMessageA(text, WM_GETTEXTLENGTH, 0, 0) == static_cast<LRESULT>(line.size());
        case 1: {
            char shown[16]{};
            ::SendMessageA(text, WM_GETTEXT, sizeof(shown), reinterpret_cast<LPARAM>(shown));
            return shown == line;
        }
        default:
            return BarPosition(window) == step - 2;
        }
    };
    const CLibraryImport<"GetTickCount64", ULONGLONG()> clock([] { return 1ULL; });  // no drawing tells the values
    int wrong = 0;
    watch.onStep = [&](std::int64_t step, HWND window) { wrong += step == 1 || isCurrent(step, window) ? 0 : 1; };
    EXPECT_EQ(-1, Convert(WriteComments(999), WriteComments(1, "load.sat")));
    EXPECT_EQ(0, wrong);
    EXPECT_EQ(1000, watch.Steps());
}

// A rest of the shortest time at every line would make minutes of the seconds that a large building takes.
TEST_F(ProgressWindow, NeverRests)
{
    std::atomic<int> rests = 0;
    const CLibraryImport<"Sleep", void(DWORD)> rest([&](DWORD milliseconds) {
        ++rests;
        ::Sleep(milliseconds);
    });
    EXPECT_EQ(0, ConvertSmallBuilding());
    EXPECT_EQ(0, rests);
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

TEST_F(ProgressWindow, TheCancelButtonHasTheFocus)
{
    AtStep(1, [](HWND window) { EXPECT_EQ(::GetDlgItem(window, IDC_CANCEL_READING), ::GetFocus()); });
    EXPECT_EQ(0, ConvertSmallBuilding());
}

TEST_F(ProgressWindow, WithoutOneNothingIsConverted)
{
    const CLibraryImport<"CreateDialogParamA", HWND(HINSTANCE, LPCSTR, HWND, DLGPROC, LPARAM)> noWindow(
        [](auto...) { return HWND{}; });
    EXPECT_EQ(-1, ConvertSmallBuilding());
    EXPECT_FALSE(std::filesystem::exists(InFolder("tower.vkm")));
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

    EXPECT_EQ(0, ConvertSmallBuilding());

    EXPECT_EQ(kStages, stages);
}

TEST_F(ProgressWindow, StaysAsItIsButForTheStageWhileTheModelIsWritten)
{
    int stages = 0;
    watch.onStatus = [&](const std::string& status, HWND window) {
        if (watch.Steps() == kSteps) {
            ++stages;
            EXPECT_EQ((CShown{"36", "37", 1000, status}), Shown(window));
            EXPECT_TRUE(::IsWindowVisible(window));
            EXPECT_TRUE(::IsWindowEnabled(::GetDlgItem(window, IDC_CANCEL_READING)));
        }
    };
    EXPECT_EQ(0, ConvertSmallBuilding());
    EXPECT_EQ(10, stages);
}

// Nothing else would bring it to the screen: no message is handed out while the model is written. (Wine draws a static
// control at once.)
TEST_F(ProgressWindow, DrawsEachStageAtOnce)
{
    std::vector<HWND> drawn;
    const CLibraryImport<"UpdateWindow", BOOL(HWND)> drawing([&](HWND window) {
        drawn.push_back(window);
        return ::UpdateWindow(window);
    });
    HWND status = nullptr;
    watch.onStatus = [&](const std::string&, HWND window) { status = ::GetDlgItem(window, IDC_STATUS); };
    EXPECT_EQ(0, ConvertSmallBuilding());
    EXPECT_EQ(10, std::count(drawn.begin(), drawn.end(), status));
}

TEST_F(ProgressWindow, EveryTextFitsIntoItsPlace)
{
    watch.onStatus = [](const std::string&, HWND window) { ExpectNothingCutOffOrCovered(window); };
    EXPECT_EQ(0, ConvertSmallBuilding());
}

TEST_F(ProgressWindow, TheCancelButtonEndsAConversionInTheStructureFile)
{
    ExpectCancelAt(10, PressCancelButton);
}

TEST_F(ProgressWindow, TheCancelButtonEndsAConversionInTheLoadFile)
{
    ExpectCancelAt(kFirstLoadStep, PressCancelButton);
}

TEST_F(ProgressWindow, AClickIsActedOnAtTheNextLine)
{
    AtStep(10,
           [](HWND window) { Click(window, IDC_CANCEL_READING); });  // lies in the queue, which the next step empties
    ExpectCancelledAt(11);
}

TEST_F(ProgressWindow, AClickChangesNothingThatIsSeenBeforeTheNextLine)
{
    ExpectCancelAt(10, [](HWND window) {
        const CShown before = Shown(window);
        PressCancelButton(window);
        EXPECT_EQ(before, Shown(window));
        EXPECT_EQ("Cancel", Text(window, IDC_CANCEL_READING));
        EXPECT_TRUE(::IsWindowVisible(window));
        EXPECT_TRUE(::IsWindowEnabled(::GetDlgItem(window, IDC_CANCEL_READING)));
    });
}

TEST_F(ProgressWindow, AUserCancelsALongConversion)
{
    WriteBytes(InFolder("satwecvt.msg"), "old log");
    CLibraryCall call;
    std::atomic<bool> isClicked = false;
    watch.onStep = [&](std::int64_t step, HWND) {
        if (step == 5000) {
            WaitUntil([&] { return isClicked.load(); });
        }
    };
    ASSERT_TRUE(ImportFiles(WriteStructure(300'000), WriteLoad()));
    const HWND window = WaitFor(FindProgressWindow);
    ASSERT_NE(nullptr, window);
    ASSERT_TRUE(WaitUntil([&] { return std::atoi(Text(window, IDC_PARSING_LINE).c_str()) > 1000; }));

    Click(window, IDC_CANCEL_READING);
    isClicked = true;

    EXPECT_EQ(1, call.Result());
    outputPath = call.OutputPath();
    ExpectNothingWritten();
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
    EXPECT_EQ(0, ConvertSmallBuilding());
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
    EXPECT_EQ(0, ConvertSmallBuilding());
    EXPECT_EQ(ExpectedModel(), ReadBytes(outputPath));
}

TEST_F(ProgressWindow, TheLastLineReadIsOnTheScreenWhileTheModelIsWritten)
{
    watch.onStatus = [](const std::string& status, HWND window) {
        if (status == "!!! Write Data File : Element !!!") {
            EXPECT_TRUE(IsDrawnWhole(::GetDlgItem(window, IDC_PARSING_LINE)));
        }
    };
    EXPECT_EQ(0, Convert(WriteStructure(2000), WriteLoad()));
}

TEST_F(ProgressWindow, IsDrawnWhole)
{
    constexpr int kComments = 2'000;
    watch.onStep = [&](std::int64_t step, HWND window) {
        const auto isTime = [&](double part) { return step == static_cast<std::int64_t>(kComments * part); };
        if (step == 1 || isTime(0.35) || isTime(0.7)) {
            const char* const name = step == 1 ? "progress-start" : isTime(0.35) ? "progress-third" : "progress-middle";
            EXPECT_TRUE(step == 1 || IsDrawnWhole(window));  // nothing of it has been drawn at the first step
            EXPECT_TRUE(SaveScreenshot(window, name));
        }
    };
    watch.onStatus = [](const std::string& status, HWND window) {
        if (status == "!!! Write Data File : Section !!!") {
            EXPECT_TRUE(IsDrawnWhole(window));
            EXPECT_TRUE(SaveScreenshot(window, "progress-writing"));
        }
    };
    EXPECT_EQ(0, Convert(WriteStructure(kComments), WriteLoad()));
}

}  // namespace
}  // namespace satwecvt

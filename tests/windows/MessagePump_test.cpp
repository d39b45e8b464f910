// What a host meets while the library hands out its messages: once for each line, and never while the model is written.

#include "ui/win32/resource.h"
#include "windows/HostWindow.h"
#include "windows/LibraryCall.h"
#include "windows/LibraryWindows.h"
#include "windows/StepWatch.h"
#include "windows/WindowsTest.h"

namespace satwecvt {
namespace {

class MessagePump : public CWindowsTest {
protected:
    /// Converts the small building for a host with a window, and `doBetween` with that window at every step.
    int Convert(const std::function<void(std::int64_t step, const CHostWindow& host)>& doBetween,
                const CHostWindow::CHandler& handler = {})
    {
        const CHostWindow* host = nullptr;
        watch.onStep = [&](std::int64_t step, HWND) { doBetween(step, *host); };
        CLibraryCall call([&](std::string& path) {
            const CHostWindow window(handler);
            host = &window;
            return ConvertFile2(path);
        });
        EXPECT_TRUE(ImportFiles(WriteStructure(), WriteLoad()));
        return call.Result();
    }

    /// Converts it for a host that gets a message of its own, posted at step 9 and handed out within step 10.
    int ConvertWithMessage(const std::function<void()>& onMessage)
    {
        return Convert(
            [](std::int64_t step, const CHostWindow& host) {
                if (step == 9) {
                    ::PostMessageW(host.Handle(), WM_APP, 0, 0);
                }
            },
            [&](const MSG& message) {
                if (message.message == WM_APP) {
                    onMessage();
                }
            });
    }

    CStepWatch watch;
};

bool hasCalledBack = false;

void CALLBACK CallBack(HWND, UINT, UINT_PTR timer, DWORD)
{
    hasCalledBack = true;
    ::KillTimer(nullptr, timer);
}

TEST_F(MessagePump, HandsOutMessagesOfEveryKind)
{
    constexpr WPARAM kChineseCharacter = 0x7ED3;
    hasCalledBack = false;
    int paintings = 0;
    EXPECT_EQ(0, Convert([&](std::int64_t step, const CHostWindow& host) {
                  if (step == 5) {
                      paintings = host.Count(WM_PAINT);
                      ::PostMessageW(host.Handle(), WM_APP, 1, 0);
                      ::PostMessageW(host.Handle(), WM_KEYDOWN, 'A', 1);
                      ::PostMessageW(host.Handle(), WM_KEYDOWN, VK_TAB, 1);
                      ::PostMessageW(host.Handle(), WM_CHAR, kChineseCharacter, 1);
                      ::SetTimer(host.Handle(), 7, USER_TIMER_MINIMUM, nullptr);
                      ::SetTimer(nullptr, 0, USER_TIMER_MINIMUM, CallBack);
                      ::InvalidateRect(host.Handle(), nullptr, TRUE);
                      ::Sleep(5 * USER_TIMER_MINIMUM);
                  } else if (step == 6) {
                      EXPECT_EQ(1, host.Count(WM_APP, 1));
                      EXPECT_EQ(1, host.Count(WM_CHAR, 'a')) << "no character made of the key";
                      EXPECT_EQ(1, host.Count(WM_KEYDOWN, VK_TAB)) << "taken for the progress window's";
                      EXPECT_EQ(1, host.Count(WM_CHAR, '\t'));
                      EXPECT_EQ(1, host.Count(WM_CHAR, kChineseCharacter));
                      EXPECT_LE(1, host.Count(WM_TIMER, 7));
                      EXPECT_TRUE(hasCalledBack);
                      EXPECT_LT(paintings, host.Count(WM_PAINT));
                  }
              }));
    EXPECT_EQ(kSteps, watch.Steps());
}

TEST_F(MessagePump, HandsOutWhatTheUserDoesWithTheHostsWindow)
{
    const UINT messages[] = {WM_MOUSEMOVE,   WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_MOUSEWHEEL,
                             WM_NCMOUSEMOVE, WM_SYSKEYUP,    WM_COMMAND,   WM_HOTKEY};
    constexpr WPARAM kOurs = 0x40;  // the user's mouse may send some, too
    Convert([&](std::int64_t step, const CHostWindow& host) {
        for (const UINT message : messages) {
            if (step == 5) {
                ::PostMessageW(host.Handle(), message, kOurs, 0);
            } else if (step == 6) {
                EXPECT_EQ(1, host.Count(message, kOurs)) << message;
            }
        }
    });
    EXPECT_EQ(kSteps, watch.Steps());
}

TEST_F(MessagePump, HandsOutAllThatWaitAtAStepInTheirOrder)
{
    constexpr WPARAM kMessages = 1000;
    ULONGLONG now = 1'000'000;
    const CLibraryImport<"GetTickCount64", ULONGLONG()> clock([&] { return now; });
    WPARAM next = 0;
    std::vector<WPARAM> beforeStep;
    const auto post = [&](std::int64_t step, const CHostWindow& host) {
        beforeStep.push_back(next);
        for (WPARAM i = 0; step == 5 && i < kMessages; ++i) {
            ::PostMessageW(host.Handle(), WM_APP, i, 0);
        }
    };
    const auto count = [&](const MSG& message) {
        now += 1000;  // however long the host takes for each
        next += message.message == WM_APP && message.wParam == next ? 1U : 0U;
    };
    EXPECT_EQ(0, Convert(post, count));
    ASSERT_LE(6U, beforeStep.size());
    EXPECT_EQ(0U, beforeStep[4]);
    EXPECT_EQ(kMessages, beforeStep[5]);
}

TEST_F(MessagePump, HandsOutMessagesBeforeTheLineIsShown)
{
    std::string shown;
    ConvertWithMessage([&] { shown = Text(FindProgressWindow(), IDC_PARSING_LINE); });
    EXPECT_EQ("8", shown);  // the ninth step's
}

TEST_F(MessagePump, AHandlerThatCallsInAgainGetsMinus1)
{
    int inner = 0;
    EXPECT_EQ(0, ConvertWithMessage([&] { inner = ConvertFile(); }));
    EXPECT_EQ(-1, inner);
    EXPECT_EQ(ExpectedModel(), ReadBytes(InFolder("tower.vkm")));
}

TEST_F(MessagePump, ATimerThatCallsInAgainGetsMinus1EachTime)
{
    constexpr int kTicks = 3;
    int ticks = 0;
    int results = 0;
    const auto startAndWait = [](std::int64_t step, const CHostWindow& host) {
        if (step == 1) {
            ::SetTimer(host.Handle(), 7, USER_TIMER_MINIMUM, nullptr);
        }
        ::Sleep(USER_TIMER_MINIMUM);
    };
    const auto callIn = [&](const MSG& message) {
        if (message.message == WM_TIMER && ticks < kTicks) {
            ++ticks;
            results += ConvertFile();
        }
    };
    EXPECT_EQ(0, Convert(startAndWait, callIn));
    EXPECT_EQ(kTicks, ticks);
    EXPECT_EQ(-kTicks, results);
    EXPECT_EQ(ExpectedModel(), ReadBytes(InFolder("tower.vkm")));
}

TEST_F(MessagePump, AModalLoopOfTheHostHoldsTheReadingUp)
{
    constexpr const char* kQuestion = "A question of the host";
    std::int64_t stepAtTheQuestion = 0;
    std::int64_t stepAtTheAnswer = 0;
    const CHostWindow* host = nullptr;
    watch.onStep = [&](std::int64_t step, HWND) {
        if (step == 9) {
            ::PostMessageW(host->Handle(), WM_APP, 0, 0);
        }
    };
    CLibraryCall call([&](std::string& path) {
        const CHostWindow window([&](const MSG& message) {
            if (message.message == WM_APP) {
                stepAtTheQuestion = watch.Steps();
                ::MessageBoxA(message.hwnd, "May it go on?", kQuestion, MB_OK);
                stepAtTheAnswer = watch.Steps();
            }
        });
        host = &window;
        return ConvertFile2(path);
    });
    ASSERT_TRUE(ImportFiles(WriteStructure(), WriteLoad()));
    HWND box = nullptr;
    ASSERT_TRUE(WaitUntil([&] { return ::IsWindowVisible(box = ::FindWindowA(nullptr, kQuestion)) != 0; }));
    EXPECT_FALSE(call.HasEnded());
    EXPECT_TRUE(::IsWindowVisible(watch.Window()));
    CloseBox(box);
    EXPECT_EQ(0, call.Result());
    EXPECT_EQ(9, stepAtTheQuestion);
    EXPECT_EQ(9, stepAtTheAnswer);
    EXPECT_EQ(kSteps, watch.Steps());
    EXPECT_EQ(ExpectedModel(), ReadBytes(InFolder("tower.vkm")));
}

TEST_F(MessagePump, AProgressWindowThatTheHostDestroysIsDoneWithout)
{
    EXPECT_EQ(0, ConvertWithMessage([&] { EXPECT_TRUE(::DestroyWindow(watch.Window())); }));
    EXPECT_EQ(kSteps, watch.Steps());
    EXPECT_EQ(ExpectedModel(), ReadBytes(InFolder("tower.vkm")));
}

TEST_F(MessagePump, TabAndEnterPressTheCancelButtonOfTheProgressWindow)
{
    const auto press = [this](std::int64_t step, const CHostWindow&) {
        if (step == 9) {
            const HWND button = ::GetDlgItem(watch.Window(), IDC_CANCEL_READING);
            ::SetFocus(button);
            // Tab goes from the only stop to the same one, and makes it the default button.
            ::PostMessageW(button, WM_KEYDOWN, VK_TAB, 1);
            ::PostMessageW(button, WM_KEYDOWN, VK_RETURN, 1);
        }
    };
    EXPECT_EQ(1, Convert(press));
    EXPECT_EQ(10, watch.Steps());
}

TEST_F(MessagePump, HandsOutWhatWaitsBehindAClickOnCancel)
{
    int handedOut = 0;
    EXPECT_EQ(1, Convert([&](std::int64_t step, const CHostWindow& host) {
                  if (step == 9) {
                      Click(watch.Window(), IDC_CANCEL_READING);
                      ::PostMessageW(host.Handle(), WM_APP, 0, 0);
                  } else if (step == 10) {
                      handedOut = host.Count(WM_APP);
                  }
              }));
    EXPECT_EQ(10, watch.Steps());
    EXPECT_EQ(1, handedOut);
}

TEST_F(MessagePump, AWindowOfTheHostThatComesToTheFrontStaysThere)
{
    int looks = 0;
    int inFront = 0;
    const CHostWindow* hostWindow = nullptr;
    const auto look = [&] {
        const std::vector<HWND> fromFrontToBack = OpenWindows();
        ++looks;
        inFront += hostWindow->IsInFront() && fromFrontToBack.front() == hostWindow->Handle() ? 1 : 0;
    };
    watch.onStatus = [&](const std::string&, HWND) {
        if (watch.Steps() > 0) {
            look();
        }
    };
    EXPECT_EQ(0, Convert([&](std::int64_t step, const CHostWindow& host) {
                  hostWindow = &host;
                  if (step == 5) {
                      ::BringWindowToTop(host.Handle());
                      ::SetForegroundWindow(host.Handle());
                  }
                  if (step >= 5) {
                      look();
                  }
              }));
    EXPECT_LT(kSteps, looks);
    EXPECT_EQ(looks, inFront);
}

/// What the user did with the host's window at the wrong moment is not lost: the host's own loop finds it.
class MessagePumpLeavesInput : public MessagePump {
protected:
    static void Use(HWND host)
    {
        ::PostMessageW(host, WM_KEYDOWN, 'A', 1);
        ::PostMessageW(host, WM_LBUTTONDOWN, MK_LBUTTON, 0);
        ::PostMessageW(host, WM_APP, 0, 0);
    }

    /// Converts, has `Use` called at some moment of the call's end, and expects its messages in the host's own loop.
    void ExpectAllIsFound(int expectedResult, HWND& hostWindow)
    {
        CLibraryCall call([&](std::string& path) {
            CHostWindow window;
            hostWindow = window.Handle();
            const int result = ConvertFile2(path);
            EXPECT_EQ(0, window.Count(WM_APP));
            EXPECT_TRUE(PumpUntil([&] { return window.Count(WM_APP) == 1; }));
            EXPECT_EQ(1, window.Count(WM_KEYDOWN, 'A'));
            EXPECT_EQ(1, window.Count(WM_LBUTTONDOWN));
            return result;
        });
        EXPECT_TRUE(ImportFiles(WriteStructure(), WriteLoad()));
        EXPECT_EQ(expectedResult, call.Result());
    }
};

TEST_F(MessagePumpLeavesInput, AtACancel)
{
    HWND host = nullptr;
    watch.onStep = [&](std::int64_t step, HWND window) {
        if (step == 9) {
            ::SendMessageA(::GetDlgItem(window, IDC_CANCEL_READING), BM_CLICK, 0, 0);
            Use(host);
        }
    };
    ExpectAllIsFound(1, host);
    EXPECT_EQ(9, watch.Steps());
}

TEST_F(MessagePumpLeavesInput, WhileTheModelIsWritten)
{
    HWND host = nullptr;
    watch.onStatus = [&](const std::string& status, HWND) {
        if (status == "!!! Write Data File : Node !!!") {
            Use(host);
        }
    };
    ExpectAllIsFound(0, host);
}

TEST_F(MessagePump, NothingIsHandedOutWhileTheModelIsWritten)
{
    bool isWriting = false;
    bool hasWaited = false;
    int looks = 0;
    CLibraryImport<"PeekMessageW", BOOL(LPMSG, HWND, UINT, UINT, UINT)> peek([&](auto... arguments) {
        looks += isWriting ? 1 : 0;
        return peek.System(arguments...);
    });
    CHostWindow* host = nullptr;
    watch.onStatus = [&](const std::string& status, HWND) {
        if (status == "!!! Write Data File : Node !!!") {
            isWriting = true;
            ::PostMessageW(host->Handle(), WM_APP, 0, 0);
        }
    };
    CLibraryCall call([&](std::string& path) {
        CHostWindow window;
        host = &window;
        const int result = ConvertFile2(path);
        hasWaited = window.Count(WM_APP) == 0;
        EXPECT_TRUE(PumpUntil([&] { return window.Count(WM_APP) == 1; }));
        return result;
    });
    ASSERT_TRUE(ImportFiles(WriteStructure(), WriteLoad()));
    EXPECT_EQ(0, call.Result());
    EXPECT_TRUE(isWriting);
    EXPECT_TRUE(hasWaited);
    EXPECT_EQ(0, looks);
    EXPECT_EQ(kSteps, watch.Steps()) << "Escape was asked for while the model was written";
}

}  // namespace
}  // namespace satwecvt

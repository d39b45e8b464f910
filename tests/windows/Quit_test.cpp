// A host that ends (WM_QUIT) while the library works: the call ends as it has to, and the host's own loop finds the
// message afterwards.

#include "ui/win32/resource.h"
#include "windows/LibraryCall.h"
#include "windows/LibraryWindows.h"
#include "windows/StepWatch.h"
#include "windows/WindowsTest.h"

#include <filesystem>

namespace satwecvt {
namespace {

namespace fs = std::filesystem;

constexpr int kQuitCode = 42;

class Quit : public CWindowsTest {
protected:
    /// A host that, after the call, takes WM_QUIT from its queue, as its loop would.
    CLibraryCall::CHostCode Host(std::function<void()> doBefore = [] {})
    {
        return [this, doBefore](std::string& path) {
            doBefore();
            const int result = ConvertFile2(path);
            MSG message{};
            if (::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) != 0) {
                foundCode = static_cast<int>(message.wParam);
            }
            isFoundAgain = ::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) != 0;
            return result;
        };
    }

    static void PostQuit(const CLibraryCall& call) { ::PostThreadMessageW(call.ThreadId(), WM_QUIT, kQuitCode, 0); }

    void TearDown() override
    {
        EXPECT_EQ(kQuitCode, foundCode);
        EXPECT_FALSE(isFoundAgain);
        CWindowsTest::TearDown();
    }

    void ExpectNothingWritten() const
    {
        EXPECT_FALSE(fs::exists(InFolder("tower.vkm")));
        EXPECT_FALSE(fs::exists(InFolder("satwecvt.msg")));
    }

    CStepWatch watch;
    int foundCode = -1;
    bool isFoundAgain = false;
};

TEST_F(Quit, BeforeTheCallCancels)
{
    CLibraryCall call(Host([] { ::PostQuitMessage(kQuitCode); }));
    EXPECT_EQ(1, call.Result());
    EXPECT_EQ(CLibraryCall::kUntouched, call.OutputPath());
}

TEST_F(Quit, DuringTheImportDialogCancels)
{
    CLibraryCall call(Host());
    ASSERT_NE(nullptr, WaitFor(FindImportDialog));
    PostQuit(call);
    EXPECT_EQ(1, call.Result());
    EXPECT_EQ(CLibraryCall::kUntouched, call.OutputPath());
}

TEST_F(Quit, DuringTheFileDialogCancels)
{
    CLibraryCall call(Host());
    const HWND dialog = WaitFor(FindImportDialog);
    Paste(::GetDlgItem(dialog, IDC_STRUCTURE_PATH), WriteStructure());
    Paste(::GetDlgItem(dialog, IDC_LOAD_PATH), WriteLoad());
    Click(dialog, IDC_BROWSE_LOAD);
    ASSERT_NE(nullptr, WaitFor(FindFileDialog));
    PostQuit(call);
    EXPECT_EQ(1, call.Result());
    ExpectNothingWritten();
}

TEST_F(Quit, DuringReadingCancelsAtThatStep)
{
    watch.onStep = [](std::int64_t step, HWND) {
        if (step == 9) {
            ::PostQuitMessage(kQuitCode);
        }
    };
    CLibraryCall call(Host());
    ASSERT_TRUE(ImportFiles(WriteStructure(), WriteLoad()));
    EXPECT_EQ(1, call.Result());
    EXPECT_EQ(10, watch.Steps());
    EXPECT_FALSE(::IsWindow(watch.Window()));
    ExpectNothingWritten();
}

TEST_F(Quit, WhileTheModelIsWrittenWaitsForTheEnd)
{
    watch.onStatus = [](const std::string& status, HWND) {
        if (status == "!!! Write Data File : Element !!!") {
            ::PostQuitMessage(kQuitCode);
        }
    };
    CLibraryCall call(Host());
    ASSERT_TRUE(ImportFiles(WriteStructure(), WriteLoad()));
    EXPECT_EQ(0, call.Result());
    EXPECT_EQ(ExpectedModel(), ReadBytes(InFolder("tower.vkm")));
}

TEST_F(Quit, DuringAMessageBoxClosesTheBox)
{
    CLibraryCall call(Host());
    ASSERT_TRUE(ImportFiles(InFolder("no such file.sat"), WriteLoad()));
    ASSERT_NE(nullptr, WaitFor(FindMessageBox));
    PostQuit(call);
    EXPECT_EQ(-1, call.Result());
    ExpectNothingWritten();
}

}  // namespace
}  // namespace satwecvt

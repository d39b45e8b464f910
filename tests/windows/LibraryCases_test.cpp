// The whole-file cases of tests/cases and the tower, converted by the library with its windows: what the user sees and
// the bytes of the files have to be those of the conversion without windows.

#include "support/Cases.h"
#include "support/Conversion.h"
#include "ui/win32/resource.h"
#include "windows/LibraryCall.h"
#include "windows/LibraryWindows.h"
#include "windows/StepWatch.h"
#include "windows/WindowsTest.h"

#include <nlohmann/json.hpp>

#include <filesystem>

namespace satwecvt {
namespace {

namespace fs = std::filesystem;

/// Converts structure.sat and load.sat of the working folder, closes the boxes and keeps their messages.
int ConvertAndAnswer(std::vector<std::string>& messages)
{
    CLibraryCall call;
    if (!ImportFiles(fs::absolute("structure.sat").string(), fs::absolute("load.sat").string())) {
        return CLibraryCall::kNoResult;
    }
    WaitUntil([&] {
        if (const HWND box = FindMessageBox()) {
            messages.push_back(BoxMessage(box));
            CloseBox(box);
            WaitUntil([&] { return ::IsWindow(box) == 0; });
        }
        return call.HasEnded();
    });
    return call.Result();
}

class LibraryCases : public CWindowsTest, public testing::WithParamInterface<std::string> {};

TEST_P(LibraryCases, ConvertAsWithoutWindows)
{
    const fs::path from = fs::path(SATWECVT_CASES) / GetParam();
    const auto about = nlohmann::json::parse(ReadBytes(from / "case.json").value());
    CopyInputs(from);
    CStepWatch watch;
    std::string total;
    watch.onStep = [&](std::int64_t step, HWND window) {
        total = step == 1 ? Text(window, IDC_TOTAL_LINE) : total;
        if (step == about.value("cancelAtStep", 0)) {
            ::SendMessageA(::GetDlgItem(window, IDC_CANCEL_READING), BM_CLICK, 0, 0);
        }
    };

    std::vector<std::string> messages;
    EXPECT_EQ(about.at("result"), ConvertAndAnswer(messages));

    EXPECT_EQ(about.value("messages", std::vector<std::string>{}), messages);
    EXPECT_EQ(about.value("steps", watch.Steps()), watch.Steps());
    if (watch.Steps() > 0 && about.contains("totalLines")) {
        EXPECT_EQ(std::to_string(about.at("totalLines").get<int>()), total);
    }
    ExpectBytes(ReadBytes(from / "expected.vkm"), ReadBytes("structure.vkm"));
    ExpectBytes(ReadBytes(from / "expected.msg"), ReadBytes("satwecvt.msg"));
}

INSTANTIATE_TEST_SUITE_P(All, LibraryCases, testing::ValuesIn(CaseNames()), CaseTestName);

using Tower = CWindowsTest;

TEST_F(Tower, ConvertsAsWithoutWindows)
{
    CopyInputs(SATWECVT_SAMPLES "/tower");
    CScriptedInterface noScreen;
    const CConversionResult expected = ConvertWorkingFolder(noScreen);
    ASSERT_EQ(0, expected.result);
    fs::remove("structure.vkm");
    fs::remove("satwecvt.msg");

    std::vector<std::string> messages;
    EXPECT_EQ(0, ConvertAndAnswer(messages));

    EXPECT_TRUE(messages.empty());
    ExpectBytes(expected.model, ReadBytes("structure.vkm"));
    ExpectBytes(expected.messageLog, ReadBytes("satwecvt.msg"));
}

}  // namespace
}  // namespace satwecvt

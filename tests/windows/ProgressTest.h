// A conversion whose progress window a test looks at and uses, at exact steps.
#pragma once

#include "windows/LibraryCall.h"
#include "windows/StepWatch.h"
#include "windows/WindowsTest.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>

namespace satwecvt {

class CProgressTest : public CWindowsTest {
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

    int ConvertSmallBuilding() { return Convert(WriteStructure(), WriteLoad()); }

    /// Does something with the window at the step of this number, before the library looks for a cancel.
    void AtStep(std::int64_t step, const std::function<void(HWND)>& act)
    {
        watch.onStep = [=](std::int64_t now, HWND window) {
            if (now == step) {
                act(window);
            }
        };
    }

    /// Cancels at a step by some means and expects that the conversion ends there, with nothing written.
    void ExpectCancelAt(std::int64_t step, const std::function<void(HWND)>& cancel)
    {
        AtStep(step, cancel);
        ExpectCancelledAt(step);
    }

    /// Converts and expects that it is cancelled at that step, with nothing written and the old log as it was.
    void ExpectCancelledAt(std::int64_t step)
    {
        WriteBytes(InFolder("satwecvt.msg"), "old log");
        EXPECT_EQ(1, ConvertSmallBuilding());
        EXPECT_EQ(step, watch.Steps());
        ExpectNothingWritten();
    }

    void ExpectNothingWritten() const
    {
        EXPECT_EQ(CLibraryCall::kUntouched, outputPath);
        EXPECT_FALSE(std::filesystem::exists(InFolder("tower.vkm")));
        EXPECT_EQ("old log", ReadBytes(InFolder("satwecvt.msg")));
        EXPECT_FALSE(::IsWindow(watch.Window()));
    }

    /// The first step at which a line of the load file is read.
    static constexpr int kFirstLoadStep = kSteps - kLoadLines + 1;

    CStepWatch watch;
    std::string outputPath;
};

}  // namespace satwecvt

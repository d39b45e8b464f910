// What the host calls. A compiler whose std::string is of no kind that a host can have does not build it.

#define SATWECVT_USE_CONVERTFILE2

#include "driver/win32/HostCall.h"
#include "driver/win32/QuarnellApp.h"
#include "satwecvt/ConvertSatwe.h"
#include "satwecvt/satwecvt.h"
#include "ui/win32/DlgPKPMImport.h"
#include "ui/win32/WindowsInterface.h"

#include <string>

namespace satwecvt {

static_assert(kWritten == SATWECVT_WRITTEN && kCancelled == SATWECVT_CANCELLED && kFailed == SATWECVT_FAILED);

namespace {

/// Asks the user for the two files and converts them.
int ConvertChosenFiles(std::string& outputPath)
{
    CDlgPKPMImport dialog(theApp.Resources());
    if (dialog.DoModal() != IDOK) {
        return kCancelled;
    }
    std::string structurePath;
    std::string loadPath;
    dialog.GetPaths(structurePath, loadPath);
    if (structurePath.empty() || loadPath.empty()) {
        return kFailed;
    }
    const CWaitCursor waitCursor;
    CWindowsInterface userInterface(theApp.Resources());
    CConvertSatwe converter(userInterface);
    const int result = converter.Convert(structurePath.c_str(), loadPath.c_str());
    if (result == kWritten) {
        outputPath = converter.Report().paths.model;
    }
    return result;
}

}  // namespace

}  // namespace satwecvt

extern "C" int ConvertFile2(std::string& outputPath) noexcept
{
    using namespace satwecvt;
    const CHostCall call(theApp.Resources());
    if (!call.IsFirst()) {
        return kFailed;
    }
    try {
        return ConvertChosenFiles(outputPath);
    } catch (...) {
        return kFailed;  // no memory: nothing escapes into the host
    }
}

extern "C" int ConvertFile() noexcept
{
    std::string droppedPath;
    return ConvertFile2(droppedPath);
}

#include "windows/LibraryCall.h"

#include "ui/win32/resource.h"
#include "windows/LibraryWindows.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace satwecvt {

namespace {

template <typename TFunction>
TFunction* Export(const char* name)
{
    void* const address = reinterpret_cast<void*>(::GetProcAddress(Library(), name));
    if (address == nullptr) {
        std::fprintf(stderr, "satwecvt.dll cannot be loaded or does not export %s\n", name);
        std::exit(70);
    }
    return reinterpret_cast<TFunction*>(address);
}

/// A crash ends the program at once: the system would wait for a debugger.
LONG WINAPI EndProgram(EXCEPTION_POINTERS* exception)
{
    std::fprintf(stderr, "Exception %08lx in the test program\n", exception->ExceptionRecord->ExceptionCode);
    std::fflush(nullptr);
    ::TerminateProcess(::GetCurrentProcess(), 70);
    return EXCEPTION_EXECUTE_HANDLER;
}

BOOL CALLBACK Append(HWND window, LPARAM windows)
{
    if (ClassName(window) != "ime") {
        *reinterpret_cast<std::string*>(windows) += '"' + Text(window) + "\" " + ClassName(window) + ' ';
    }
    return TRUE;
}

/// The titles and classes of the thread's windows, hidden ones too, but without those of the input method.
std::string WindowsOfThisThread()
{
    std::string windows;
    ::EnumThreadWindows(::GetCurrentThreadId(), Append, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

HMODULE LoadOnce()
{
    ::SetUnhandledExceptionFilter(EndProgram);
    return ::LoadLibraryA("satwecvt.dll");
}

}  // namespace

HMODULE Library()
{
    static const HMODULE library = LoadOnce();
    return library;
}

int ConvertFile()
{
    return Export<int()>("ConvertFile")();
}

int ConvertFile2(std::string& outputPath)
{
    return Export<int(std::string&)>("ConvertFile2")(outputPath);
}

CLibraryCall::CLibraryCall(CHostCode hostCode) : thread([this, code = std::move(hostCode)] { Run(code); })
{
    WaitUntil([this] { return threadId != 0; });
}

CLibraryCall::~CLibraryCall()
{
    End();
    thread.join();
}

void CLibraryCall::End()
{
    const bool hasEnded = WaitUntil([this] {
        if (!ended) {
            CloseAllWindows();
        }
        return ended.load();
    });
    if (!hasEnded) {
        std::fprintf(stderr, "The call does not end: the test program gives up.\n");
        std::fflush(nullptr);
        ::TerminateProcess(::GetCurrentProcess(), 70);
    }
}

int CLibraryCall::Result()
{
    return WaitUntil([this] { return ended.load(); }) ? result : kNoResult;
}

std::string CLibraryCall::OutputPath()
{
    return Result() == kNoResult ? "" : outputPath;
}

void CLibraryCall::Run(const CHostCode& hostCode)
{
    threadId = ::GetCurrentThreadId();
    result = hostCode(outputPath);
    EXPECT_EQ("", WindowsOfThisThread()) << "are left";  // the system destroys them with the thread, which ends now
    ended = true;
}

bool ImportFiles(const std::string& structurePath, const std::string& loadPath)
{
    const HWND dialog = WaitFor(FindImportDialog);
    if (dialog == nullptr) {
        return false;
    }
    Paste(::GetDlgItem(dialog, IDC_STRUCTURE_PATH), structurePath);
    Paste(::GetDlgItem(dialog, IDC_LOAD_PATH), loadPath);
    Click(dialog, IDOK);
    return true;
}

}  // namespace satwecvt

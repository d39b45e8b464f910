// A call of the library as a host makes it: on a thread of its own, while the test looks at the windows and uses them.
#pragma once

#include <windows.h>

#include <atomic>
#include <functional>
#include <string>
#include <thread>

namespace satwecvt {

/// The library, loaded from the folder of the test program at its first use and kept.
HMODULE Library();

// The two exports.
int ConvertFile();
int ConvertFile2(std::string& outputPath);

class CLibraryCall {
public:
    static constexpr int kNoResult = -99;
    static constexpr const char* kUntouched = "untouched";

    /// What the host's thread does; it returns the result of the call. No window of the thread may be left then.
    using CHostCode = std::function<int(std::string& outputPath)>;
    explicit CLibraryCall(CHostCode hostCode = ConvertFile2);

    ~CLibraryCall();
    CLibraryCall(const CLibraryCall&) = delete;
    CLibraryCall& operator=(const CLibraryCall&) = delete;

    bool HasEnded() const { return ended; }
    DWORD ThreadId() const { return threadId; }

    /// Closes the windows of a call that the test has left open. A call that does not end then ends the program: a hung
    /// dialog is a failure, and nothing that runs after it could be trusted.
    void End();

    /// Waits for the call's end; `kNoResult` when it does not come.
    int Result();

    /// What the host finds in its string after the call; `kUntouched` before.
    std::string OutputPath();

private:
    void Run(const CHostCode& hostCode);

    std::atomic<bool> ended = false;
    std::atomic<DWORD> threadId = 0;
    int result = kNoResult;
    std::string outputPath = kUntouched;
    std::thread thread;
};

/// Fills in the import dialog and confirms it. Returns whether the dialog came.
bool ImportFiles(const std::string& structurePath, const std::string& loadPath);

}  // namespace satwecvt

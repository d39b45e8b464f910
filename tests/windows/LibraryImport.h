// A function of the system that the library imports, with the test in between: it sees each call with its arguments,
// and gives the answer. So a test can act at an exact moment, and see what the library asks the system for.
#pragma once

#include <windows.h>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <utility>

namespace satwecvt {

/// The entry of the library's table of imports that holds the address of a function. Without such an entry the test
/// program ends: nothing that needs it could be trusted.
ULONG_PTR& ImportEntry(const char* function);

/// Writes an entry of the table, which the system protects.
void SetImportEntry(ULONG_PTR& entry, ULONG_PTR address);

static_assert(sizeof(void*) == 8, "32 bits have calling conventions, which differ from function to function");

template <std::size_t kSize>
struct CFunctionName {
    consteval CFunctionName(const char (&name)[kSize]) { std::copy_n(name, kSize, text); }
    char text[kSize]{};
};

template <CFunctionName kName, typename TFunction>
class CLibraryImport;

/// `CLibraryImport<"MessageBeep", BOOL(UINT)>`. When a function has two, the later one is asked first. The function may
/// not be called while one comes or goes.
template <CFunctionName kName, typename TResult, typename... TArguments>
class CLibraryImport<kName, TResult(TArguments...)> {
public:
    explicit CLibraryImport(std::function<TResult(TArguments...)> answerOfTheTest)
        : outer(std::exchange(current, this)),
          entry(ImportEntry(kName.text)),
          systems(entry),
          answer(std::move(answerOfTheTest))
    {
        SetImportEntry(entry, reinterpret_cast<ULONG_PTR>(&Answer));
    }
    ~CLibraryImport()
    {
        SetImportEntry(entry, systems);
        current = outer;
    }
    CLibraryImport(const CLibraryImport&) = delete;
    CLibraryImport& operator=(const CLibraryImport&) = delete;

    /// Asks the system, or the one behind.
    TResult System(TArguments... arguments) const
    {
        return outer != nullptr ? outer->answer(arguments...)
                                : reinterpret_cast<TResult(WINAPI*)(TArguments...)>(systems)(arguments...);
    }

private:
    static TResult WINAPI Answer(TArguments... arguments) { return current->answer(arguments...); }

    static inline CLibraryImport* current = nullptr;
    CLibraryImport* const outer;
    ULONG_PTR& entry;
    const ULONG_PTR systems;
    const std::function<TResult(TArguments...)> answer;
};

}  // namespace satwecvt

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

template <std::size_t kSize>
struct CFunctionName {
    consteval CFunctionName(const char (&name)[kSize]) { std::copy_n(name, kSize, text); }
    char text[kSize]{};
};

/// How a function of 32 bits is called; those of 64 bits are all called in the same way.
enum class ECalled { AsWindows, AsC };

template <CFunctionName kName, typename TFunction, ECalled kCalled = ECalled::AsWindows>
class CLibraryImport;

/// `CLibraryImport<"MessageBeep", BOOL(UINT)>`. When a function has two, the later one is asked first. The function may
/// not be called while one comes or goes.
template <CFunctionName kName, typename TResult, typename... TArguments, ECalled kCalled>
class CLibraryImport<kName, TResult(TArguments...), kCalled> {
public:
    explicit CLibraryImport(std::function<TResult(TArguments...)> answerOfTheTest)
        : outer(std::exchange(current, this)),
          entry(ImportEntry(kName.text)),
          systems(entry),
          answer(std::move(answerOfTheTest))
    {
        if constexpr (kCalled == ECalled::AsC) {
            SetImportEntry(entry, reinterpret_cast<ULONG_PTR>(&AnswerC));
        } else {
            SetImportEntry(entry, reinterpret_cast<ULONG_PTR>(&AnswerWindows));
        }
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
        if (outer != nullptr) {
            return outer->answer(arguments...);
        }
        if constexpr (kCalled == ECalled::AsC) {
            return reinterpret_cast<TResult (*)(TArguments...)>(systems)(arguments...);
        } else {
            return reinterpret_cast<TResult(WINAPI*)(TArguments...)>(systems)(arguments...);
        }
    }

private:
    static TResult AnswerC(TArguments... arguments) { return current->answer(arguments...); }
    static TResult WINAPI AnswerWindows(TArguments... arguments) { return current->answer(arguments...); }

    static inline CLibraryImport* current = nullptr;
    CLibraryImport* const outer;
    ULONG_PTR& entry;
    const ULONG_PTR systems;
    const std::function<TResult(TArguments...)> answer;
};

}  // namespace satwecvt

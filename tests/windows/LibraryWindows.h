// Windows of the library, seen and used from outside: found by title, read, clicked and typed into as a user does.
// Every wait has a limit. All functions may be called from a thread other than the one that owns the windows.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

namespace satwecvt {

constexpr const char* kImportTitle = "PKPM Import";
constexpr const char* kProgressTitle = "Conversion Progress Window";

/// Returns whether the condition came true within the time limit of the tests.
bool WaitUntil(const std::function<bool()>& condition);

/// The visible top-level windows of a process, hidden ones and those of the input method left out.
std::vector<HWND> OpenWindows(DWORD process = ::GetCurrentProcessId());

// Each returns null when there is no such window.
HWND FindImportDialog(DWORD process = ::GetCurrentProcessId());
HWND FindProgressWindow(DWORD process = ::GetCurrentProcessId());
HWND FindMessageBox(DWORD process = ::GetCurrentProcessId());  // of the library's own title
HWND FindFileDialog(DWORD process = ::GetCurrentProcessId());
HWND FindFileDialogBut(const std::vector<HWND>& windows);  // one that is none of these

/// Waits for a window: `WaitFor(FindImportDialog)`; null when it does not come.
HWND WaitFor(HWND (*find)(DWORD), DWORD process = ::GetCurrentProcessId());

/// What a window or control says; empty when its thread does not answer in time.
std::string Text(HWND window);
std::string Text(HWND dialog, int control);

/// The message of a message box.
std::string BoxMessage(HWND box);

/// The type face and the size in points of a control's font.
std::string FontName(HWND window);
int FontPoints(HWND window);

/// The window of a thread that has the focus; null when none has it.
HWND FocusOf(DWORD thread);

/// The window's class, in lower case.
std::string ClassName(HWND window);

/// Replaces the text of an edit control by typing, character by character.
void Type(HWND edit, const std::string& text);

/// Replaces the text of an edit control at once, as pasting does.
void Paste(HWND edit, const std::string& text);

/// Clicks with the left mouse button on a button.
void Click(HWND button);
void Click(HWND dialog, int control);

/// Clicks on the only button of a message box. It is OK's in Wine; Windows gives it Cancel's number.
void CloseBox(HWND box);

/// Presses and releases a key on the keyboard, wherever the focus is.
void PressKey(WORD key);

/// Closes whatever is open, as a user would who has lost patience.
void CloseAllWindows();

}  // namespace satwecvt

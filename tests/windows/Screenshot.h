#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace satwecvt {

/// Saves what the screen shows where the window stands, as NAME.png in the build tree's folder of screenshots. Returns
/// whether the picture was written.
bool SaveScreenshot(HWND window, const std::string& name);

/// The bytes of what the screen shows where the window stands.
std::vector<char> ScreenBytes(HWND window);

/// Whether the screen shows of the window what drawing all of it again shows.
bool IsDrawnWhole(HWND window);

}  // namespace satwecvt

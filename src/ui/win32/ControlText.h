#pragma once

#include <windows.h>

#include <string>

namespace satwecvt {

/// The text of a control, however long.
inline std::string ControlText(HWND control)
{
    std::string text(static_cast<std::size_t>(::GetWindowTextLengthA(control)) + 1, '\0');
    const int length = ::GetWindowTextA(control, text.data(), static_cast<int>(text.size()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

}  // namespace satwecvt

// A dialog on the screen, compared with the template that it has to be built from.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace satwecvt {

struct CTemplate {
    std::string title;
    SIZE size;         // of the client area, in dialog units
    DWORD style;       // all but WS_VISIBLE
    std::string font;  // of the controls
    int points;
};

struct CTemplateControl {
    int id;
    std::string className;
    std::string text;
    RECT place;   // in dialog units: left, top, width, height
    DWORD style;  // all but WS_CHILD and WS_VISIBLE
    DWORD extendedStyle = WS_EX_NOPARENTNOTIFY;
};

/// Compares a dialog with a modal frame and without an owner, and every control in the template's order, with what
/// stands on the screen.
void ExpectTemplate(HWND dialog, const CTemplate& expectedDialog, const std::vector<CTemplateControl>& controls);

/// No text is longer than its control, no control stands outside the dialog, and none covers another (group boxes
/// surround theirs).
void ExpectNothingCutOffOrCovered(HWND dialog);

}  // namespace satwecvt

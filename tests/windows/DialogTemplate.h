// A dialog on the screen, compared with the template that it has to be built from.
#pragma once

#include <windows.h>

#include <vector>

namespace satwecvt {

struct CTemplateControl {
    int id;
    const char* className;
    const char* text;
    RECT place;   // in dialog units: left, top, width, height
    DWORD style;  // bits that have to be set
};

/// Compares the size of the dialog's client area and every control, in the template's order, with what stands there.
void ExpectTemplate(HWND dialog, SIZE size, const std::vector<CTemplateControl>& controls);

/// No text is longer than its control, no control stands outside the dialog, and none covers another (group boxes
/// surround theirs).
void ExpectNothingCutOffOrCovered(HWND dialog);

}  // namespace satwecvt

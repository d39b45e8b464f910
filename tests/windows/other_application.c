/* Another application in front of the library's windows, with the focus. It ends when Escape is pressed. */
#include <windows.h>

static LRESULT CALLBACK EndAtEscape(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_KEYDOWN && wParam == VK_ESCAPE) {
        PostQuitMessage(0);
        return 0;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

int main(void)
{
    WNDCLASSA about = {0};
    HWND window;
    MSG message;

    about.lpfnWndProc = EndAtEscape;
    about.lpszClassName = "other application";
    RegisterClassA(&about);
    window = CreateWindowA("other application", "another application", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 300, 0, 300,
                           150, NULL, NULL, NULL, NULL);
    SetForegroundWindow(window);
    while (GetMessageA(&message, NULL, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    return 0;
}

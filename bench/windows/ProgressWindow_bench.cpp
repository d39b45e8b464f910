// What the progress window costs a conversion: one model is converted with three windows in turn, and the medians are
// printed with their ratios. Run it on a screen of its own: scripts/wine-desktop-run progress_window_bench.exe ...
#include "driver/win32/HostCall.h"
#include "satwecvt/ConvertSatwe.h"
#include "ui/win32/PrgsDlg.h"

#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace satwecvt {

namespace {

/// The conversion without a window, as the program runs it.
class CNoWindow : public CProgressWindow {
public:
    explicit CNoWindow(HINSTANCE) {}
    void SetTotalLines(std::int32_t) override {}
    int StepLine(std::int32_t) override { return 1; }
    void SetStageText(std::string_view) override {}
};

/// What no window of the library may leave out at a line: the thread's messages, and a look at the Escape key.
class CPollAlone : public CNoWindow {
public:
    using CNoWindow::CNoWindow;
    int StepLine(std::int32_t) override
    {
        MSG message;
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
            ::TranslateMessage(&message);
            ::DispatchMessageW(&message);
        }
        return (::GetAsyncKeyState(VK_ESCAPE) & 1) == 0 ? 1 : 0;
    }
};

template <class Window>
class CWithWindow : public CUserInterface {
public:
    explicit CWithWindow(HINSTANCE resources) : module(resources) {}
    void ShowMessage(std::string_view text) override { std::printf("%s\n", std::string(text).c_str()); }
    void ReportFileError(std::string_view cause, std::string_view path) override
    {
        ShowMessage(std::string(path) + ": " + std::string(cause));
    }
    std::unique_ptr<CProgressWindow> CreateProgressWindow() override { return std::make_unique<Window>(module); }

private:
    HINSTANCE module;
};

/// Seconds on the wall of one conversion, which is checked to have gone to its end.
template <class Window>
double Measure(HINSTANCE resources, char** paths, std::int32_t& lines)
{
    CWithWindow<Window> userInterface(resources);
    CConvertSatwe converter(userInterface);
    const auto start = std::chrono::steady_clock::now();
    const int result = converter.Convert(paths[0], paths[1]);
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    if (result != kWritten || converter.Report().hasFileError) {
        std::puts("progress_window_bench: the model was not converted");
        std::exit(EXIT_FAILURE);
    }
    lines = converter.Report().lines.read;
    return taken.count();
}

double Median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void Print(const char* window, double seconds, std::int32_t lines)
{
    std::printf("%-36s %8.3f s  %8.3f us a line\n", window, seconds, seconds * 1e6 / lines);
}

int Run(char** paths)
{
    const HINSTANCE library = ::LoadLibraryA("satwecvt.dll");  // it has the templates and the manifest of the windows
    const CHostCall call(library);
    constexpr int kRounds = 5;
    std::vector<double> without;
    std::vector<double> poll;
    std::vector<double> window;
    std::int32_t lines = 0;
    for (int round = 0; round < kRounds; ++round) {
        without.push_back(Measure<CNoWindow>(library, paths, lines));
        poll.push_back(Measure<CPollAlone>(library, paths, lines));
        window.push_back(Measure<CPrgsDlg>(library, paths, lines));
    }
    std::printf("%d lines, medians of %d rounds\n", lines, kRounds);
    Print("without a window", Median(without), lines);
    Print("message poll and Escape query alone", Median(poll), lines);
    Print("progress window", Median(window), lines);
    std::printf("progress window, of without            %8.1f\n", Median(window) / Median(without));
    std::printf("lines a second with it, of poll alone  %8.2f\n", Median(poll) / Median(window));
    return EXIT_SUCCESS;
}

}  // namespace

}  // namespace satwecvt

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::puts("usage: progress_window_bench STRUCTURE LOAD");
        return 2;
    }
    return satwecvt::Run(argv + 1);
}

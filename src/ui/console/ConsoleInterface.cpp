#include "satwecvt/ConsoleInterface.h"

#include "ui/console/Interrupt.h"
#include "ui/console/ProgressLine.h"

#include <cstdio>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace satwecvt {

namespace {

class CConsoleProgress : public CProgressWindow {
public:
    /// `progressLine` may be null.
    explicit CConsoleProgress(CProgressLine* progressLine) : line(progressLine) {}
    ~CConsoleProgress() override { ClearLine(); }

    void SetTotalLines(std::int32_t total) override
    {
        if (line != nullptr) {
            line->SetTotalLines(total);
        }
    }

    int StepLine(std::int32_t lineNumber) override
    {
        if (CInterrupt::Requested()) {
            ClearLine();
            return 0;
        }
        constexpr std::int32_t kLinesBetweenLooksAtTheClock = 256;
        if (line != nullptr && lineNumber % kLinesBetweenLooksAtTheClock == 0) {
            line->UpdateLine(lineNumber, stage);
        }
        return 1;
    }

    void SetStageText(std::string_view text) override
    {
        stage = text;
        if (line != nullptr) {
            line->UpdateStage(stage);
        }
    }

private:
    void ClearLine()
    {
        if (line != nullptr) {
            line->Clear();
        }
    }

    CProgressLine* line;
    std::string stage = "Read Data File";
};

}  // namespace

CConsoleInterface::CConsoleInterface(EProgressLine progressLine)
    : interrupt(std::make_unique<CInterrupt>()),
      line(progressLine == EProgressLine::Drawn ? std::make_unique<CProgressLine>() : nullptr)
{}

CConsoleInterface::~CConsoleInterface() = default;

void CConsoleInterface::ShowMessage(std::string_view text)
{
    if (line != nullptr) {
        line->Clear();  // a message has a line of its own
    }
    std::fprintf(stderr, "satwecvt: %s\n", std::string(text).c_str());
    std::fflush(stderr);
}

void CConsoleInterface::ReportFileError(std::string_view cause, std::string_view path)
{
    ShowMessage(FileErrorText(cause, path));
}

std::unique_ptr<CProgressWindow> CConsoleInterface::CreateProgressWindow()
{
    return std::make_unique<CConsoleProgress>(line.get());
}

bool CConsoleInterface::StderrIsTerminal()
{
#ifdef _WIN32
    return ::_isatty(::_fileno(stderr)) != 0;
#else
    return ::isatty(::fileno(stderr)) != 0;
#endif
}

}  // namespace satwecvt

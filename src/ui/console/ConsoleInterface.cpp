#include "ui/console/ConsoleInterface.h"

#include "ui/console/Interrupt.h"

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
    CConsoleProgress(CScreenRecord& screenRecord, std::optional<CProgressLine>& progressLine)
        : record(screenRecord),
          line(progressLine)
    {
        ShowStage("Read Data File");
    }
    ~CConsoleProgress() override { ClearLine(); }

    void SetTotalLines(std::int32_t total) override { record.totalLines = total; }

    int StepLine(std::int32_t lineNumber) override
    {
        ++record.steps;
        if (CInterrupt::Requested()) {
            ClearLine();
            return 0;
        }
        constexpr std::int32_t kLinesBetweenLooksAtTheClock = 256;
        if (line && lineNumber % kLinesBetweenLooksAtTheClock == 0) {
            lastLine = lineNumber;
            line->Update(lineNumber, record.totalLines, stage);
        }
        return 1;
    }

    void SetStageText(std::string_view text) override
    {
        ShowStage(text);
        if (line) {
            line->Update(lastLine, record.totalLines, stage);
        }
    }

private:
    void ShowStage(std::string_view text)
    {
        stage = text;
        record.stages.push_back("!!! " + stage + " !!!");
    }

    void ClearLine()
    {
        if (line) {
            line->Clear();
        }
    }

    CScreenRecord& record;
    std::optional<CProgressLine>& line;
    std::string stage;
    std::int32_t lastLine = 0;
};

}  // namespace

CConsoleInterface::CConsoleInterface(EProgressLine progressLine)
{
    if (progressLine == EProgressLine::Drawn) {
        line.emplace();
    }
}

void CConsoleInterface::ShowMessage(std::string_view text)
{
    if (line) {
        line->Clear();  // a message has a line of its own
    }
    record.messages.emplace_back(text);
    std::fprintf(stderr, "satwecvt: %s\n", record.messages.back().c_str());
    std::fflush(stderr);
}

void CConsoleInterface::ReportFileError(std::string_view cause, std::string_view path)
{
    ShowMessage(std::string(path) + " could not be written: " + std::string(cause));
}

std::unique_ptr<CProgressWindow> CConsoleInterface::CreateProgressWindow()
{
    return std::make_unique<CConsoleProgress>(record, line);
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

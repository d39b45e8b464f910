#include "web/ProgressTeller.h"

#include "web/Host.h"

namespace satwecvt {

namespace {

class CTellingWindow : public CProgressWindow {
public:
    explicit CTellingWindow(CProgressTeller& progressTeller) : teller(progressTeller) {}

    void SetTotalLines(std::int32_t total) override { teller.SetTotalLines(total); }
    int StepLine(std::int32_t line) override
    {
        teller.StepLine(line);
        return 1;
    }
    void SetStageText(std::string_view text) override { teller.SetStage(text); }

private:
    CProgressTeller& teller;
};

}  // namespace

std::unique_ptr<CProgressWindow> CProgressTeller::CreateProgressWindow()
{
    return std::make_unique<CTellingWindow>(*this);
}

void CProgressTeller::SetTotalLines(std::int32_t lines)
{
    total = lines;
    Tell();
}

void CProgressTeller::StepLine(std::int32_t lineNumber)
{
    line = lineNumber;
    if (--stepsToClock == 0) {
        stepsToClock = kStepsBetweenClocks;
        TellNowAndThen();
    }
}

void CProgressTeller::SetStage(std::string_view text)
{
    stage = text;
    Tell();
}

void CProgressTeller::TellNowAndThen()
{
    constexpr auto kInterval = std::chrono::milliseconds(50);
    const CClock::time_point now = CClock::now();
    if (now >= next) {
        next = now + kInterval;
        Tell();
    }
}

void CProgressTeller::Tell() const
{
    satwecvt_tell_progress(line, total, stage.data(), stage.size());
}

}  // namespace satwecvt

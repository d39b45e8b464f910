#include "support/ScriptedInterface.h"

#include <stdexcept>

namespace satwecvt {

namespace {

class CScriptedWindow : public CProgressWindow {
public:
    explicit CScriptedWindow(CScriptedInterface& scriptedInterface) : owner(scriptedInterface)
    {
        ++owner.windowsCreated;
        ++owner.windowsAlive;
        owner.stages.emplace_back("!!! Read Data File !!!");
    }
    ~CScriptedWindow() override { --owner.windowsAlive; }

    void SetTotalLines(std::int32_t total) override { owner.totals.push_back(total); }

    int StepLine(std::int32_t line) override
    {
        if (isGone) {
            throw std::logic_error("a step after the cancel");
        }
        owner.lines.push_back(line);
        ++owner.steps;
        if (owner.onStep) {
            owner.onStep(owner.steps);
        }
        isGone = owner.steps == owner.cancelAtStep;
        return isGone ? 0 : 1;
    }

    void SetStageText(std::string_view text) override { owner.stages.push_back("!!! " + std::string(text) + " !!!"); }

private:
    CScriptedInterface& owner;
    bool isGone = false;
};

}  // namespace

std::unique_ptr<CProgressWindow> CScriptedInterface::CreateProgressWindow()
{
    return hasProgressWindow ? std::make_unique<CScriptedWindow>(*this) : nullptr;
}

}  // namespace satwecvt

// Uses the installed library as a stranger would: converts the tower sample, structure.sat and load.sat of the working
// folder, by both user interfaces that it brings, in one step and, to two_steps.vkm and two_steps.msg, in two.

#include "satwecvt/ConsoleInterface.h"
#include "satwecvt/ConvertSatwe.h"
#include "satwecvt/Finding.h"
#include "satwecvt/SilentInterface.h"

namespace {

bool ConvertsInOneStep()
{
    satwecvt::CConsoleInterface console(satwecvt::EProgressLine::Off);
    satwecvt::CConvertSatwe converter(console);
    const int result = converter.Convert("structure.sat", "load.sat");
    return result == satwecvt::kWritten && converter.Report().read.stories == 8 && !converter.Report().failure;
}

bool ConvertsInTwoSteps()
{
    satwecvt::CSilentInterface silent;
    satwecvt::CFindingList findings;
    satwecvt::CConvertSatwe converter(silent, &findings);
    const satwecvt::CConversionPaths paths{"structure.sat", "load.sat", "two_steps.vkm", "two_steps.msg"};
    const auto model = converter.Read(paths);
    return model != nullptr && converter.Write(*model, paths) == satwecvt::kWritten && !findings.Findings().empty() &&
           converter.Report().lastStage == satwecvt::EStage::StaticLoad;
}

bool TellsWhyItFails()
{
    satwecvt::CSilentInterface silent;
    satwecvt::CConvertSatwe converter(silent);
    const int result = converter.Convert("load.sat", "structure.sat");
    return result == satwecvt::kFailed && converter.Report().failure &&
           converter.Report().failure->place.source == satwecvt::ESource::StructureFile;
}

}  // namespace

int main()
{
    const bool tells = TellsWhyItFails();  // writes nothing
    return tells && ConvertsInTwoSteps() && ConvertsInOneStep() ? 0 : 1;
}

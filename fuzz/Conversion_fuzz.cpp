// A whole conversion of two files in memory: whatever they hold, it ends with one of its results, keeps its promises
// to the progress window, what it wrote passes the checker, and what it read is in the model or accounted for.
#include "ConversionInput.h"
#include "Finding.h"
#include "FuzzTarget.h"
#include "ModelChecker.h"
#include "support/Balance.h"
#include "support/Conversion.h"
#include "support/Losses.h"

#include <string>

namespace satwecvt {
namespace {

void ExpectSame(std::int64_t told, std::int64_t found, const std::string& what)
{
    if (told != found) {
        Fail("the report tells " + std::to_string(told) + " " + what + ", the model has " + std::to_string(found));
    }
}

void CheckWritten(const CConversionResult& conversion)
{
    CModelChecker checker(conversion.model.value());
    checker.Check();
    const CWrittenCounts& told = conversion.report.written;
    const CFoundCounts& found = checker.Found();
    ExpectSame(told.nodes, found.nodes, "nodes");
    ExpectSame(told.beams + told.columns + told.braces, found.beams, "beams");
    ExpectSame(told.walls, found.walls, "walls");
    ExpectSame(told.plates, found.plates, "plates");
    ExpectSame(told.materials, found.materials, "materials");
    ExpectSame(told.sections, found.sections, "sections");
    ExpectSame(told.thicknesses, found.thicknesses, "thicknesses");
    ExpectSame(told.supports, found.supports, "supports");
    ExpectSame(told.releases, found.releases, "releases");
    ExpectSame(told.offsets, found.offsets, "offsets");
    ExpectSame(told.nodalLoads, found.nodalLoads, "nodal loads");
    ExpectSame(told.beamLoads, found.beamLoads, "beam loads");
    ExpectSame(told.pressureLoads, found.pressureLoads, "pressure loads");
    ExpectSame(told.warnings, CheckMessageLog(conversion.messageLog.value()), "messages");
}

void CheckLosses(CMemoryFiles& files, const CConversionResult& conversion)
{
    const auto input = ReadAgain(files);
    const std::string unaccounted = BrokenCounts(*input, conversion);
    if (!unaccounted.empty()) {
        Fail("something is lost without a word: " + unaccounted);
    }
    const std::string broken = BrokenRows(BalanceOf(*input, conversion));
    if (!broken.empty()) {
        Fail("the balance of loads does not hold: " + broken);
    }
}

void CheckConversion(const CConversionInput& input)
{
    CMemoryFiles system;
    system.files = {{"structure.sat", input.structure}, {"load.sat", input.load}};
    system.mostBytesPerCall = 1 + input.structure.size() % 1000;
    CScriptedInterface screen;
    const CConversionResult conversion = ConvertMemoryFiles(screen, system);

    Expect(conversion.result == 0 || conversion.result == -1, "the result is none");
    Expect(system.files["structure.sat"] == input.structure, "the structure file was changed");
    Expect(system.files["load.sat"] == input.load, "the load file was changed");
    Expect(system.OpenCount() == 0, "a file was left open");
    Expect(screen.windowsCreated == 1 && screen.windowsAlive == 0, "a window was left");
    Expect(screen.messages.empty() && screen.fileErrors.empty(), "a message was shown");
    Expect(screen.steps == conversion.report.lines.read, "a line was read unseen");
    Expect(conversion.model.has_value() == conversion.messageLog.has_value(), "one of the outputs is missing");
    if (conversion.result == 0) {
        CheckWritten(conversion);
        CheckLosses(system, conversion);
    }
}

}  // namespace
}  // namespace satwecvt

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    satwecvt::CheckConversion(satwecvt::CConversionInput::Split(satwecvt::TextOf(data, size)));
    return 0;
}

// The load cases and their loads, and the message log.
#include "Finding.h"
#include "ModelChecker.h"

#include <algorithm>
#include <string>

namespace satwecvt {

namespace {

using CLines = std::vector<std::string_view>;

/// Dead loads stand under both load cases, so the dead case's lines stand in the live case's in the same order.
void ExpectContained(const CLines& dead, const CLines& live)
{
    std::size_t matched = 0;
    for (const std::string_view line : live) {
        matched += matched < dead.size() && dead[matched] == line ? 1U : 0U;
    }
    if (matched < dead.size()) {
        Fail("the live case lacks '" + Printable(dead[matched]) + "'");
    }
}

}  // namespace

void CModelChecker::CheckLoadCases()
{
    Expect(text.TakeHeader("*STLDCASE    ; Static Load Cases", 1), "there is no block of load cases");
    text.Take("  DeadLoad, D, ");
    text.Take("  LiveLoad, L, ");
    text.Take("");
}

void CModelChecker::CheckLoads()
{
    if (text.IsAtEnd()) {
        return;  // there are no loads
    }
    const CLoadLines dead = TakeLoads("DeadLoad");
    const CLoadLines live = TakeLoads("LiveLoad");
    text.Take("");
    Expect(live.hasNodal || !dead.hasNodal, "the live case lacks the nodal loads");
    Expect(live.hasBeam || !dead.hasBeam, "the live case lacks the beam loads");
    Expect(live.hasPressure || !dead.hasPressure, "the live case lacks the pressure loads");
    ExpectContained(dead.nodal, live.nodal);
    ExpectContained(dead.beam, live.beam);
    ExpectContained(dead.pressure, live.pressure);
    found.nodalLoads = std::ssize(dead.nodal) + std::ssize(live.nodal);
    found.beamLoads = std::ssize(dead.beam) + std::ssize(live.beam);
    found.pressureLoads = std::ssize(dead.pressure) + std::ssize(live.pressure);
}

/// A block without a header is one empty line. A header may stand alone before nodal and beam loads, whose lines can
/// turn out to be none, but not before pressure loads.
CModelChecker::CLoadLines CModelChecker::TakeLoads(std::string_view loadCase)
{
    CLoadLines loads;
    text.Take("*USE-STLD, " + std::string(loadCase));
    text.Take("");
    loads.hasNodal = text.TakeHeader("*CONLOAD    ; Nodal Loads", 1);
    loads.nodal = text.TakeLines();
    loads.hasBeam = text.TakeHeader("*BEAMLOAD    ; Element Beam Loads", 2);
    loads.beam = text.TakeLines();
    loads.hasPressure = text.TakeHeader("*PRESSURE    ; Pressure Loads", 5);
    loads.pressure = text.TakeLines();
    text.Take("; End of data for load case [" + std::string(loadCase) + "] -------------------------");
    text.Take("");

    Expect(loads.hasNodal || loads.nodal.empty(), "nodal loads have no header");
    Expect(loads.hasBeam || loads.beam.empty(), "beam loads have no header");
    Expect(loads.hasPressure == !loads.pressure.empty(), "pressure loads have no header, or a header no loads");
    for (const std::string_view line : loads.nodal) {
        Expect(MatchLine(line, "%d, %g, %g, %g, %g, %g, %g").has_value(), "a nodal load is odd");
    }
    for (const std::string_view line : loads.beam) {
        CheckBeamLoad(line);
    }
    for (const std::string_view line : loads.pressure) {
        Expect(MatchLine(line, "%d, PRES, PLATE, EDGE, 3, GZ, 0, 0, 0, %g, 0, 0,").has_value(), "a pressure is odd");
    }
    return loads;
}

/// The beam is an element, and no distance along it lies behind its end.
void CModelChecker::CheckBeamLoad(std::string_view line) const
{
    std::optional<CLineValues> values = MatchLine(line, "%d, BEAM, CONLOAD, GZ, NO, %g, %g, 0, 0, 0, 0, 0, 0");
    if (!values) {
        values = MatchLine(line, "%d, BEAM, UNILOAD, GZ, NO, %g, %g, %g, %g, %g, %g, %g, %g");
    }
    if (!values) {
        Fail("no beam load is '" + Printable(line) + "'");
    }
    for (std::size_t distance = 1; distance < values->size(); distance += 2) {
        Expect(!((*values)[distance] > 1), "a load lies behind the beam's end");
    }
    const auto isLoaded = [&values](const CElement& beam) { return beam.number == (*values)[0]; };
    Expect(std::any_of(beams.begin(), beams.end(), isLoaded), "a loaded beam is no element");
}

std::int64_t CheckMessageLog(std::string_view log)
{
    constexpr std::string_view kMessages[] = {
        "Beam load value '0'(story id:%d,beam id:%d) is not converted",
        "The wall(story id:%d,wall id:%d) has invalid shape",
        "Opening of the wall(story id:%d,wall id:%d) is not converted",
        "The plate(story id:%d,plate id:%d) has invalid shape",
    };
    std::int64_t count = 0;
    for (CModelText text(log); !text.IsAtEnd(); ++count) {
        const std::string_view line = text.Take();
        const auto fits = [line](std::string_view message) { return MatchLine(line, message).has_value(); };
        if (std::none_of(std::begin(kMessages), std::end(kMessages), fits)) {
            Fail("no message is '" + Printable(line) + "'");
        }
    }
    return count;
}

}  // namespace satwecvt

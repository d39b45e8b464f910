// The loads of the two cases, and the message log.
#include "Finding.h"
#include "ModelChecker.h"
#include "PrintedNumbers.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <string>

namespace satwecvt {

namespace {

/// A load's numbers: the node or element, and what follows it.
std::vector<double> NumbersOf(const CNodalLoad& load)
{
    return {static_cast<double>(load.node), load.fx, load.fy, load.fz, load.mx, load.my, load.mz};
}

std::vector<double> NumbersOf(const CBeamLoad& load)
{
    std::vector<double> numbers{static_cast<double>(load.element), load.type == EBeamLoad::Concentrated ? 1.0 : 0.0};
    for (const CPlacedValue& pair : load.pairs) {
        numbers.insert(numbers.end(), {pair.place, pair.value});
    }
    return numbers;
}

std::vector<double> NumbersOf(const CEdgeLoad& load)
{
    return {static_cast<double>(load.element), static_cast<double>(load.edge), load.value};
}

template <typename TLoad>
bool IsSameLoad(const TLoad& one, const TLoad& other)
{
    const std::vector<double> numbers = NumbersOf(one);
    const std::vector<double> others = NumbersOf(other);
    return std::equal(numbers.begin(), numbers.end(), others.begin(), others.end(), IsSameNumber);
}

/// Dead loads stand under both load cases, so those of the dead case stand in the live case in the same order.
template <typename TLoad>
void ExpectContained(const std::vector<TLoad>& dead, const std::vector<TLoad>& live, std::string_view name)
{
    std::size_t matched = 0;
    for (const TLoad& load : live) {
        matched += matched < dead.size() && IsSameLoad(dead[matched], load) ? 1U : 0U;
    }
    if (matched < dead.size()) {
        Fail("the live case lacks the dead " + std::string(name) + " load " + std::to_string(matched + 1));
    }
}

/// A message about a member of a story: what stands in front of the story's number, behind it, behind the member's.
struct CMessage {
    std::string_view begin;
    std::string_view middle;
    std::string_view end;
};

constexpr CMessage kMessages[] = {
    {"Beam load value '0'(story id:", ",beam id:", ") is not converted"},
    {"The wall(story id:", ",wall id:", ") has invalid shape"},
    {"Opening of the wall(story id:", ",wall id:", ") is not converted"},
    {"The plate(story id:", ",plate id:", ") has invalid shape"},
};

bool IsMessage(std::string_view line, const CMessage& message)
{
    if (!line.starts_with(message.begin) || !line.ends_with(message.end)) {
        return false;
    }
    line.remove_prefix(message.begin.size());
    line.remove_suffix(message.end.size());
    const std::size_t middle = line.find(message.middle);
    return middle != std::string_view::npos && IsPrintedInteger(line.substr(0, middle)) &&
           IsPrintedInteger(line.substr(middle + message.middle.size()));
}

}  // namespace

void CModelChecker::CheckLoads() const
{
    const CLoadCase& dead = model.loadCases.front();
    const CLoadCase& live = model.loadCases.back();
    Expect(live.hasNodalHeader || !dead.hasNodalHeader, "the live case lacks the nodal loads");
    Expect(live.hasBeamHeader || !dead.hasBeamHeader, "the live case lacks the beam loads");
    Expect(live.hasEdgeHeader || !dead.hasEdgeHeader, "the live case lacks the pressure loads");
    ExpectContained(dead.nodalLoads, live.nodalLoads, "nodal");
    ExpectContained(dead.beamLoads, live.beamLoads, "beam");
    ExpectContained(dead.edgeLoads, live.edgeLoads, "pressure");
    for (const CLoadCase& loadCase : model.loadCases) {
        CheckBeamLoads(loadCase);
        for (const CEdgeLoad& load : loadCase.edgeLoads) {
            Expect(load.edge == 3, "a pressure is not on the wall's upper edge");
        }
    }
}

/// The beam is an element, and no place along it lies behind its end.
void CModelChecker::CheckBeamLoads(const CLoadCase& loadCase) const
{
    std::set<std::int32_t> beams;
    for (const CFrameElement& beam : model.frameElements) {
        beams.insert(beam.number);
    }
    for (const CBeamLoad& load : loadCase.beamLoads) {
        Expect(beams.contains(load.element), "a loaded beam is no element");
        for (const CPlacedValue& pair : load.pairs) {
            Expect(!(pair.place > 1), "a load lies behind the beam's end");
        }
    }
}

std::int64_t CheckMessageLog(std::string_view log)
{
    std::int64_t count = 0;
    for (; !log.empty(); ++count) {
        const std::size_t end = log.find('\n');
        const std::string_view line = log.substr(0, end);
        const auto fits = [line](const CMessage& message) { return IsMessage(line, message); };
        if (end == std::string_view::npos || std::none_of(std::begin(kMessages), std::end(kMessages), fits)) {
            Fail("no message is '" + Printable(line) + "'");
        }
        log.remove_prefix(end + 1);
    }
    return count;
}

}  // namespace satwecvt

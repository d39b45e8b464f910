#include "writer/BeamLoadFindings.h"

#include "writer/WriterFindings.h"

#include <algorithm>
#include <limits>

namespace satwecvt {

namespace {

/// A load of nothing can stand anywhere.
bool IsNothing(const T_SATWE_STLD_D& load)
{
    const bool hasSecond = load.loadType == ELoadType::BeamLinear;
    return load.value[0] == 0.0 && (!hasSecond || load.value[1] == 0.0);
}

/// The force that a distributed load loses where it is cut; below 0 when it gains one.
double CutForce(const CLoadedBeam& beam, const T_SATWE_STLD_D& load)
{
    const auto [start, end] = ReachOf(load);
    const bool isLinear = load.loadType == ELoadType::BeamLinear;
    const double mean = isLinear ? (load.value[0] + load.value[1]) / 2.0 : load.value[0] / 2.0;
    return mean * ((end - start) - (std::min(end, beam.length) - std::min(start, beam.length)));
}

/// The force that a trapezoid loses as a triangle. Sloping parts that are together longer than the beam have two
/// readings, of different forces.
double TriangleForce(const CLoadedBeam& beam, const T_SATWE_STLD_D& load)
{
    const double half = 0.5 * beam.length;
    return load.value[1] > half ? std::numeric_limits<double>::quiet_NaN() : load.value[0] * (half - load.value[1]);
}

}  // namespace

void TellUnusual(CLoadOutput& output, const CLoadedBeam& beam, const T_SATWE_STLD_D& load)
{
    const auto tell = [&](EFinding code, double value0, double value1) {
        CFinding finding = LoadFinding(code, load, EObject::Beam, beam.story);
        finding.element = beam.element;
        finding.values = {value0, value1};
        output.findings.Tell(finding);
    };
    if (IsNothing(load)) {
        return;
    }
    const double toSpare = kLengthToSpare * beam.length;
    const auto [start, end] = ReachOf(load);
    if (start < -toSpare || end < start - toSpare) {
        tell(EFinding::LoadBeforeStart, 0.0, 0.0);
    }
    if (load.loadType == ELoadType::BeamTrapezoid) {
        if (MeetAtMidSpan(beam.Fraction(end))) {
            tell(EFinding::TrapezoidAsTriangle, TriangleForce(beam, load), 0.0);
        }
    } else if (start > beam.length + toSpare || end > beam.length + toSpare) {
        const bool isForce = load.loadType == ELoadType::BeamForce;
        tell(isForce ? EFinding::LoadMoved : EFinding::LoadCut, isForce ? start : CutForce(beam, load),
             isForce ? beam.length : 0.0);
    }
}

}  // namespace satwecvt

#include "writer/BeamLoadBlock.h"

#include "geometry/MathFunc.h"
#include "model/Int32.h"
#include "writer/WriteLine.h"

#include <cmath>
#include <optional>

namespace satwecvt {

namespace {

/// The load types of the other sections, and 31, are none of this section's. All others are, also those that have no
/// line: the first of them brings the section header.
constexpr bool IsBeamLoad(ELoadType type)
{
    switch (type) {
    case ELoadType::NodeForceMoments:
    case ELoadType::NodeForces:
    case ELoadType::WallForce:
    case ELoadType::WallLine:
    case ELoadType::Unused31:
        return false;
    default:
        return true;
    }
}

constexpr double SmallerOfOneAnd(double x)
{
    return 1.0 < x ? 1.0 : x;
}

/// The beam that a load acts on.
struct CLoadedBeam {
    std::int32_t element;
    double length;

    /// A distance from end i as a fraction of the length, capped at 1.
    double Fraction(double distance) const { return SmallerOfOneAnd(distance / length); }
};

std::optional<CLoadedBeam> FindLoadedBeam(const CSatweModel& model, const CWrittenNodes& writtenNodes,
                                          const T_SATWE_STLD_D& load)
{
    const T_SATWE_STIF_D* story = model.stories.Find(load.storyId);
    const T_SATWE_STBM_D* beam = story != nullptr ? story->beams.Find(load.memberId) : nullptr;
    if (beam == nullptr) {
        return std::nullopt;
    }
    const T_SATWE_STND_D* i = writtenNodes.Find(WrappedAbs(beam->nodeI));
    const T_SATWE_STND_D* j = writtenNodes.Find(WrappedAbs(beam->nodeJ));
    if (i == nullptr || j == nullptr) {
        return std::nullopt;
    }
    return CLoadedBeam{beam->seq, CMathFunc::Distance(i->x, i->y, i->z, j->x, j->y, j->z)};
}

/// The symmetric trapezoid over the whole beam, whose sloping end parts may meet at mid-span: then it is a triangle.
void WriteTrapezoid(COutputFile& modelFile, const CLoadedBeam& beam, const std::array<double, 4>& value)
{
    constexpr double kMidSpanTolerance = 0.001;
    const double q = value[0];
    const double c = beam.Fraction(value[1]);
    if (c > 0.5 || std::abs(c - 0.5) <= kMidSpanTolerance) {
        WriteLine(modelFile, "%d, BEAM, UNILOAD, GZ, NO, 0, 0, 0.5, %g, 1, 0, 0, 0\n", beam.element, -q);
    } else {
        WriteLine(modelFile, "%d, BEAM, UNILOAD, GZ, NO, 0, 0, %g, %g, %g, %g, 1, 0\n", beam.element, c, -q,
                  SmallerOfOneAnd(1.0 - c), -q);
    }
}

/// Writes the line of a load; answers false for a type that has none.
bool WriteBeamLoad(COutputFile& modelFile, const CLoadedBeam& beam, const T_SATWE_STLD_D& load)
{
    const auto& value = load.value;
    switch (load.loadType) {
    case ELoadType::BeamForce:
        WriteLine(modelFile, "%d, BEAM, CONLOAD, GZ, NO, %g, %g, 0, 0, 0, 0, 0, 0\n", beam.element,
                  beam.Fraction(value[1]), -value[0]);
        return true;
    case ELoadType::BeamLinear:
        WriteLine(modelFile, "%d, BEAM, UNILOAD, GZ, NO, %g, %g, %g, %g, 0, 0, 0, 0\n", beam.element,
                  beam.Fraction(value[2]), -value[0], beam.Fraction(value[3]), -value[1]);
        return true;
    case ELoadType::BeamTriangle:
        WriteLine(modelFile, "%d, BEAM, UNILOAD, GZ, NO, %g, %g, %g, %g, %g, %g, 0, 0\n", beam.element,
                  beam.Fraction(value[1]), 0.0, beam.Fraction(value[2] + value[1]), -value[0],
                  beam.Fraction(value[2] + (value[2] + value[1])), 0.0);
        return true;
    case ELoadType::BeamTrapezoid:
        WriteTrapezoid(modelFile, beam, value);
        return true;
    default:
        return false;
    }
}

constexpr bool IsZeroTrapezoid(const T_SATWE_STLD_D& load)
{
    constexpr double kNoLoad = 1e-5;
    return load.loadType == ELoadType::BeamTrapezoid && load.value[0] < kNoLoad && load.value[0] > -kNoLoad;
}

}  // namespace

void WriteBeamLoads(COutputFile& modelFile, COutputFile& messageFile, const CSatweModel& model,
                    const CWrittenNodes& writtenNodes, ELoadCase loadCase, CWrittenCounts& counts)
{
    bool headerWritten = false;
    for (const T_SATWE_STLD_D& load : model.loads) {
        if (!BelongsTo(loadCase, load) || !IsBeamLoad(load.loadType)) {
            continue;
        }
        if (!headerWritten) {
            WriteLine(modelFile,
                      "*BEAMLOAD    ; Element Beam Loads\n"
                      "; ELEM_LIST, CMD, TYPE, DIR, bPROJ, D1, P1, D2, P2, D3, P3, D4, P4, GROUP\n"
                      "; ELEM_LIST, CMD, TYPE, DIR, VX, VY, VZ, bPROJ, D1, P1, D2, P2, D3, P3, D4, P4, GROUP\n");
            headerWritten = true;
        }
        const std::optional<CLoadedBeam> beam = FindLoadedBeam(model, writtenNodes, load);
        if (!beam) {
            continue;
        }
        if (IsZeroTrapezoid(load)) {
            WriteLine(messageFile, "Beam load value '0'(story id:%d,beam id:%d) is not converted\n", load.storyId,
                      load.memberId);
            ++counts.warnings;
        } else if (WriteBeamLoad(modelFile, *beam, load)) {
            ++counts.beamLoads;
        }
    }
    WriteLine(modelFile, "\n");
}

}  // namespace satwecvt

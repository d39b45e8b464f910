#include "writer/BeamLoadBlock.h"

#include "writer/BeamLoadFindings.h"
#include "writer/WriterFindings.h"

namespace satwecvt {

namespace {

void WriteBeamLoadHeader(COutputFile& modelFile)
{
    WriteLine(modelFile,
              "*BEAMLOAD    ; Element Beam Loads\n"
              "; ELEM_LIST, CMD, TYPE, DIR, bPROJ, D1, P1, D2, P2, D3, P3, D4, P4, GROUP\n"
              "; ELEM_LIST, CMD, TYPE, DIR, VX, VY, VZ, bPROJ, D1, P1, D2, P2, D3, P3, D4, P4, GROUP\n");
}

/// The symmetric trapezoid over the whole beam, whose sloping end parts may meet at mid-span: then it is a triangle.
void WriteTrapezoid(COutputFile& modelFile, const CLoadedBeam& beam, const std::array<double, 4>& value)
{
    const double q = value[0];
    const double c = beam.Fraction(value[1]);
    if (MeetAtMidSpan(c)) {
        WriteLine(modelFile, "%d, BEAM, UNILOAD, GZ, NO, 0, 0, 0.5, %g, 1, 0, 0, 0\n", beam.element, -q);
    } else {
        WriteLine(modelFile, "%d, BEAM, UNILOAD, GZ, NO, 0, 0, %g, %g, %g, %g, 1, 0\n", beam.element, c, -q,
                  SmallerOfOneAnd(1.0 - c), -q);
    }
}

void WriteBeamLoad(COutputFile& modelFile, const CLoadedBeam& beam, const T_SATWE_STLD_D& load)
{
    const auto& value = load.value;
    switch (load.loadType) {
    case ELoadType::BeamForce:
        WriteLine(modelFile, "%d, BEAM, CONLOAD, GZ, NO, %g, %g, 0, 0, 0, 0, 0, 0\n", beam.element,
                  beam.Fraction(value[1]), -value[0]);
        break;
    case ELoadType::BeamLinear:
        WriteLine(modelFile, "%d, BEAM, UNILOAD, GZ, NO, %g, %g, %g, %g, 0, 0, 0, 0\n", beam.element,
                  beam.Fraction(value[2]), -value[0], beam.Fraction(value[3]), -value[1]);
        break;
    case ELoadType::BeamTriangle:
        WriteLine(modelFile, "%d, BEAM, UNILOAD, GZ, NO, %g, %g, %g, %g, %g, %g, 0, 0\n", beam.element,
                  beam.Fraction(value[1]), 0.0, beam.Fraction(value[2] + value[1]), -value[0],
                  beam.Fraction(value[2] + (value[2] + value[1])), 0.0);
        break;
    default:
        WriteTrapezoid(modelFile, beam, value);
        break;
    }
}

constexpr bool IsZeroTrapezoid(const T_SATWE_STLD_D& load)
{
    constexpr double kNoLoad = 1e-5;
    return load.loadType == ELoadType::BeamTrapezoid && load.value[0] < kNoLoad && load.value[0] > -kNoLoad;
}

void TellZeroLoad(CLoadOutput& output, const CLoadedBeam& beam, const T_SATWE_STLD_D& load)
{
    CFinding finding = LoadFinding(EFinding::ZeroLoad, load, EObject::Beam, beam.story);
    finding.element = beam.element;
    output.findings.Tell(finding);
}

void WriteLoadOfBeam(CLoadOutput& output, const CLoadedBeam& beam, const T_SATWE_STLD_D& load)
{
    if (IsZeroTrapezoid(load)) {
        TellZeroLoad(output, beam, load);
        return;
    }
    WriteBeamLoad(output.modelFile, beam, load);
    ++output.counts.beamLoads;
    if (!IsUsual(beam, load)) {
        TellUnusual(output, beam, load);
    }
}

/// Types without a line end here, 31 among them: none but 31 brings the header on its way.
void TellType(CLoadOutput& output, const T_SATWE_STLD_D& load)
{
    CFinding finding = LoadFinding(EFinding::LoadType, load, EObject::Load, output.model.stories.Find(load.storyId));
    finding.values[0] = static_cast<double>(load.loadType);
    output.findings.Tell(finding);
}

}  // namespace

void WriteBeamLoads(CLoadOutput& output, ELoadCase loadCase)
{
    CLoadBlock block(output, WriteBeamLoadHeader);
    const auto writeLoad = [&](const T_SATWE_STLD_D& load) {
        const CLoadTraits traits = TraitsOf(load.loadType);
        if (traits.block == ELoadBlock::Beam) {
            block.NeedHeader();
        }
        if (traits.valueCount == 0) {
            TellType(output, load);
        } else if (const auto beam = FindLoadedBeam(output, load)) {
            WriteLoadOfBeam(output, *beam, load);
        }
    };
    block.Write(
        loadCase, [](ELoadBlock taken) { return taken == ELoadBlock::Beam || taken == ELoadBlock::None; }, writeLoad);
}

}  // namespace satwecvt

// Each kind stores its dimensions in an order of its own, and each shape of the model text file wants them in another
// one: the argument orders below are that mapping, one line per shape.

#include "writer/SectionBlock.h"

#include "text/WriteLine.h"
#include "writer/CompositeProperties.h"

#include <cmath>
#include <string>

namespace satwecvt {

namespace {

void WriteSectionHeader(COutputFile& modelFile)
{
    WriteLine(modelFile,
              "*SECTION    ; Section\n"
              "; iSEC, TYPE, SNAME, OFFSET, SHAPE, [DATA] {, CCSHAPE}                     ; DB/USER\n"
              "; iSEC, TYPE, SNAME, OFFSET, SHAPE, BLT, D1, D2, D3, D4, D5, D6            ; 1st line - VALUE\n"
              ";       AREA, ASy, ASz, Ixx, Iyy, Izz                                      ; 2nd line\n"
              ";       CyP, CyM, CzP, CzM, QyB, QzB, PERI_OUT, PERI_IN, Cy, Cz            ; 3rd line\n"
              "; iSEC, TYPE, SNAME, OFFSET, SHAPE, iREPLACE, ELAST, DEN, POIS, POIC       ; 1st line - SRC\n"
              ";       D1, D2, [DATA]                                                     ; 2nd line\n"
              "; iSEC, TYPE, SNAME, OFFSET, SHAPE, 1, DB, NAME1, NAME2, D1, D2            ; COMBINED\n"
              "; iSEC, TYPE, SNAME, OFFSET, SHAPE, 2, D11, D12, D13, D14, D15, D21, D22, D23, D24\n"
              "; iSEC, TYPE, SNAME, OFFSET, SHAPE, iyVAR, izVAR, STYPE                    ; 1st line - TAPERED\n"
              ";       DB, NAME1, NAME2                                                   ; 2nd line(STYPE=DB)\n"
              ";       [DIM1], [DIM2]                                                     ; 2nd line(STYPE=USER)\n"
              ";       D11, D12, D13, D14, D15, D16                                       ; 2nd line(STYPE=VALUE)\n"
              ";       AREA1, ASy1, ASz1, Ixx1, Iyy1, Izz1                                ; 3rd line(STYPE=VALUE)\n"
              ";       CyP1, CyM1, CzP1, CzM1, QyB1, QzB1, PERI_OUT1, PERI_IN1, Cy1, Cz1  ; 4th line(STYPE=VALUE)\n"
              ";       D21, D22, D23, D24, D25, D26                                       ; 5th line(STYPE=VALUE)\n"
              ";       AREA2, ASy2, ASz2, Ixx2, Iyy2, Izz2                                ; 6th line(STYPE=VALUE)\n"
              ";       CyP2, CyM2, CzP2, CzM2, QyB2, QzB2, PERI_OUT2, PERI_IN2, Cy2, Cz2  ; 7th line(STYPE=VALUE)\n"
              "; [DATA] : 1, DB, NAME or 2, D1, D2, D3, D4, D5, D6\n"
              "; [DIM1], [DIM2] : D1, D2, D3, D4, D5, D6\n");
}

/// Kind 0: a section given by its area and second moments, drawn as a square of that area.
void WriteValueSection(COutputFile& modelFile, std::int32_t number, const std::string& name,
                       const std::array<double, 10>& d)
{
    const double side = std::sqrt(d[0]);
    WriteLine(modelFile, "  %d, VALUE, %s, CC, SB, BUILT, %g, %g, 0, 0, 0, 0\n", number, name, side, side);
    WriteLine(modelFile, "    %g, 0., 0., %g, %g, %g\n", d[0], d[1], d[2], d[3]);
    WriteLine(modelFile, "    0, 0, 0, 0, 0, 0, 0, 0, 0, 0\n");
}

/// The shape word of a composite section.
constexpr std::string_view ShapeOf(ESectionKind kind)
{
    switch (kind) {
    case ESectionKind::FilledPipe:
        return "EPC";
    case ESectionKind::EncasedH:
        return "RHB";
    default:
        return "RBC";
    }
}

/// Kinds 12 to 14: steel and concrete; the stiffness ratio follows from the concrete grade.
void WriteCompositeSection(COutputFile& modelFile, std::int32_t number, const std::string& name,
                           const T_SATWE_SECT_D& section)
{
    const auto& d = section.dims;
    const CCompositeProperties p = GetCompositeProperties(section.concreteGrade);
    const std::string_view shape = ShapeOf(section.kind);
    WriteLine(modelFile, "  %d, SRC, %s, CC, %s, 1, %g, %g, %g, %g\n", number, name, shape, p.elast, p.den, p.pois,
              p.poic);
    switch (section.kind) {
    case ESectionKind::FilledPipe:
        WriteLine(modelFile, "      %g, %g, 2, %g, %g, 0, 0, 0, 0\n", d[1], 0.0, d[0], (d[0] - d[1]) * 0.5);
        break;
    case ESectionKind::EncasedH:
        WriteLine(modelFile, "      %g, %g, 2, %g, %g, %g, %g, 0, 0\n", d[1], d[0], d[3], d[4], d[2], d[5]);
        break;
    default:
        WriteLine(modelFile, "      %g, %g, 2, %g, %g, %g, %g, 0, 0\n", d[1], d[0], d[3], d[2], d[5], d[4]);
        break;
    }
}

}  // namespace

void WriteSections(COutputFile& modelFile, const CConversionTables& tables, CWrittenCounts& counts)
{
    if (tables.Sections().empty()) {
        return;
    }
    WriteSectionHeader(modelFile);
    std::int32_t number = 0;
    for (const T_SATWE_SECT_D& section : tables.Sections()) {
        WriteSectionLine(modelFile, ++number, section);
    }
    counts.sections = number;
    WriteLine(modelFile, "\n");
}

void WriteSectionLine(COutputFile& modelFile, std::int32_t number, const T_SATWE_SECT_D& section)
{
    const auto& d = section.dims;
    const std::string name = "Sec" + std::to_string(number);
    const auto writeUser = [&](std::string_view shape, double d1, double d2, double d3, double d4, double d5,
                               double d6) {
        WriteLine(modelFile, "  %d, DBUSER, %s, CC, %s, 2, %g, %g, %g, %g, %g, %g\n", number, name, shape, d1, d2, d3,
                  d4, d5, d6);
    };
    const auto writeCombined = [&](double d11, double d12, double d13, double d14, double d21, double d22, double d23,
                                   double d24) {
        WriteLine(modelFile, "  %d, COMBINED, %s, CC, H2T, 2, %g, %g, %g, %g, 0, %g, %g, %g, %g\n", number, name, d11,
                  d12, d13, d14, d21, d22, d23, d24);
    };
    switch (section.kind) {
    case ESectionKind::ByValues:
        return WriteValueSection(modelFile, number, name, d);
    case ESectionKind::Rectangle:
    case ESectionKind::Rectangle11:
        return writeUser("SB", d[1], d[0], 0.0, 0.0, 0.0, 0.0);
    case ESectionKind::H:
        return writeUser("H", d[1], d[2], d[0], d[3], d[4], d[5]);
    case ESectionKind::SolidCircle:
    case ESectionKind::SolidCircle4:
        return writeUser("SR", d[0], 0.0, 0.0, 0.0, 0.0, 0.0);
    case ESectionKind::Channel:
        return writeUser("C", d[1], std::abs(d[2]) + d[0], d[0], d[3], std::abs(d[4]) + d[0], d[5]);
    case ESectionKind::Cross:
        return writeCombined(d[1], d[0], d[0], d[0], d[5], d[3], d[3], d[3]);
    case ESectionKind::Box:
        return writeUser("B", d[1], d[0], d[3], d[2], 0.0, d[4]);
    case ESectionKind::Pipe:
        return writeUser("P", d[0], (d[0] - d[1]) * 0.5, 0.0, 0.0, 0.0, 0.0);
    case ESectionKind::DoubleChannel:
        return writeUser("2C", d[1], std::abs(d[2]) + d[0], d[0], d[3], d[5], 0.0);
    case ESectionKind::CrossedH:
        return writeCombined(d[1], d[5], d[0], d[3], (d[1] - d[0]) * 0.5, d[5], d[0], d[3]);
    case ESectionKind::FilledPipe:
    case ESectionKind::EncasedH:
    case ESectionKind::EncasedBox:
        return WriteCompositeSection(modelFile, number, name, section);
    default:
        return;
    }
}

}  // namespace satwecvt

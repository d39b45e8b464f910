// The sections of the sample tower: every kind that the structure file knows, kind 1 three times.
#pragma once

#include <array>

namespace satwecvt {

/// The section numbers of the structure file.
enum class ESection : int {
    ConcreteBeam = 1,
    ConcreteColumn = 2,
    RoundColumn = 3,
    CrossColumn = 4,
    SecondaryBeam = 5,
    EdgeBeam = 6,
    SteelBeam = 7,
    Channel = 8,
    BoxColumn = 9,
    PipeBrace = 10,
    DoubleChannel = 11,
    CrossSteelColumn = 12,
    TieRod = 13,
    FilledPipe = 14,
    EncasedBeam = 15,
    EncasedBox = 16,
    ConcreteBrace = 17,
};

/// The definition of a section. Its last four dimensions are 0.
struct CSectionRow {
    ESection number;
    int kind;
    int param1;                  // 5 marks steel, 6 concrete
    std::array<double, 6> dims;  // mm; powers of mm for kind 0, which has properties instead of a shape
};

inline constexpr std::array<CSectionRow, 17> kSections = {{
    {ESection::ConcreteBeam, 1, 6, {300, 650, 0, 0, 0, 0}},
    {ESection::ConcreteColumn, 1, 6, {800, 800, 0, 0, 0, 0}},
    {ESection::RoundColumn, 3, 6, {850, 0, 0, 0, 0, 0}},
    {ESection::CrossColumn, 6, 6, {250, 900, 0, 250, 0, 325}},
    {ESection::SecondaryBeam, 11, 6, {250, 450, 0, 0, 0, 0}},
    {ESection::EdgeBeam, 0, 6, {160000, 3.1e9, 5.3e9, 1.2e9, 0, 0}},
    {ESection::SteelBeam, 2, 5, {11, 500, 200, 18, 200, 18}},
    {ESection::Channel, 5, 5, {9, 300, -80, 13.5, -80, 13.5}},
    {ESection::BoxColumn, 7, 5, {400, 400, 20, 20, 20, 0}},
    {ESection::PipeBrace, 8, 5, {245, 221, 0, 0, 0, 0}},
    {ESection::DoubleChannel, 9, 5, {8.5, 200, 66.5, 11, 0, 10}},
    {ESection::CrossSteelColumn, 10, 5, {12, 500, 0, 20, 0, 220}},
    {ESection::TieRod, 4, 5, {60, 0, 0, 0, 0, 0}},
    {ESection::FilledPipe, 12, 5, {800, 760, 0, 0, 0, 0}},
    {ESection::EncasedBeam, 13, 6, {700, 700, 14, 400, 300, 22}},
    {ESection::EncasedBox, 14, 6, {800, 800, 400, 400, 20, 20}},
    {ESection::ConcreteBrace, 1, 6, {400, 400, 0, 0, 0, 0}},
}};

}  // namespace satwecvt

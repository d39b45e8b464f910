// The materials, sections and thicknesses, and that the elements' numbers lead to them.
#include "Finding.h"
#include "ModelChecker.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string>

namespace satwecvt {

namespace {

/// The elastic ratio of a composite section by its concrete grade, as it is printed.
double ElasticRatio(double grade)
{
    constexpr struct {
        double grade;
        double ratio;
    } kRatios[] = {{15, 9.29771}, {20, 8.10641}, {25, 7.39146}, {35, 6.57454}, {40, 6.31921},
                   {45, 6.12057}, {50, 5.96168}, {55, 5.83173}, {60, 5.72349}, {65, 5.6318},
                   {70, 5.55331}, {75, 5.48514}, {80, 5.42562}};
    const auto* const row = std::find_if(std::begin(kRatios), std::end(kRatios),
                                         [grade](const auto& entry) { return entry.grade == grade; });
    return row != std::end(kRatios) ? row->ratio : 6.91484;
}

constexpr std::string_view kSteelNames[] = {"Grade3", "15MnV", "16Mn"};

/// The sections that take one line.
constexpr std::string_view kOneLineSections[] = {
    "  %d, DBUSER, Sec%d, CC, SB, 2, %g, %g, 0, 0, 0, 0",
    "  %d, DBUSER, Sec%d, CC, H, 2, %g, %g, %g, %g, %g, %g",
    "  %d, DBUSER, Sec%d, CC, SR, 2, %g, 0, 0, 0, 0, 0",
    "  %d, DBUSER, Sec%d, CC, C, 2, %g, %g, %g, %g, %g, %g",
    "  %d, COMBINED, Sec%d, CC, H2T, 2, %g, %g, %g, %g, 0, %g, %g, %g, %g",
    "  %d, DBUSER, Sec%d, CC, B, 2, %g, %g, %g, %g, 0, %g",
    "  %d, DBUSER, Sec%d, CC, P, 2, %g, %g, 0, 0, 0, 0",
    "  %d, DBUSER, Sec%d, CC, 2C, 2, %g, %g, %g, %g, %g, 0",
};

/// The composite sections, with their second line.
constexpr std::array<std::string_view, 2> kCompositeSections[] = {
    {"  %d, SRC, Sec%d, CC, EPC, 1, %g, 3.0792, 0.3, 0.2", "      %g, 0, 2, %g, %g, 0, 0, 0, 0"},
    {"  %d, SRC, Sec%d, CC, RHB, 1, %g, 3.0792, 0.3, 0.2", "      %g, %g, 2, %g, %g, %g, %g, 0, 0"},
    {"  %d, SRC, Sec%d, CC, RBC, 1, %g, 3.0792, 0.3, 0.2", "      %g, %g, 2, %g, %g, %g, %g, 0, 0"},
};

}  // namespace

/// A skipped triangle may have taken a number, so there may be materials without elements.
void CModelChecker::CheckMaterials()
{
    if (!text.TakeHeader("*MATERIAL    ; Material", 6)) {
        return;
    }
    int composites = 0;
    for (const std::string_view line : text.TakeLines()) {
        const std::string number = "  " + std::to_string(materials.size() + 1);
        if (const auto concrete = MatchLine(line, number + ", CONC, C%d, 0, 0, 1, GB(RC), C%d")) {
            Expect((*concrete)[0] == (*concrete)[1] && (*concrete)[0] != 0, "a concrete has a wrong name");
            materials.push_back({EMaterial::Concrete, 0.0});
            continue;
        }
        const std::size_t before = materials.size();
        for (const std::string_view steelName : kSteelNames) {
            const std::string steel(steelName);
            const std::string next = std::to_string(composites + 1);
            if (line == number + ", STEEL, " + steel + ", 0, 0, 1, GB(S), " + steel) {
                materials.push_back({EMaterial::Steel, 0.0});
            } else if (const auto grade = MatchLine(
                           line, number + ", SRC, SRC" + next + ", 0, 0, 1, GB(S), " + steel + ", 1, GB(RC), C%d")) {
                materials.push_back({EMaterial::Composite, ElasticRatio((*grade)[0])});
                ++composites;
                break;
            }
        }
        if (materials.size() == before) {
            Fail("material " + std::to_string(before + 1) + " cannot be '" + Printable(line) + "'");
        }
    }
    Expect(!materials.empty(), "a material block is empty");
    found.materials = std::ssize(materials);
}

/// Sections of shapes that have no lines leave gaps in the numbers.
void CModelChecker::CheckSections()
{
    const bool hasBlock = text.TakeHeader("*SECTION    ; Section", 19);
    Expect(hasBlock == !beams.empty(), "a section block without beams, or beams without one");
    while (hasBlock && !text.Peek().empty()) {
        CheckSection(text.Take());
    }
    if (hasBlock) {
        text.Take("");
    }
}

void CModelChecker::CheckSection(std::string_view line)
{
    std::optional<CLineValues> values;
    double elasticRatio = 0.0;
    for (const std::string_view pattern : kOneLineSections) {
        values = values ? values : MatchLine(line, pattern);
    }
    for (const auto& [pattern, secondPattern] : kCompositeSections) {
        if (const auto composite = MatchLine(line, pattern)) {
            values = composite;
            elasticRatio = (*composite)[2];
            text.TakeMatch(secondPattern);
        }
    }
    if (const auto square = MatchLine(line, "  %d, VALUE, Sec%d, CC, SB, BUILT, %g, %g, 0, 0, 0, 0")) {
        values = square;
        Expect(IsSameNumber((*square)[2], (*square)[3]), "a square has two side lengths");
        text.TakeMatch("    %g, 0., 0., %g, %g, %g");
        text.Take("    0, 0, 0, 0, 0, 0, 0, 0, 0, 0");
    }
    if (!values) {
        Fail("no section is '" + Printable(line) + "'");
    }
    const auto number = static_cast<std::size_t>((*values)[0]);
    Expect((*values)[0] == (*values)[1], "a section has the name of another");
    Expect((*values)[0] >= 1 && (sections.empty() || sections.rbegin()->first < number),
           "the section numbers do not rise");
    sections[number] = elasticRatio;
}

void CModelChecker::CheckThicknesses()
{
    if (text.TakeHeader("*THICKNESS    ; Thickness", 10)) {
        while (!text.Peek().empty()) {
            ++thicknesses;
            text.TakeMatch("  " + std::to_string(thicknesses) + ", VALUE, YES, %g, 0");
        }
        text.Take("");
        Expect(thicknesses > 0, "a thickness block is empty");
    }
    found.thicknesses = static_cast<std::int64_t>(thicknesses);
}

/// Every beam's section counts from its first use, so a number is new only when it is the next one. A section is
/// composite where the material is, and both are of the same concrete.
void CModelChecker::CheckProperties()
{
    std::size_t lastSection = 0;
    for (const CElement& beam : beams) {
        Expect(beam.material >= 1 && beam.material <= materials.size(), "a beam's material is not written");
        Expect(beam.property >= 1 && beam.property <= lastSection + 1, "a section was passed over");
        lastSection = std::max(lastSection, beam.property);
        const CMaterial& material = materials[beam.material - 1];
        const auto section = sections.find(beam.property);
        if (section != sections.end() && section->second != material.elasticRatio) {
            Fail("the material and section of element " + std::to_string(beam.number) + " do not fit");
        }
    }
    Expect(sections.empty() || sections.rbegin()->first <= lastSection, "a section is of no beam");
    found.sections = static_cast<std::int64_t>(lastSection);
    for (const CElement& plane : planes) {
        const bool isThere = plane.material >= 1 && plane.material <= materials.size();
        Expect(isThere && materials[plane.material - 1].type == EMaterial::Concrete,
               "a wall's or plate's material is no concrete that is written");
        Expect(plane.property >= 1 && plane.property <= thicknesses, "a thickness is not written");
    }
}

}  // namespace satwecvt

// The sections. Their shapes fill the columns differently: a column that a shape has no dimension for is a plain 0.
#include "modelfile/LineFields.h"
#include "modelfile/ModelBlock.h"

#include <algorithm>
#include <iterator>
#include <span>

namespace satwecvt {

namespace {

/// The header stands alone where no section is of a shape that has a line.
constexpr CBlockForm kSections{
    .keywordLine = "*SECTION    ; Section", .comments = 19, .noun = "section", .canBeEmpty = true};

/// A letter for each of a shape's values: v where it can be any, or the digit that it always is. Those of a composite
/// section stand in its second line, with a 2 behind the first two.
struct CShape {
    ESection type;
    std::string_view typeWord;
    std::string_view shapeWord;
    std::string_view values;
};

constexpr CShape kShapes[] = {
    {ESection::Value, "VALUE", "SB", "vv0000"},
    {ESection::User, "DBUSER", "SB", "vv0000"},
    {ESection::User, "DBUSER", "H", "vvvvvv"},
    {ESection::User, "DBUSER", "SR", "v00000"},
    {ESection::User, "DBUSER", "C", "vvvvvv"},
    {ESection::User, "DBUSER", "B", "vvvv0v"},
    {ESection::User, "DBUSER", "P", "vv0000"},
    {ESection::User, "DBUSER", "2C", "vvvvv0"},
    {ESection::Combined, "COMBINED", "H2T", "vvvv0vvvv"},
    {ESection::Composite, "SRC", "EPC", "v0vv0000"},
    {ESection::Composite, "SRC", "RHB", "vvvvvv00"},
    {ESection::Composite, "SRC", "RBC", "vvvvvv00"},
};

[[nodiscard]] bool TakeValues(CLineFields& fields, std::string_view letters, std::span<double> values)
{
    for (std::size_t i = 0; i < letters.size(); ++i) {
        if (i > 0 && !fields.Take(", ")) {
            return false;
        }
        if (!(letters[i] == 'v' ? fields.Take(values[i]) : fields.Take(letters.substr(i, 1)))) {
            return false;
        }
    }
    return true;
}

/// Takes a section's number, type, name and shape. Returns null where there is no such shape.
const CShape* TakeShape(CLineFields& fields, CSection& section)
{
    std::int32_t numberInName = 0;
    if (!fields.Take("  ") || !fields.Take(section.number) || !fields.Take(", ")) {
        return nullptr;
    }
    const std::string_view type = fields.TakeWord();
    if (!fields.Take(", Sec") || !fields.Take(numberInName) || numberInName != section.number ||
        !fields.Take(", CC, ")) {
        return nullptr;
    }
    const std::string_view word = fields.TakeWord();
    const auto* const shape = std::find_if(std::begin(kShapes), std::end(kShapes), [&](const CShape& known) {
        return known.typeWord == type && known.shapeWord == word;
    });
    return shape != std::end(kShapes) && fields.Take(", ") ? shape : nullptr;
}

/// A section that is given by its area and stiffness; the other properties are left open.
[[nodiscard]] bool ReadValues(CLineFields fields, const CShape& shape, CModelText& text, CSection& section)
{
    if (!fields.Take("BUILT, ") || !TakeValues(fields, shape.values, section.values) || !fields.IsDone()) {
        return false;
    }
    auto& further = section.further;
    return Fits(text.Take(), "    ", further[0], "0., 0.", further[3], further[4], further[5]) &&
           text.Take() == "    0, 0, 0, 0, 0, 0, 0, 0, 0, 0";
}

/// The steel's share in the stiffness, and behind it the outer dimensions and those of the steel.
[[nodiscard]] bool ReadComposite(CLineFields fields, const CShape& shape, CModelText& text, CSection& section)
{
    if (!fields.Take("1, ") || !fields.Take(section.composite) || !fields.IsDone()) {
        return false;
    }
    constexpr std::size_t kOuter = 2;
    const std::span<double> values(section.further);
    CLineFields second(text.Take());
    return second.Take("      ") && TakeValues(second, shape.values.substr(0, kOuter), values) &&
           second.Take(", 2, ") && TakeValues(second, shape.values.substr(kOuter), values.subspan(kOuter)) &&
           second.IsDone();
}

[[nodiscard]] bool ReadSection(std::string_view line, CModelText& text, CSection& section)
{
    CLineFields fields(line);
    const CShape* const shape = TakeShape(fields, section);
    if (shape == nullptr) {
        return false;
    }
    section.type = shape->type;
    section.shape = shape->shapeWord;
    switch (shape->type) {
    case ESection::Value:
        return ReadValues(fields, *shape, text, section);
    case ESection::Composite:
        return ReadComposite(fields, *shape, text, section);
    default:
        return fields.Take("2, ") && TakeValues(fields, shape->values, section.values) && fields.IsDone();
    }
}

}  // namespace

/// Every frame element has a section, and nothing else has one.
void ReadSections(CModelText& text, CModelFile& model)
{
    if (model.frameElements.empty()) {
        return;
    }
    ReadNeededBlock(text, kSections,
                    [&](std::string_view line) { return ReadSection(line, text, model.sections.emplace_back()); });
}

}  // namespace satwecvt

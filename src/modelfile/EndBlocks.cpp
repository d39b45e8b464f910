// What holds nodes and the ends of elements: supports, releases and offsets.
#include "modelfile/LineFields.h"
#include "modelfile/ModelBlock.h"

namespace satwecvt {

namespace {

constexpr CBlockForm kSupports{.keywordLine = "*CONSTRAINT    ; Supports", .comments = 1, .noun = "support"};

/// The header stands alone where no end is of a kind that has lines.
constexpr CBlockForm kReleases{
    .keywordLine = "*FRAME-RLS    ; Beam End Release", .comments = 2, .noun = "release", .canBeEmpty = true};

constexpr CBlockForm kOffsets{.keywordLine = "*OFFSET    ; Beam End Offsets", .comments = 2, .noun = "offset"};

/// Takes the six directions of an end, which are held but for the bending moments of a hinge.
[[nodiscard]] bool TakeFlag(CLineFields& fields, bool& isHinge)
{
    isHinge = fields.Take("000011");
    return isHinge || fields.Take("000000");
}

[[nodiscard]] bool ReadRelease(std::string_view line, CModelText& text, CRelease& release)
{
    CLineFields first(line);
    if (!first.Take("  ") || !first.Take(release.element) || !first.Take(", ") ||
        !TakeFlag(first, release.isHingeAtI) || !first.Take(", 0, 0, 0, 0, 0, 0") || !first.IsDone()) {
        return false;
    }
    CLineFields second(text.Take());
    return second.Take("      ") && TakeFlag(second, release.isHingeAtJ) && second.Take(", 0, 0, 0, 0, 0, 0,") &&
           second.IsDone();
}

}  // namespace

void ReadSupports(CModelText& text, CModelFile& model)
{
    ReadNeededBlock(text, kSupports, [&model](std::string_view line) {
        return Fits(line, "  ", model.supports.emplace_back().node, "111111");
    });
}

void ReadReleases(CModelText& text, CModelFile& model)
{
    ReadBlock(text, kReleases,
              [&](std::string_view line) { return ReadRelease(line, text, model.releases.emplace_back()); });
}

/// The group behind the last comma is empty, and two blanks stand in its place.
void ReadOffsets(CModelText& text, CModelFile& model)
{
    ReadBlock(text, kOffsets, [&model](std::string_view line) {
        COffset& offset = model.offsets.emplace_back();
        return Fits(line, "  ", offset.element, "GLOBAL", offset.values, " ");
    });
}

}  // namespace satwecvt

// A model as plans ask for it: by number, and nothing that cannot be drawn. A place is one whose coordinates are
// numbers of at most 1e9.
#pragma once

#include "check/NodesByNumber.h"
#include "model/RecordTable.h"
#include "modelfile/ModelFile.h"
#include "picture/Picture.h"
#include "picture/PlanBox.h"
#include "picture/SectionCut.h"

#include <cstdint>
#include <optional>

namespace satwecvt {

/// The ends of a frame element as it is drawn: its nodes, moved by its end offsets.
struct CPlanEnds {
    CPicturePoint i;
    CPicturePoint j;
};

/// How far two ends are apart in the plan.
CPlanPoint RunOf(const CPlanEnds& ends) noexcept;
double LengthOf(CPlanPoint run) noexcept;

class CPlanModel {
public:
    /// The picture has to outlive it.
    explicit CPlanModel(const CPicture& picture);

    /// Each is null, or 0, where there is none that can be drawn.
    const CNode* NodeOf(std::int32_t number) const noexcept;
    const CSection* SectionOf(const CFrameElement& frame) const noexcept;
    const CSectionCut* CutOf(const CFrameElement& frame) const noexcept;
    const CRelease* ReleaseOf(const CFrameElement& frame) const noexcept { return releases.Find(frame.number); }
    double ThicknessOf(const CPlanarElement& element) const noexcept;

    std::optional<CPlanEnds> EndsOf(const CFrameElement& frame) const noexcept;
    bool IsOfSteel(const CFrameElement& frame) const noexcept;
    bool IsSupported(std::int32_t node) const noexcept { return supports.Find(node) != nullptr; }

    /// The nodes that elements use.
    const CPlanBox& Axes() const noexcept { return axes; }

    /// All that plans draw.
    const CPlanBox& Drawn() const noexcept { return drawn; }

private:
    struct CCutSection {
        const CSection* section;
        std::optional<CSectionCut> cut;
    };

    void AddProperties(const CModelFile& model);
    double AddAxes(const CModelFile& model);
    void AddSections(const CModelFile& model);
    void AddDrawn(const CPicture& picture);

    CNodesByNumber nodes;
    CRecordTable<CCutSection> sections;
    CRecordTable<EMaterial> materials;
    CRecordTable<double> thicknesses;
    CRecordTable<CRelease> releases;
    CRecordTable<COffset> offsets;
    CRecordTable<char> supports;
    double longest = 0.0;  // what a section or a thickness can be: the longest side of the model
    CPlanBox axes;
    CPlanBox drawn;
};

/// Whether plans draw something there.
bool IsPlace(const CPicturePoint& point) noexcept;

}  // namespace satwecvt

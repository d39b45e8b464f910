#include "satwecvt/ConversionReport.h"

namespace satwecvt {

std::string_view StageText(EStage stage) noexcept
{
    switch (stage) {
    case EStage::Read:
        return "Read Data File";
    case EStage::Node:
        return "Write Data File : Node";
    case EStage::Element:
        return "Write Data File : Element";
    case EStage::Material:
        return "Write Data File : Material";
    case EStage::Section:
        return "Write Data File : Section";
    case EStage::Thickness:
        return "Write Data File : Thickness";
    case EStage::Support:
        return "Write Data File : Support";
    case EStage::BeamEndRelease:
        return "Write Data File : Beam End Release";
    case EStage::BeamEndOffset:
        return "Write Data File : Beam End Offset";
    case EStage::LoadCase:
        return "Write Data File : Load Case";
    case EStage::StaticLoad:
        return "Write File : Static Load";
    }
    return "";
}

}  // namespace satwecvt

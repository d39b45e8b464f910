#include "model/SatweModel.h"

namespace satwecvt {

T_SATWE_SECT_D CSatweModel::InputSection(std::int32_t inputSection) const
{
    const T_SATWE_SECT_D* section = inputSections.Find(inputSection);
    return section != nullptr ? *section : T_SATWE_SECT_D{};
}

}  // namespace satwecvt

// What a shell can offer where an option or an argument takes a value.
#pragma once

#include <string_view>

namespace satwecvt {

enum class EValueKind { None, File, SatFile, Folder };

/// By the word that help and man page use for the value: "FILE".
inline EValueKind ValueKindOf(std::string_view value)
{
    if (value == "STRUCTURE" || value == "LOAD") {
        return EValueKind::SatFile;
    }
    if (value == "FILE" || value == "MODEL" || value == "PAGE") {
        return EValueKind::File;
    }
    return value == "FOLDER" ? EValueKind::Folder : EValueKind::None;
}

}  // namespace satwecvt

// What the program's commands were asked to do.
#pragma once

#include <string>

namespace satwecvt {

/// "convert".
struct CConvertOptions {
    std::string structurePath;
    std::string loadPath;
    std::string modelPath;  // empty: beside the structure file
    std::string logPath;    // empty: satwecvt.msg in the working folder
    std::string jsonPath;   // empty: no report; "-": stdout
    bool isStrict = false;
    bool isQuiet = false;
};

/// "check".
struct CCheckOptions {
    std::string structurePath;
    std::string loadPath;
    std::string jsonPath;  // empty: no report; "-": stdout
    bool isStrict = false;
};

}  // namespace satwecvt

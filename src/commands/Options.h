// What the program's commands were asked to do.
#pragma once

#include <string>
#include <vector>

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

/// "view".
struct CViewOptions {
    std::string structurePath;
    std::string loadPath;
    std::string pagePath;     // empty: beside the structure file
    std::string plansFolder;  // empty: no plans
};

/// "batch".
struct CBatchOptions {
    std::vector<std::string> folders;  // none: a list
    std::string listPath;              // empty: folders; "-": stdin
    std::string structureName = "structure.sat";
    std::string loadName = "load.sat";
    std::string jsonLinesPath;  // empty: no record; "-": stdout
    int jobs = 0;               // 0: one for each core
    bool isStrict = false;
};

}  // namespace satwecvt

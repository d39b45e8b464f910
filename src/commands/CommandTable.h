// The one table of commands and options: what the program understands, what --help prints, what the man page and the
// completions hold.
#pragma once

#include "commands/Options.h"

#include <CLI/CLI.hpp>

namespace satwecvt {

/// The commands of `app` fill the options beside it.
struct CCommandTable {
    CCommandTable();
    CCommandTable(const CCommandTable&) = delete;
    CCommandTable& operator=(const CCommandTable&) = delete;

    CConvertOptions convertOptions;
    CCheckOptions checkOptions;
    CViewOptions viewOptions;
    CBatchOptions batchOptions;
    CLI::App app;
    const CLI::App* convert;
    const CLI::App* check;
    const CLI::App* view = nullptr;  // none in a program that was built without a page
    const CLI::App* batch;
};

}  // namespace satwecvt

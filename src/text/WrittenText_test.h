#pragma once

#include "file/MemoryFiles_test.h"
#include "writer/OutputFile.h"

#include <string>

namespace satwecvt {

/// What a function writes into the output file that it is given.
template <class Write>
std::string WrittenText(Write write)
{
    CMemoryFiles system;
    COutputFile file(system);
    file.Open("text");
    write(file);
    file.Close();
    return system.files["text"];
}

}  // namespace satwecvt

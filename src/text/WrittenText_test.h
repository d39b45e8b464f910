#pragma once

#include "file/MemoryFiles_test.h"
#include "text/OutputFile.h"

#include <gtest/gtest.h>

#include <string>

namespace satwecvt {

/// What a function writes into the output file that it is given.
template <class Write>
std::string WrittenText(Write write)
{
    CMemoryFiles system;
    COutputFile file(system);
    EXPECT_EQ(1, file.Open("text"));
    write(file);
    file.Close();
    return system.files["text"];
}

}  // namespace satwecvt

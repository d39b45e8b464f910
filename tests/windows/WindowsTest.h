// What the tests with real windows share: a working folder of their own with a small building in it, a mouse pointer
// that stands in nobody's way, and the promise that no window is left at the end.
#pragma once

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <string>

namespace satwecvt {

class CWindowsTest : public testing::Test {
protected:
    CWindowsTest();
    void TearDown() override;

    /// Writes the building's structure or load file into the working folder, behind that many comment lines; returns
    /// its full path.
    std::string WriteStructure(int comments = 0, const std::string& name = "tower.sat") const;
    std::string WriteLoad(int comments = 0) const;

    /// Writes a file of comment lines alone; returns its full path.
    std::string WriteComments(int lines, const std::string& name = "comments.sat") const;

    std::string InFolder(const std::string& name) const;

    /// The building's model text file, as it has to be.
    static std::string ExpectedModel();

    /// Lines of the building's files, and the steps that its conversion takes: some lines are read twice.
    static constexpr int kStructureLines = 34;
    static constexpr int kLoadLines = 2;
    static constexpr int kSteps = 38;

    const CTemporaryFolder folder;
};

}  // namespace satwecvt

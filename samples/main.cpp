// generate_tower: writes the structure file and the load file of a mixed tower of any size.
//
// The tower stands on a grid of bays. Its lower third is a composite frame, its middle third concrete, its upper third
// steel. Concrete cores run through all stories. A tower of a million lines needs no more memory than one of a
// thousand.

#include "CommandLine.h"
#include "TowerFiles.h"

#include <cstdint>
#include <exception>
#include <iostream>
#include <limits>
#include <stdexcept>

namespace satwecvt {

namespace {

/// Writes both files and prints the size of the tower. Throws std::runtime_error when the tower or the paths do not
/// allow it.
void GenerateTower(const CTowerOptions& options)
{
    if (options.structurePath == options.loadPath) {
        throw std::runtime_error("the two files need two names");
    }
    const CTower& tower = options.tower;
    const std::int64_t lines = StructureLines(tower) + LoadLines(tower);
    if (lines > std::numeric_limits<std::int32_t>::max()) {
        throw std::runtime_error("the tower is too large: its numbers would not fit into 32 bits");
    }
    WriteStructureFile(options.structurePath, tower);
    WriteLoadFile(options.loadPath, tower);
    std::cout << tower.stories << " stories, " << tower.baysX << " x " << tower.baysY << " bays, " << lines
              << " lines\n";
}

}  // namespace

}  // namespace satwecvt

int main(int argc, char** argv)
{
    using namespace satwecvt;
    int exitCode = 0;
    try {
        if (const auto options = ParseCommandLine(argc, argv, exitCode)) {
            GenerateTower(*options);
        }
    } catch (const std::exception& failure) {
        std::cerr << "generate_tower: " << failure.what() << "\n";
        return 1;
    }
    return exitCode;
}

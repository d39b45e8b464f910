#include "CommandLine.h"

#include "TowerFiles.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdint>
#include <limits>

namespace satwecvt {

namespace {

struct CArguments {
    std::int64_t stories = 8;
    std::int64_t baysX = 5;
    std::int64_t baysY = 3;
    std::int64_t lines = 0;  // 0: not asked for
    std::string structurePath;
    std::string loadPath;
};

void AddOptions(CLI::App& app, CArguments& arguments)
{
    app.add_option("--stories", arguments.stories, "number of stories")
        ->check(CLI::Range(1, 1000))
        ->capture_default_str();
    CLI::Option* baysX = app.add_option("--bays-x", arguments.baysX, "bays along x");
    baysX->check(CLI::Range(4, 5000))->capture_default_str();
    CLI::Option* baysY = app.add_option("--bays-y", arguments.baysY, "bays along y");
    baysY->check(CLI::Range(3, 5000))->capture_default_str();
    app.add_option("--lines", arguments.lines,
                   "choose the bays: the smallest tower with so many lines in both files together")
        ->check(CLI::Range(1, std::numeric_limits<std::int32_t>::max()))
        ->excludes(baysX)
        ->excludes(baysY);
    app.add_option("STRUCTURE", arguments.structurePath, "structure file to write")->required();
    app.add_option("LOAD", arguments.loadPath, "load file to write")->required();
}

/// The smallest plan of about three bays to two whose tower has at least so many lines.
CTower FitToLines(std::int64_t stories, std::int64_t lines)
{
    for (std::int64_t baysX = 4;; ++baysX) {
        const CTower tower(stories, baysX, std::max<std::int64_t>(3, 2 * baysX / 3));
        if (StructureLines(tower) + LoadLines(tower) >= lines) {
            return tower;
        }
    }
}

CTower AskedTower(const CArguments& arguments)
{
    return arguments.lines > 0 ? FitToLines(arguments.stories, arguments.lines)
                               : CTower(arguments.stories, arguments.baysX, arguments.baysY);
}

}  // namespace

std::optional<CTowerOptions> ParseCommandLine(int argc, const char* const* argv, int& exitCode)
{
    CArguments arguments;
    CLI::App app("Writes the structure and load file of a mixed tower", "generate_tower");
    AddOptions(app, arguments);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& stopped) {
        exitCode = app.exit(stopped);
        return std::nullopt;
    }
    return CTowerOptions{AskedTower(arguments), arguments.structurePath, arguments.loadPath};
}

}  // namespace satwecvt

// A command and its options as help, man page and completions tell them: what the table knows, without its parser.
#pragma once

#include "commands/CommandText.h"

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace satwecvt {

struct COptionEntry {
    std::vector<std::string> names;  // "-o", "--output"; none of an argument that is known by its place
    std::string value;               // what it takes: "MODEL"; empty: nothing
    std::string description;
    std::string defaultValue;           // empty: none
    std::vector<std::string> excludes;  // what it cannot stand together with, one name each
    bool isRequired = false;
    bool isRepeated = false;
};

struct CCommandEntry {
    std::string name;
    std::string description;
    std::vector<COptionEntry> arguments;  // known by their places
    std::vector<COptionEntry> options;
    CCommandText text;
};

struct CProgramEntry {
    CCommandEntry program;
    std::string version;  // "satwecvt 1.0.0"
    std::vector<CCommandEntry> commands;
};

/// Of the program or of one of its commands.
CCommandEntry EntryOf(const CLI::App& command);

/// Of the whole table.
CProgramEntry ProgramEntry();

/// The description of an option, and what it does otherwise, and what it cannot stand together with.
std::string WholeDescription(const COptionEntry& option);

}  // namespace satwecvt

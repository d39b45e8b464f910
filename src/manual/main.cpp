// Writes the man page and the completions into a folder: write_manual FOLDER.
#include "commands/CommandEntry.h"
#include "manual/Completions.h"
#include "manual/ManPage.h"

#include <fstream>
#include <iostream>
#include <string>

namespace satwecvt {
namespace {

bool IsWritten(const std::string& path, const std::string& content)
{
    std::ofstream file(path, std::ios::binary);
    file << content;
    file.close();
    if (!file) {
        std::cerr << "write_manual: " << path << " could not be written\n";
    }
    return static_cast<bool>(file);
}

bool IsManualWritten(const std::string& folder)
{
    const CProgramEntry entry = ProgramEntry();
    const std::string& name = entry.program.name;
    return IsWritten(folder + "/" + name + ".1", ManPage(entry)) &&
           IsWritten(folder + "/" + name + ".bash", BashCompletion(entry)) &&
           IsWritten(folder + "/_" + name, ZshCompletion(entry)) &&
           IsWritten(folder + "/" + name + ".fish", FishCompletion(entry));
}

}  // namespace
}  // namespace satwecvt

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "write_manual: give the folder to write to\n";
        return 2;
    }
    return satwecvt::IsManualWritten(argv[1]) ? 0 : 1;
}

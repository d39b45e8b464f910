// An input that somebody else changes between the counting of its lines and its reading, or while it is read. What is
// read is converted, as if it had always stood there; the count of lines is for the progress alone.

#include "file/MemoryFiles_test.h"
#include "support/CheckedConversion.h"
#include "support/Conversion.h"
#include "support/SmallBuilding.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <map>
#include <string>

namespace satwecvt {
namespace {

/// Files that change once, at a moment when none of them is open.
class CChangingFiles : public CMemoryFiles {
public:
    std::function<void(std::map<std::string, std::string>&)> change;

    int OpenForReading(const char* path) override
    {
        if (++opens == kOpenForReading) {
            change(files);
        }
        return CMemoryFiles::OpenForReading(path);
    }

private:
    static constexpr int kOpenForReading = 3;  // the first two are for counting

    int opens = 0;
};

struct CChanged {
    CConversionResult conversion;
    CScriptedInterface screen;
};

CChanged ConvertChanging(const std::string& structure, const std::string& load, const std::string& laterStructure,
                         const std::string& laterLoad)
{
    CChangingFiles files;
    files.files = {{"structure.sat", structure}, {"load.sat", load}};
    files.change = [&](std::map<std::string, std::string>& contents) {
        contents["structure.sat"] = laterStructure;
        contents["load.sat"] = laterLoad;
    };
    CChanged changed;
    changed.conversion = ConvertMemoryFiles(changed.screen, files);
    EXPECT_EQ(laterStructure, files.files["structure.sat"]);
    EXPECT_EQ(laterLoad, files.files["load.sat"]);
    EXPECT_EQ(0, files.OpenCount());
    EXPECT_EQ(0, changed.screen.windowsAlive);
    EXPECT_EQ(std::vector{LineCount(structure) + LineCount(load)}, changed.screen.totals);
    return changed;
}

/// The later files are converted as they would be if they had been there from the start.
void ExpectLaterFiles(const std::string& structure, const std::string& load, const std::string& laterStructure,
                      const std::string& laterLoad)
{
    const CAnswer expected = Convert(laterStructure, laterLoad);
    const CChanged changed = ConvertChanging(structure, load, laterStructure, laterLoad);
    EXPECT_EQ(expected.conversion.result, changed.conversion.result);
    EXPECT_EQ(expected.conversion.model, changed.conversion.model);
    EXPECT_EQ(expected.conversion.messageLog, changed.conversion.messageLog);
    EXPECT_EQ(expected.screen.messages, changed.screen.messages);
    EXPECT_EQ(expected.screen.steps, changed.screen.steps);
}

TEST(InputsAfterTheCount, GrownFromNothingAreConverted)
{
    ExpectLaterFiles("", "", SmallStructure(), SmallLoads());
    ExpectLaterFiles("C one line\n", "0\n", SmallStructure(), SmallLoads());
}

TEST(InputsAfterTheCount, GrownByStoriesAndLoadsAreConverted)
{
    const std::string oneStory =
        Replaced(SmallStructure().substr(0, SmallStructure().find("C Story 2")), "2 4 4 0 0\n", "1 4 4 0 0\n");
    ExpectLaterFiles(oneStory, "1\n1 1 1 0 1 1\n", SmallStructure(), SmallLoads());
}

TEST(InputsAfterTheCount, ShrunkToAnyLineAreReadAsFarAsTheyGo)
{
    for (std::int32_t lines = 0; lines <= LineCount(SmallStructure()); ++lines) {
        SCOPED_TRACE(lines);
        ExpectLaterFiles(SmallStructure(), SmallLoads(), FirstLines(SmallStructure(), lines), SmallLoads());
    }
    for (std::int32_t lines = 0; lines <= LineCount(SmallLoads()); ++lines) {
        SCOPED_TRACE(lines);
        ExpectLaterFiles(SmallStructure(), SmallLoads(), SmallStructure(), FirstLines(SmallLoads(), lines));
    }
}

TEST(InputsAfterTheCount, ReplacedByEachOtherAreTakenForWhatTheyAre)
{
    ExpectLaterFiles(SmallStructure(), SmallLoads(), SmallLoads(), SmallStructure());
}

TEST(InputsAfterTheCount, ThatAreGoneCannotBeOpened)
{
    for (const auto& [path, message] :
         {std::pair{"structure.sat", "Can't open structure input file!"}, {"load.sat", "Can't open load file!"}}) {
        CChangingFiles files;
        files.files = {{"structure.sat", SmallStructure()}, {"load.sat", SmallLoads()}};
        files.change = [gone = path](std::map<std::string, std::string>& contents) { contents.erase(gone); };
        CScriptedInterface screen;
        const CConversionResult conversion = ConvertMemoryFiles(screen, files);
        EXPECT_EQ(-1, conversion.result);
        EXPECT_EQ(Messages{message}, screen.messages);
        EXPECT_EQ(1U, files.files.size());
        EXPECT_EQ(0, files.OpenCount());
    }
}

TEST(InputsAfterTheCount, ThatHaveComeAreConverted)
{
    CChangingFiles files;
    files.change = [](std::map<std::string, std::string>& contents) {
        contents = {{"structure.sat", SmallStructure()}, {"load.sat", SmallLoads()}};
    };
    CScriptedInterface screen;
    ExpectSmallBuilding(ConvertMemoryFiles(screen, files));
    EXPECT_EQ(std::vector{0}, screen.totals);
}

/// A file that changes at one of its reads. It can grow, and it can shrink to what has been read of it.
class CFilesChangingInARead : public CMemoryFiles {
public:
    std::string changing;
    int changeAtRead = 0;
    std::string growBy;  // nothing: it shrinks

    std::ptrdiff_t Read(int file, char* buffer, std::size_t size) override
    {
        if (PathOf(file) != changing) {
            return CMemoryFiles::Read(file, buffer, size);
        }
        position = file == lastFile ? position : 0;
        lastFile = file;
        if (++reads == changeAtRead) {
            Change();
        }
        const std::ptrdiff_t count = CMemoryFiles::Read(file, buffer, size);
        position += static_cast<std::size_t>(count);
        return count;
    }

    int reads = 0;

private:
    void Change()
    {
        std::string& bytes = files[changing];
        bytes = growBy.empty() ? bytes.substr(0, position) : bytes + growBy;
    }

    int lastFile = -1;
    std::size_t position = 0;
};

bool IsSameConversion(const CConversionResult& a, const CConversionResult& b)
{
    return a.result == b.result && a.model == b.model && a.messageLog == b.messageLog;
}

/// Lets one input of the small building change at each of its reads in turn: from its first bytes into the whole, or
/// from the whole into what has been read of it. The conversion ends as one of the file before the change, or of the
/// file after it; returns how often it was the latter.
int ConvertChangingInReads(const std::string& path, std::size_t growBy)
{
    std::map<std::string, std::string> before = {{"structure.sat", SmallStructure()}, {"load.sat", SmallLoads()}};
    const std::string whole = before[path];
    before[path].resize(whole.size() - growBy);
    const CAnswer unchanged = Convert(before["structure.sat"], before["load.sat"]);
    int changes = 0;
    for (int number = 1;; ++number) {
        SCOPED_TRACE(path + " at read " + std::to_string(number));
        CFilesChangingInARead files;
        files.files = before;
        files.mostBytesPerCall = 100;
        files.changing = path;
        files.changeAtRead = number;
        files.growBy = whole.substr(before[path].size());
        CScriptedInterface screen;
        const CConversionResult conversion = ConvertMemoryFiles(screen, files);
        if (files.reads < number) {
            return changes;
        }
        const CAnswer changed = Convert(files.files["structure.sat"], files.files["load.sat"]);
        const bool isChanged = IsSameConversion(changed.conversion, conversion);
        EXPECT_TRUE(isChanged || IsSameConversion(unchanged.conversion, conversion));
        changes += isChanged && !IsSameConversion(changed.conversion, unchanged.conversion) ? 1 : 0;
        EXPECT_EQ(0, files.OpenCount());
    }
}

// More than two reads of a hundred bytes: the file changes in its middle, too.
constexpr std::size_t kGrowth = 250;

TEST(InputsWhileTheyAreRead, MayGrow)
{
    EXPECT_GT(ConvertChangingInReads("structure.sat", kGrowth), 8);
    EXPECT_GT(ConvertChangingInReads("load.sat", kGrowth), 2);
}

TEST(InputsWhileTheyAreRead, MayShrink)
{
    EXPECT_GT(ConvertChangingInReads("structure.sat", 0), 8);
    EXPECT_GT(ConvertChangingInReads("load.sat", 0), 2);
}

}  // namespace
}  // namespace satwecvt

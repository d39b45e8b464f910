// Buildings that were spoilt at random, 20,000 of them, always the same ones: whatever the bytes are, the conversion
// has one of its three results, leaves the inputs alone, and keeps its promises to the progress window.
//
// A failure names its round; `--gtest_filter` and a smaller loop bring back that round alone, since each has a
// generator of its own.

#include "support/Conversion.h"
#include "support/SmallBuilding.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace satwecvt {
namespace {

namespace fs = std::filesystem;

struct CInput {
    std::string structure;
    std::string load;
};

CInput ReadInput(const fs::path& folder)
{
    return {ReadBytes(folder / "structure.sat").value_or(""), ReadBytes(folder / "load.sat").value_or("")};
}

/// The samples' frame, the small building (often, since it holds everything), and the inputs of the whole-file cases.
std::vector<CInput> OriginalInputs()
{
    std::vector<fs::path> folders;
    for (const auto& entry : fs::directory_iterator(SATWECVT_CASES)) {
        folders.push_back(entry.path());
    }
    std::sort(folders.begin(), folders.end());
    std::vector<CInput> inputs(100, {SmallStructure(), SmallLoads()});
    inputs.insert(inputs.end(), 50, ReadInput(SATWECVT_SAMPLES "/frame"));
    for (const fs::path& folder : folders) {
        inputs.push_back(ReadInput(folder));
    }
    return inputs;
}

constexpr std::string_view kHostileNumbers[] = {
    "0",        "-1",          "1",           "2",          "3",        "7",      "-7",   "1e20",
    "-1e20",    "2147483647",  "-2147483648", "2147483648", "1e999",    "-1e999", "nan",  "inf",
    "0x1p3",    "1/0",         "0/0",         "3*-2",       "1e-320",   "-0",     "1D5",  "1e308*10",
    "65536",    "4294967297",  "0.5",         "-0.5",       "99999999", "4-2",    "1e-6", "2147483646",
    "++++++++", "-2147483647", "1,2",         "1=2",        "C",        "12",     "14",   "13"};

constexpr char kHostileBytes[] = {',', '=', '+', '-', '*', '/', '\0', '\r', '\n', '\x1A', ' ', '\t', 'C', 'e', '\xFF'};

class CMutator {
public:
    explicit CMutator(std::uint32_t seed) : random(seed) {}

    /// A number from 0 to `count` - 1.
    std::size_t Below(std::size_t count) { return random() % count; }

    void Mutate(std::string& text, const std::string& other)
    {
        switch (Below(10)) {
        case 0:
            return FlipByte(text);
        case 1:
        case 2:
            return ChangeLines(text);
        case 3:
        case 4:
        case 5:
        case 6:
            return ReplaceNumber(text);
        case 7:
            return InsertByte(text);
        case 8:
            text.resize(Below(text.size() + 1));
            return;
        default:
            return Splice(text, other);
        }
    }

private:
    void FlipByte(std::string& text)
    {
        if (!text.empty()) {
            char& byte = text[Below(text.size())];
            byte = static_cast<char>(byte ^ (1 << Below(8)));
        }
    }

    void InsertByte(std::string& text)
    {
        const std::size_t count = Below(50) == 0 ? 600 : 1;  // now and then more than a line may hold
        text.insert(Below(text.size() + 1), count, kHostileBytes[Below(std::size(kHostileBytes))]);
    }

    void ChangeLines(std::string& text)
    {
        std::vector<std::string> lines = SplitLines(text);
        if (lines.empty()) {
            return;
        }
        const std::size_t line = Below(lines.size());
        const auto at = lines.begin() + static_cast<std::ptrdiff_t>(line);
        switch (Below(3)) {
        case 0:
            lines.erase(at);
            break;
        case 1:
            lines.insert(at, lines[line]);
            break;
        default:
            std::swap(lines[line], lines[Below(lines.size())]);
        }
        text = JoinLines(lines);
    }

    void ReplaceNumber(std::string& text)
    {
        constexpr std::string_view kNumber = "0123456789.+-*/";
        const std::size_t begin = text.find_first_of("0123456789", Below(text.size() + 1));
        if (begin != std::string::npos) {
            const std::size_t end = std::min(text.find_first_not_of(kNumber, begin), text.size());
            text.replace(begin, end - begin, kHostileNumbers[Below(std::size(kHostileNumbers))]);
        }
    }

    void Splice(std::string& text, const std::string& other)
    {
        text.resize(Below(text.size() + 1));
        text += other.substr(Below(other.size() + 1));
    }

    std::mt19937 random;
};

class Mutation : public testing::Test {
protected:
    const std::vector<CInput> originals = OriginalInputs();

    CInput MakeInput(CMutator& mutator) const
    {
        CInput input = originals[mutator.Below(originals.size())];
        const CInput& other = originals[mutator.Below(originals.size())];
        for (std::size_t count = 1 + mutator.Below(4); count > 0; --count) {
            const bool isLoad = mutator.Below(4) == 0;
            mutator.Mutate(isLoad ? input.load : input.structure, isLoad ? other.load : other.structure);
        }
        return input;
    }

    static CConversionResult Convert(const CInput& input, CScriptedInterface& screen)
    {
        CMemoryFiles system;
        system.files = {{"structure.sat", input.structure}, {"load.sat", input.load}};
        const CConversionResult conversion = ConvertMemoryFiles(screen, system);
        EXPECT_EQ(input.structure, system.files["structure.sat"]);
        EXPECT_EQ(input.load, system.files["load.sat"]);
        EXPECT_EQ(0, system.OpenCount());
        EXPECT_EQ(0, screen.windowsAlive);
        EXPECT_TRUE(screen.fileErrors.empty());
        EXPECT_TRUE(screen.messages.empty());
        return conversion;
    }

    static void CheckAnswer(const CConversionResult& conversion, const CScriptedInterface& screen)
    {
        const bool isCancelled = conversion.result == 1;
        EXPECT_EQ(isCancelled, screen.cancelAtStep != 0 && screen.steps == screen.cancelAtStep);
        EXPECT_EQ(screen.steps, conversion.report.lines.read + (isCancelled ? 1 : 0));
        EXPECT_EQ(conversion.model.has_value(), conversion.messageLog.has_value());
        if (conversion.result == 0) {
            ASSERT_TRUE(conversion.model.has_value());
            EXPECT_NE(std::string::npos, conversion.model->find("*STLDCASE"));
        } else {
            EXPECT_TRUE(isCancelled || conversion.result == -1) << conversion.result;
        }
        EXPECT_FALSE(isCancelled && conversion.model.has_value());
        EXPECT_TRUE(!conversion.model || conversion.model->starts_with("*VERSION\n  5.8.0\n\n"));
    }

    static void ExpectSame(const CConversionResult& expected, const CInput& input)
    {
        CScriptedInterface screen;
        const CConversionResult conversion = Convert(input, screen);
        EXPECT_EQ(expected.result, conversion.result);
        EXPECT_EQ(expected.model, conversion.model);
        EXPECT_EQ(expected.messageLog, conversion.messageLog);
        EXPECT_EQ(expected.report.lines.read, conversion.report.lines.read);
    }
};

/// The input with the line ends of the other kind, unless it has some of them already.
CInput WithCrLf(const CInput& input)
{
    const auto convert = [](const std::string& text) {
        const bool isPlain = text.find('\r') == std::string::npos && text.find('\n') != std::string::npos;
        return isPlain ? Replaced(text, "\n", "\r\n") : text;
    };
    return {convert(input.structure), convert(input.load)};
}

TEST_F(Mutation, OfAnyKindHasADefinedAnswer)
{
    int written = 0;
    int failed = 0;
    int cancelled = 0;
    for (std::uint32_t round = 0; round < 20'000 && !HasFailure(); ++round) {
        SCOPED_TRACE(testing::Message() << "round " << round);
        CMutator mutator(round);
        const CInput input = MakeInput(mutator);
        CScriptedInterface screen;
        const bool mayCancel = mutator.Below(8) == 0;
        screen.cancelAtStep = mayCancel ? static_cast<std::int64_t>(1 + mutator.Below(100)) : 0;
        const CConversionResult conversion = Convert(input, screen);
        CheckAnswer(conversion, screen);
        written += conversion.result == 0 ? 1 : 0;
        failed += conversion.result == -1 ? 1 : 0;
        cancelled += conversion.result == 1 ? 1 : 0;
        if (round % 50 == 0 && conversion.result != 1) {
            ExpectSame(conversion, input);
            ExpectSame(conversion, WithCrLf(input));
        }
    }
    // The mix has to reach both the writers and the ways out of the readers.
    EXPECT_GT(written, 4'000);
    EXPECT_GT(failed, 4'000);
    EXPECT_GT(cancelled, 500);
}

}  // namespace
}  // namespace satwecvt

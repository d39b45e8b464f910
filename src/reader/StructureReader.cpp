#include "reader/StructureReader.h"

#include "reader/RecordParsing.h"

#include <algorithm>
#include <string>
#include <utility>

namespace satwecvt {

int CStructureReader::Read()
{
    if (ReadHeader() == 0 || ReadSections() == 0 || ReadModelNodes() == 0) {
        return 0;
    }
    for (std::int32_t block = 0; block < model.storyCount; ++block) {
        reader.BeginStory(block + 1);
        if (ReadStory() == 0) {
            return 0;
        }
    }
    model.stories.SortByKey();
    return 1;
}

/// Up to five numbers: the counts of stories, sections and model-level nodes, and two that nothing uses.
int CStructureReader::ReadHeader()
{
    reader.Begin("file header");
    if (reader.ReadNumbers() == 0) {
        return 0;
    }
    model.storyCount = reader.Numbers().IntegerOr0(1);
    model.sectionCount = reader.Numbers().IntegerOr0(2);
    model.nodeCount = reader.Numbers().IntegerOr0(3);
    return 1;
}

int CStructureReader::ReadSections()
{
    reader.Begin("section definitions");
    T_SATWE_SECT_D section;
    bool isLineA = true;
    const int answer = reader.ReadLines(2 * std::int64_t{model.sectionCount}, [&] {
        if (isLineA) {
            section = ParseSectionLineA(reader.Numbers());
            section.line = reader.Line();
        } else {
            ParseSectionLineB(reader.Numbers(), section);
            model.inputSections.Insert(section.number, section);
        }
        isLineA = !isLineA;
    });
    model.inputSections.SortByKey();
    return answer;
}

int CStructureReader::ReadModelNodes()
{
    reader.Begin("model-level nodes");
    return ReadNodes(model.nodeCount, model.nodes);
}

int CStructureReader::ReadNodes(std::int32_t count, CRecordTable<T_SATWE_STND_D>& nodes)
{
    nodes.Reserve(reader.Lines().MostRecords(count));
    const int answer = reader.ReadLines(count, [&] {
        T_SATWE_STND_D node = ParseNode(reader.Numbers());
        node.line = reader.Line();
        nodes.Insert(reader.Numbers().Integer(1), node);
    });
    nodes.SortByKey();
    return answer;
}

int CStructureReader::ReadStory()
{
    T_SATWE_STIF_D story;
    if (ReadStoryLine1(story) == 0 || ReadStoryLine2() == 0 || ReadStoryLine3(story) == 0 ||
        ReadStoryLine4(story) == 0) {
        return 0;
    }
    reader.Begin("node lines");
    if (story.nodeCount != 0 && ReadNodes(story.nodeCount, story.nodes) == 0) {
        return 0;
    }
    if (members.ReadMembers(story) == 0) {
        return 0;
    }
    const std::int32_t key = story.key;
    model.stories.Insert(key, std::move(story));
    return 1;
}

int CStructureReader::ReadStoryLine1(T_SATWE_STIF_D& story)
{
    reader.Begin("story line 1");
    if (reader.ReadNumbers() == 0) {
        return 0;
    }
    story.line = reader.Line();
    story.key = reader.Numbers().IntegerOr0(1);
    story.storyNo = reader.Numbers().IntegerOr0(2);
    return 1;
}

/// A list of integers that nothing uses.
int CStructureReader::ReadStoryLine2()
{
    reader.Begin("story line 2");
    return reader.ReadNumbers();
}

/// The line may be repeated any number of times, with comments in between. The first line that differs is read again,
/// as story line 4; so a story line 4 that looks like story line 3 is dropped as one more repeat.
int CStructureReader::ReadStoryLine3(T_SATWE_STIF_D& story)
{
    reader.Begin("story line 3");
    CDataLines& lines = reader.Lines();
    if (lines.ReadDataLine() == 0) {
        return 0;
    }
    const std::string text(lines.Text());
    const CTextLine textLine = lines.TextLine();
    do {
        if (lines.ReadDataLine() == 0) {
            return 0;
        }
    } while (lines.Text() == text);
    lines.StepBack();

    CLineNumbers& numbers = reader.NewNumbers();
    const CNumberText from{text, {&textLine, 1}};
    if (lines.ParseNumbers(from, numbers) == 0) {
        return 0;
    }
    const std::size_t count = std::min(numbers.Count(), story.storyValues.size());
    std::copy_n(numbers.Values().begin(), count, story.storyValues.begin());
    for (std::size_t grade = 2; grade <= count; ++grade) {
        static_cast<void>(numbers.Integer(grade));  // the writers truncate it
    }
    story.storyExtra = numbers.IntegerOr0(6);
    lines.LookAtUse(numbers, {&from, 1});
    return 1;
}

int CStructureReader::ReadStoryLine4(T_SATWE_STIF_D& story)
{
    reader.Begin("story line 4");
    if (reader.ReadNumbers() == 0) {
        return 0;
    }
    const CLineNumbers& numbers = reader.Numbers();
    story.nodeCount = numbers.IntegerOr0(1);
    story.beamCount = numbers.IntegerOr0(2);
    story.columnCount = numbers.IntegerOr0(3);
    story.braceCount = numbers.IntegerOr0(4);
    story.wallCount = numbers.IntegerOr0(5);
    story.plateCount = numbers.IntegerOr0(6);
    return 1;
}

}  // namespace satwecvt

// The converter as the worker of a page calls it: by functions of C that take and return numbers and bytes. A module
// converts once; its memory goes with it.

#include "conversion/MemoryConversion.h"
#include "output/MemoryOutputs.h"
#include "picture/Picture.h"
#include "picture/PictureColumns.h"
#include "picture/StoryPlans.h"
#include "reader/FileKind.h"
#include "satwecvt/ConvertSatwe.h"
#include "web/Answer.h"
#include "web/HostFiles.h"
#include "web/ProgressTeller.h"

#include <cstddef>
#include <new>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace satwecvt {

namespace {

/// What the page gets: views of bytes that live as long as the module.
enum class EPart { Answer, Model, Log, Picture };

/// Whether the picture has a plan of each story, for a page that cannot draw in three dimensions.
enum class EPlans { Wanted, Unwanted };

std::vector<std::string> PlansOf(const CPicture& picture)
{
    const CStoryPlans plans(picture);
    std::vector<std::string> texts;
    for (std::size_t story = 0; story < picture.stories.size(); ++story) {
        texts.push_back(plans.Plan(story));
    }
    return texts;
}

CColumnBytes ColumnsOf(const CPicture& picture, EPlans plans)
{
    CColumnBytes columns = PictureColumns(picture);
    columns.Add(kPlansColumn, plans == EPlans::Wanted ? PlansOf(picture) : std::vector<std::string>());
    return columns;
}

class CFace {
public:
    void Convert(const std::string& structureName, const std::string& loadName, EPlans plans)
    {
        CProgressTeller progress;
        const COutcome outcome =
            ConvertInMemory(progress, outputs, kInputPaths[0], kInputPaths[1], ELook::BehindTheWriting);
        answer = AnswerOf(outcome, LibraryPaths(structureName, loadName));
        if (outcome.IsWhole()) {
            MakePictureOf(outcome, structureName, loadName, plans);
        }
    }

    /// Without an address for what there is not: the picture also where memory was too little for it.
    std::string_view Part(EPart part) const
    {
        switch (part) {
        case EPart::Model:
            return outputs.Bytes(kModelInMemory).value_or(std::string_view());
        case EPart::Log:
            return outputs.Bytes(kLogInMemory).value_or(std::string_view());
        case EPart::Picture:
            return picture ? std::string_view(picture->Bytes()) : std::string_view();
        default:
            return answer.Bytes();
        }
    }

private:
    void MakePictureOf(const COutcome& outcome, const std::string& structureName, const std::string& loadName,
                       EPlans plans)
    {
        try {
            picture = ColumnsOf(MakePicture({*outcome.input, *outcome.modelFile, outcome.findings, *outcome.loads,
                                             structureName, loadName, SATWECVT_VERSION}),
                                plans);
        } catch (const std::bad_alloc&) {
            picture.reset();
        }
    }

    CHostFiles inputs;
    CMemoryOutputs outputs{inputs};
    CColumnBytes answer;
    std::optional<CColumnBytes> picture;
};

CFace face;

}  // namespace

}  // namespace satwecvt

// src/web/CMakeLists.txt names these as the exports of the module.
extern "C" {

/// The version of the converter.
const char* satwecvt_version()
{
    return SATWECVT_VERSION;
}

/// What input 0 or 1 begins as: 1 a structure file, 2 a load file, as far as can be told; 0 neither.
int satwecvt_kind(int input)
{
    satwecvt::CHostFiles files;
    const std::string path = satwecvt::kInputPaths[input == 0 ? 0 : 1];
    if (satwecvt::LooksLikeStructureFile(files, path)) {
        return 1;
    }
    return satwecvt::LooksLikeLoadFile(files, path) ? 2 : 0;
}

/// Converts input 0, the structure file, with input 1, the load file. The names are UTF-8, as the user gave them. With
/// `plans` other than 0 the picture has a plan of each story.
void satwecvt_convert(const char* structureName, const char* loadName, int plans)
{
    satwecvt::face.Convert(structureName, loadName, plans != 0 ? satwecvt::EPlans::Wanted : satwecvt::EPlans::Unwanted);
}

/// The bytes of part 0, the answer (see Answer.h), 1, the model, 2, the log, or 3, the columns of the picture; null for
/// what there is not. Of a conversion that failed, model and log are as far as they were written.
const char* satwecvt_part(int part)
{
    return satwecvt::face.Part(static_cast<satwecvt::EPart>(part)).data();
}

std::size_t satwecvt_part_size(int part)
{
    return satwecvt::face.Part(static_cast<satwecvt::EPart>(part)).size();
}
}

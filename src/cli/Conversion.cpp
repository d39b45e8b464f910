#include "cli/Conversion.h"

#include "check/ModelLook.h"
#include "cli/OrderedFindings.h"
#include "modelfile/ModelReader.h"
#include "satwecvt/ConvertSatwe.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <future>
#include <memory>
#include <utility>

namespace satwecvt {

namespace {

/// The look at a model. Neither it nor the writing changes the model.
std::vector<CFinding> Look(const std::shared_ptr<const CSatweModel>& model)
{
    CFindingList doubts;
    LookAtModel(*model, doubts);
    return doubts.Findings();
}

}  // namespace

std::string BytesOf(CFileSystem& files, const std::string& path)
{
    const int file = files.OpenForReading(path.c_str());
    if (file < 0) {
        throw CFileError(path, std::strerror(errno));
    }
    std::string bytes;
    std::array<char, 65536> block{};
    std::ptrdiff_t count = 0;
    while ((count = files.Read(file, block.data(), block.size())) > 0) {
        bytes.append(block.data(), static_cast<std::size_t>(count));
    }
    const int error = errno;
    files.Close(file);
    if (count < 0) {
        throw CFileError(path, std::strerror(error));
    }
    return bytes;
}

COutcome ConvertPair(CUserInterface& userInterface, CFileSystem& files, const CConversionPaths& paths,
                     const CModelText& modelText, ELook look)
{
    COutcome outcome;
    CFindingList told;
    CConvertSatwe converter(userInterface, &told, files);
    std::vector<CFinding> doubts;
    if (const auto model = converter.Read(paths)) {
        const auto launch = look == ELook::BesideTheWriting ? std::launch::async : std::launch::deferred;
        std::future<std::vector<CFinding>> looked = std::async(launch, Look, model);
        static_cast<void>(converter.Write(*model, paths));  // the report has the result, too
        doubts = looked.get();
        outcome.overview = OverviewOf(*model);
        outcome.report = converter.Report();
        if (modelText && outcome.IsWhole()) {
            outcome.loads = BalanceLoads(*model, ReadModelFile(modelText()), told.Findings());
        }
    }
    outcome.report = converter.Report();
    if (!outcome.IsWhole()) {
        doubts.clear();  // of a model that nobody has
    }
    outcome.told = told.Findings();
    outcome.findings = OrderedFindings(outcome.told, doubts);
    return outcome;
}

}  // namespace satwecvt

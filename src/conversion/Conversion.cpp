#include "conversion/Conversion.h"

#include "conversion/DoubtSearch.h"
#include "conversion/Failure.h"
#include "conversion/OrderedFindings.h"
#include "modelfile/ModelReader.h"
#include "satwecvt/ConvertSatwe.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <exception>
#include <memory>
#include <new>
#include <string>
#include <utility>

namespace satwecvt {

namespace {

/// The bytes of a file. Throws CFileError.
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

void Convert(COutcome& outcome, CUserInterface& userInterface, CFileSystem& files, const CConversionPaths& paths,
             EBalance balance, ELook look)
{
    CFindingList told;
    CConvertSatwe converter(userInterface, &told, files);
    std::vector<CFinding> doubts;
    if (const auto model = converter.Read(paths)) {
        CDoubtSearch search(model, look);
        static_cast<void>(converter.Write(*model, paths));  // the report has the result, too
        doubts = search.Doubts();
        outcome.overview = OverviewOf(*model);
        outcome.report = converter.Report();
        if (balance == EBalance::Wanted && outcome.IsWhole()) {
            outcome.input = model;
            outcome.modelFile = std::make_shared<const CModelFile>(ReadModelFile(BytesOf(files, paths.model)));
            outcome.loads = BalanceLoads(*model, *outcome.modelFile, told.Findings());
        }
    }
    outcome.report = converter.Report();
    if (outcome.report.hasFileError) {
        const std::vector<std::string>& messages = outcome.report.messages;
        outcome.report.failure = FailureOf(messages.empty() ? kOutOfMemory : messages.back());
    } else if (outcome.report.result == kFailed && !outcome.report.failure) {
        outcome.report.failure = FailureOf(kOutOfMemory);  // too little of it was left to say so
    }
    if (!outcome.IsWhole()) {
        doubts.clear();  // of a model that nobody has
    }
    outcome.told = told.Findings();
    outcome.findings = OrderedFindings(outcome.told, doubts);
}

}  // namespace

COutcome ConvertPair(CUserInterface& userInterface, CFileSystem& files, const CConversionPaths& paths, EBalance balance,
                     ELook look)
{
    COutcome outcome;
    const auto fail = [&](const char* reason) {
        outcome.report.paths = paths;
        outcome.report.result = kFailed;
        outcome.report.failure = FailureOf(reason);
    };
    try {
        Convert(outcome, userInterface, files, paths, balance, look);
    } catch (const std::bad_alloc&) {
        fail(kOutOfMemory);
    } catch (const std::exception& failure) {
        fail(failure.what());
    }
    return outcome;
}

}  // namespace satwecvt

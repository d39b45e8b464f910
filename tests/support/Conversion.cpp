#include "support/Conversion.h"

#include "satwecvt/ConvertSatwe.h"
#include "support/TemporaryFolder.h"

#include <algorithm>

namespace satwecvt {

namespace {

CConversionResult Convert(CScriptedInterface& screen, CFileSystem& system)
{
    CConversionResult conversion;
    CFindingList findings;
    CConvertSatwe converter(screen, &findings, system);
    conversion.result = converter.Convert("structure.sat", "load.sat");
    conversion.report = converter.Report();
    conversion.findings = findings.Findings();
    return conversion;
}

}  // namespace

std::string FailureReason(const CConversionResult& conversion)
{
    return conversion.report.failure ? conversion.report.failure->reason : "";
}

std::optional<CFinding> EndsEarly(const CConversionResult& conversion)
{
    const auto found = std::find_if(conversion.findings.begin(), conversion.findings.end(),
                                    [](const CFinding& finding) { return finding.code == EFinding::EndsEarly; });
    return found != conversion.findings.end() ? std::optional(*found) : std::nullopt;
}

CConversionResult ConvertWorkingFolder(CScriptedInterface& screen, CFileSystem& system)
{
    CConversionResult conversion = Convert(screen, system);
    conversion.model = ReadBytes("structure.vkm");
    conversion.messageLog = ReadBytes("satwecvt.msg");
    return conversion;
}

CConversionResult ConvertTexts(const std::string& structure, const std::string& load, CScriptedInterface& screen)
{
    WriteBytes("structure.sat", structure);
    WriteBytes("load.sat", load);
    return ConvertWorkingFolder(screen);
}

CConversionResult ConvertMemoryFiles(CScriptedInterface& screen, CMemoryFiles& system)
{
    CConversionResult conversion = Convert(screen, system);
    conversion.model = system.Bytes("structure.vkm");
    conversion.messageLog = system.Bytes("satwecvt.msg");
    return conversion;
}

}  // namespace satwecvt

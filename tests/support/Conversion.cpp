#include "support/Conversion.h"

#include "driver/ConvertSatwe.h"
#include "support/TemporaryFolder.h"

namespace satwecvt {

namespace {

CConversionResult Convert(CScriptedInterface& screen, CFileSystem& system)
{
    CConversionResult conversion;
    CConvertSatwe converter(screen, system);
    conversion.result = converter.Convert("structure.sat", "load.sat");
    conversion.report = converter.Report();
    return conversion;
}

}  // namespace

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

#include "support/Conversion.h"

#include "driver/ConvertSatwe.h"
#include "support/TemporaryFolder.h"

namespace satwecvt {

CConversionResult ConvertWorkingFolder(CScriptedInterface& screen, CFileSystem& system)
{
    CConversionResult conversion;
    CConvertSatwe converter(screen, system);
    conversion.result = converter.Convert("structure.sat", "load.sat");
    conversion.report = converter.Report();
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

}  // namespace satwecvt

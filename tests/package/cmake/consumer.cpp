// Converts structure.sat and load.sat of the working folder through the installed library.

#include "driver/ConvertSatwe.h"
#include "ui/console/ConsoleInterface.h"

int main()
{
    satwecvt::CConsoleInterface console(satwecvt::EProgressLine::Off);
    satwecvt::CConvertSatwe converter(console);
    const int result = converter.Convert("structure.sat", "load.sat");
    return result == satwecvt::kWritten && converter.Report().read.stories == 1 ? 0 : 1;
}

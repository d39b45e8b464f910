#pragma once

#include "satwecvt/ConsoleInterface.h"

#include <string_view>

namespace satwecvt {

/// The terminal, without the message boxes of inputs that cannot be opened: the failure of the report says more, and
/// names the file.
class CProgramInterface : public CConsoleInterface {
public:
    using CConsoleInterface::CConsoleInterface;

    void ShowMessage(std::string_view /*text*/) override {}
    void ReportFileError(std::string_view cause, std::string_view path) override
    {
        CConsoleInterface::ShowMessage(FileErrorText(cause, path));
    }
};

}  // namespace satwecvt

#pragma once

#include "satwecvt/ConsoleInterface.h"

#include <string_view>

namespace satwecvt {

/// The terminal, without the messages of a conversion: the failure in its report says more, and is printed last, where
/// it is seen.
class CProgramInterface : public CConsoleInterface {
public:
    using CConsoleInterface::CConsoleInterface;

    void ShowMessage(std::string_view /*text*/) override {}
    void ReportFileError(std::string_view /*cause*/, std::string_view /*path*/) override {}
};

}  // namespace satwecvt

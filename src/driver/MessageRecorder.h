#pragma once

#include "satwecvt/UserInterface.h"

#include <new>
#include <string>
#include <string_view>
#include <vector>

namespace satwecvt {

/// The user interface, with its messages kept for the report. For want of memory a message is shown and not kept.
class CMessageRecorder : public CUserInterface {
public:
    CMessageRecorder(CUserInterface& ui, std::vector<std::string>& messageList)
        : userInterface(ui),
          messages(messageList)
    {}

    void ShowMessage(std::string_view text) override
    {
        userInterface.ShowMessage(text);
        Keep([&] { return std::string(text); });
    }
    void ReportFileError(std::string_view cause, std::string_view path) override
    {
        userInterface.ReportFileError(cause, path);
        Keep([&] { return FileErrorText(cause, path); });
    }
    std::unique_ptr<CProgressWindow> CreateProgressWindow() override { return userInterface.CreateProgressWindow(); }

private:
    template <class MakeText>
    void Keep(MakeText makeText)
    {
        try {
            messages.push_back(makeText());
        } catch (const std::bad_alloc&) {
            return;
        }
    }

    CUserInterface& userInterface;
    std::vector<std::string>& messages;
};

}  // namespace satwecvt

// A text in SVG, element by element. Tags and attributes are ours; what is shown is escaped.
#pragma once

#include "picture/PaperPoint.h"

#include <string>
#include <string_view>
#include <utility>

namespace satwecvt {

class CSvgText {
public:
    /// Opens an element; a tag is a name with its attributes.
    void Open(std::string_view tag);
    void Close(std::string_view name);

    /// An element without content.
    void AddEmpty(std::string_view tag);

    /// What the group that was just opened is, for who points at it or hears it.
    void AddTitle(std::string_view shown);

    void AddPath(std::string_view data, std::string_view id = {});
    void AddCircle(CPaperPoint middle, std::int32_t radius);
    void AddText(CPaperPoint at, std::string_view shown, std::string_view attributes = {});
    void AddTurnedText(std::string_view transform, std::string_view shown);
    void Add(std::string_view svg) { text += svg; }

    const std::string& Text() const noexcept { return text; }
    std::string Take() noexcept { return std::move(text); }

private:
    /// What stands behind the attributes of a text.
    void EndText(std::string_view shown);

    void AddNumber(std::string_view name, std::int32_t hundredths);

    std::string text;
};

}  // namespace satwecvt

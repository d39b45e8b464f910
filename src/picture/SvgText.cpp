#include "picture/SvgText.h"

#include "picture/PlanText.h"

namespace satwecvt {

void CSvgText::Open(std::string_view tag)
{
    text += '<';
    text += tag;
    text += ">\n";
}

void CSvgText::Close(std::string_view name)
{
    text += "</";
    text += name;
    text += ">\n";
}

void CSvgText::AddEmpty(std::string_view tag)
{
    text += '<';
    text += tag;
    text += "/>\n";
}

void CSvgText::AddTitle(std::string_view shown)
{
    text += "<title>";
    AppendXml(text, shown);
    text += "</title>\n";
}

void CSvgText::AddPath(std::string_view data, std::string_view id)
{
    text += "<path ";
    if (!id.empty()) {
        text += "id=\"";
        text += id;
        text += "\" ";
    }
    text += "d=\"";
    text += data;
    text += "\"/>\n";
}

void CSvgText::AddCircle(CPaperPoint middle, std::int32_t radius)
{
    text += "<circle";
    AddNumber("cx", middle.x);
    AddNumber("cy", middle.y);
    AddNumber("r", radius);
    text += "/>\n";
}

void CSvgText::AddText(CPaperPoint at, std::string_view shown, std::string_view attributes)
{
    text += "<text";
    AddNumber("x", at.x);
    AddNumber("y", at.y);
    if (!attributes.empty()) {
        text += ' ';
        text += attributes;
    }
    EndText(shown);
}

void CSvgText::AddTurnedText(std::string_view transform, std::string_view shown)
{
    text += "<text transform=\"";
    text += transform;
    text += '"';
    EndText(shown);
}

void CSvgText::EndText(std::string_view shown)
{
    text += '>';
    AppendXml(text, shown);
    text += "</text>\n";
}

void CSvgText::AddNumber(std::string_view name, std::int32_t hundredths)
{
    text += ' ';
    text += name;
    text += "=\"";
    AppendMillimetres(text, hundredths);
    text += '"';
}

}  // namespace satwecvt

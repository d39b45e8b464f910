#include "picture/PlanText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

namespace satwecvt {
namespace {

TEST(PlanText, ShowsUtf8AsItIs)
{
    for (const char* text : {"", "a b", "\xC3\xA9", "\xE6\xA5\xBC", "\xF0\x9F\x8F\xA2", "\xEF\xBF\xBD"}) {
        EXPECT_EQ(ShownText(text), text);
    }
}

TEST(PlanText, ShowsWhatIsNoCharacterByItsBytes)
{
    EXPECT_EQ(ShownText("a\x1B[b\t\n\x7F"), "a\\x1B[b\\x09\\x0A\\x7F");
    EXPECT_EQ(ShownText(std::string("\0", 1)), "\\x00");
    EXPECT_EQ(ShownText("\xFF\xE6\xA5"), "\\xFF\\xE6\\xA5");  // cut short
    EXPECT_EQ(ShownText("\x80"), "\\x80");                    // no first byte
    EXPECT_EQ(ShownText("\xE6 "), "\\xE6 ");                  // and then something else
    EXPECT_EQ(ShownText("\xC1\x81"), "\\xC1\\x81");           // longer than needed
    EXPECT_EQ(ShownText("\xE0\x80\x80"), "\\xE0\\x80\\x80");
    EXPECT_EQ(ShownText("\xF8\x88\x80\x80"), "\\xF8\\x88\\x80\\x80");  // five bytes
    EXPECT_EQ(ShownText("\xED\xA0\x80"), "\\xED\\xA0\\x80");           // half of a pair
    EXPECT_EQ(ShownText("\xF4\x90\x80\x80"), "\\xF4\\x90\\x80\\x80");  // beyond the last one
    EXPECT_EQ(ShownText("\xEF\xBF\xBE"), "\\xEF\\xBF\\xBE");           // U+FFFE
    EXPECT_EQ(ShownText("\xC2\x85"), "\\xC2\\x85");                    // U+0085, a control character
}

TEST(PlanText, CutsALongTextInFront)
{
    EXPECT_EQ(ShownEnd("abcdef", 6 * 0.57 + 0.01), "abcdef");
    EXPECT_EQ(ShownEnd("abcdef", 5 * 0.57 + 0.01), "...ef");
    EXPECT_EQ(ShownEnd("abc\xE6\xA5\xBC\xE6\xA5\xBC", 3 * 0.57 + 1.01), "...\xE6\xA5\xBC");
    EXPECT_EQ(ShownEnd("abcdef", 0.0), "...");
}

TEST(PlanText, WidthsGoByCharacters)
{
    EXPECT_DOUBLE_EQ(TextWidth("300x600"), 7 * 0.57);
    EXPECT_DOUBLE_EQ(TextWidth("\xC3\xA9"), 0.57);
    EXPECT_DOUBLE_EQ(TextWidth("\xE6\xA5\xBC"), 1.0);
}

TEST(PlanText, EscapesMarkup)
{
    std::string xml = "<t>";
    AppendXml(xml, "a<b>&amp;\"");
    EXPECT_EQ(xml, "<t>a&lt;b&gt;&amp;amp;\"");
}

TEST(PlanText, LengthsAreShort)
{
    EXPECT_EQ(LengthText(0), "0");
    EXPECT_EQ(LengthText(100000), "100000");
    EXPECT_EQ(LengthText(13.5), "13.5");
    EXPECT_EQ(LengthText(0.1 + 0.2), "0.3");
    EXPECT_EQ(LengthText(-0.0625), "-0.0625");
    EXPECT_EQ(LengthText(-1e-9), "0");
    EXPECT_EQ(LengthText(0.000001), "0.000001");
    EXPECT_EQ(LengthText(999999999.5), "999999999.5");
    EXPECT_EQ(LengthText(2e9), "2e+09");
    EXPECT_EQ(LengthText(1e300), "1e+300");
    EXPECT_EQ(LengthText(std::numeric_limits<double>::infinity()), "inf");
}

}  // namespace
}  // namespace satwecvt

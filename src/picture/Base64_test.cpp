#include "picture/Base64.h"

#include <gtest/gtest.h>

#include <string>

namespace satwecvt {
namespace {

std::string Base64(std::string_view bytes)
{
    std::string text = "in front, ";
    AppendBase64(text, bytes);
    return text.substr(10);
}

TEST(Base64, WritesFourCharactersForThreeBytes)
{
    EXPECT_EQ(Base64(""), "");
    EXPECT_EQ(Base64("f"), "Zg==");
    EXPECT_EQ(Base64("fo"), "Zm8=");
    EXPECT_EQ(Base64("foo"), "Zm9v");
    EXPECT_EQ(Base64("foob"), "Zm9vYg==");
    EXPECT_EQ(Base64("fooba"), "Zm9vYmE=");
    EXPECT_EQ(Base64("foobar"), "Zm9vYmFy");
}

TEST(Base64, TakesEveryByte)
{
    EXPECT_EQ(Base64(std::string_view("\0\0\0", 3)), "AAAA");
    EXPECT_EQ(Base64("\xFF\xFF\xFF"), "////");
    EXPECT_EQ(Base64("\xFB\xEF\xBE"), "++++");
    EXPECT_EQ(Base64("\x80\x7F"), "gH8=");
}

TEST(Base64, TellsItsLengthBeforehand)
{
    for (std::size_t length = 0; length < 10; ++length) {
        EXPECT_EQ(Base64Length(length), Base64(std::string(length, 'x')).size()) << length;
    }
}

}  // namespace
}  // namespace satwecvt

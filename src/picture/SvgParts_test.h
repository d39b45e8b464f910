// What tests ask of an SVG text.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace satwecvt {

inline std::size_t CountIn(std::string_view text, std::string_view part)
{
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string_view::npos; at = text.find(part, at + part.size())) {
        ++count;
    }
    return count;
}

/// What stands behind the first `before`, up to the next `behind`; empty where there is none.
inline std::string Between(std::string_view text, std::string_view before, std::string_view behind)
{
    const std::size_t found = text.find(before);
    if (found == std::string_view::npos) {
        return "";
    }
    const std::size_t start = found + before.size();
    return std::string(text.substr(start, text.find(behind, start) - start));
}

/// The data of the path with an id.
inline std::string PathOf(std::string_view svg, std::string_view id)
{
    return Between(svg, "<path id=\"" + std::string(id) + "\" d=\"", "\"");
}

/// The content of the group of a class, without what is behind the first end of a group.
inline std::string GroupOf(std::string_view svg, std::string_view name)
{
    return Between(svg, "<g class=\"" + std::string(name) + "\"", "</g>");
}

/// Fails unless a text is well-formed, as far as plans go: elements that are closed in their order, attributes in
/// double quotes, and no other character of markup.
inline void ExpectWellFormed(std::string_view xml)
{
    std::vector<std::string> open;
    while (!xml.empty()) {
        const std::size_t tag = xml.find('<');
        const std::string_view content = xml.substr(0, tag);
        ASSERT_EQ(CountIn(content, "&"),
                  CountIn(content, "&amp;") + CountIn(content, "&lt;") + CountIn(content, "&gt;"));
        ASSERT_EQ(content.find_first_of(std::string_view("\0\x01\x08\x0B\x1B\x7F>", 7)), std::string_view::npos);
        if (tag == std::string_view::npos) {
            break;
        }
        const std::size_t end = xml.find('>', tag);
        ASSERT_NE(end, std::string_view::npos);
        const std::string_view inside = xml.substr(tag + 1, end - tag - 1);
        ASSERT_EQ(CountIn(inside, "\"") % 2, 0U) << inside;
        ASSERT_EQ(CountIn(inside, "=\""), CountIn(inside, "\"") / 2) << inside;
        ASSERT_EQ(inside.find_first_of("<&"), std::string_view::npos) << inside;
        const std::string name(inside.substr(0, inside.find_first_of(" /", 1)));
        if (inside.front() == '/') {
            ASSERT_FALSE(open.empty());
            ASSERT_EQ("/" + open.back(), name);
            open.pop_back();
        } else if (inside.back() != '/') {
            open.push_back(name);
        }
        xml.remove_prefix(end + 1);
    }
    EXPECT_TRUE(open.empty());
}

}  // namespace satwecvt

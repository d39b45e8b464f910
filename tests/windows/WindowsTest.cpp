#include "windows/WindowsTest.h"

#include "windows/LibraryWindows.h"

#include <filesystem>

namespace satwecvt {

namespace {

namespace fs = std::filesystem;

std::string Building(const char* file)
{
    return ReadBytes(fs::path(SATWECVT_CASES) / "small-building" / file).value();
}

std::string Comments(int lines)
{
    std::string text;
    for (int line = 0; line < lines; ++line) {
        text += "C a line to pass over\n";
    }
    return text;
}

}  // namespace

CWindowsTest::CWindowsTest()
{
    ::SetCursorPos(1000, 740);  // below all windows, which stand on a desktop of 1024 x 768
}

void CWindowsTest::TearDown()
{
    EXPECT_TRUE(OpenWindows().empty()) << "a window is left: " << Text(OpenWindows().front());
    ::GetAsyncKeyState(VK_ESCAPE);
}

std::string CWindowsTest::WriteStructure(int comments, const std::string& name) const
{
    WriteBytes(InFolder(name), Comments(comments) + Building("structure.sat"));
    return InFolder(name);
}

std::string CWindowsTest::WriteLoad(int comments) const
{
    WriteBytes(InFolder("load.sat"), Comments(comments) + Building("load.sat"));
    return InFolder("load.sat");
}

std::string CWindowsTest::WriteComments(int lines, const std::string& name) const
{
    WriteBytes(InFolder(name), Comments(lines));
    return InFolder(name);
}

std::string CWindowsTest::InFolder(const std::string& name) const
{
    return (folder.Path() / name).make_preferred().string();
}

std::string CWindowsTest::ExpectedModel()
{
    return Building("expected.vkm");
}

}  // namespace satwecvt

// Keys of files and folders: one for every path that leads to one place.

#include "output/FilePlaces.h"
#include "output/OutputFolder_test.h"

#include <gtest/gtest.h>

namespace satwecvt {
namespace {

namespace fs = std::filesystem;

class PlaceKeys : public COutputFolder {
protected:
    std::string KeyOf(const std::string& name) const { return CFilePlaces::System().KeyOf(Path(name)); }
};

TEST_F(PlaceKeys, AreOneForAllSpellingsOfAPath)
{
    fs::create_directory(folder / "models");
    for (const char* const name : {"models/./tower.vkm", "models/../models/tower.vkm", "models//tower.vkm"}) {
        EXPECT_EQ(KeyOf("models/tower.vkm"), KeyOf(name)) << name;
    }
}

TEST_F(PlaceKeys, StayWhenTheFileComesIntoBeing)
{
    const std::string key = KeyOf("tower.vkm");
    Create("tower.vkm", "model");
    EXPECT_EQ(key, KeyOf("tower.vkm"));
}

TEST_F(PlaceKeys, TellFilesAndFoldersApart)
{
    fs::create_directory(folder / "a");
    fs::create_directory(folder / "b");
    EXPECT_NE(KeyOf("a/tower.vkm"), KeyOf("b/tower.vkm"));
    EXPECT_NE(KeyOf("a/tower.vkm"), KeyOf("a/other.vkm"));
    EXPECT_NE(CFilePlaces::FolderKey(Path("a")), CFilePlaces::FolderKey(Path("b")));
}

TEST_F(PlaceKeys, OfTheWorkingFolderNeedNoName)
{
    EXPECT_EQ(CFilePlaces::FolderKey(fs::current_path().string()), CFilePlaces::FolderKey(""));
    EXPECT_EQ(CFilePlaces::System().KeyOf("./tower.vkm"), CFilePlaces::System().KeyOf("tower.vkm"));
}

TEST_F(PlaceKeys, InAFolderThatIsNotThereAreTheirPaths)
{
    EXPECT_EQ(KeyOf("missing/tower.vkm"), KeyOf("missing/tower.vkm"));
    EXPECT_NE(KeyOf("missing/tower.vkm"), KeyOf("lost/tower.vkm"));
}

}  // namespace
}  // namespace satwecvt

// Whose an output is, and who may read and write it.

#include "output/OrdinaryUser_test.h"
#include "output/SafeFiles.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#include <cstring>

#ifdef __linux__
#include <sys/xattr.h>
#endif

namespace satwecvt {
namespace {

namespace fs = std::filesystem;

constexpr uid_t kSomebody = 65533;
constexpr gid_t kTheirGroup = 65532;

class CUserMask {
public:
    explicit CUserMask(mode_t mask) : previous(::umask(mask)) {}
    ~CUserMask() { ::umask(previous); }
    CUserMask(const CUserMask&) = delete;
    CUserMask& operator=(const CUserMask&) = delete;

private:
    mode_t previous;
};

class Permissions : public COrdinaryUsersFolder {};

/// A file of somebody else, which only one who may do everything can make.
class FileOfOthers : public COrdinaryUsersFolder {
protected:
    void SetUp() override
    {
        if (::geteuid() != 0) {
            // An ordinary user cannot give a file away: there is none of others. All other tests are those of such a
            // user.
            GTEST_SKIP() << "this user owns what it writes";
        }
    }

    void CreateFor(uid_t user, gid_t group, mode_t permissions)
    {
        Create("tower.vkm", "old model");
        ASSERT_EQ(0, ::chown(Path("tower.vkm").c_str(), user, group));
        ASSERT_EQ(0, ::chmod(Path("tower.vkm").c_str(), permissions));
    }
};

TEST_F(Permissions, OfANewFileAreWhatTheUsersMaskLeaves)
{
    struct CCase {
        mode_t mask;
        mode_t expected;
    };
    for (const CCase& each : {CCase{0022, 0644}, {0077, 0600}, {0002, 0664}, {0000, 0666}, {0777, 0000}}) {
        {
            const CUserMask mask(each.mask);
            const COrdinaryUser user;
            WriteAndKeep(Path("new"));
        }
        EXPECT_EQ(each.expected, PermissionsOf("new"));
        EXPECT_EQ("model", BytesOf("new"));
        fs::remove(folder / "new");
    }
}

TEST_F(Permissions, OfAnOldFileAreKept)
{
    for (const mode_t mask : {0000U, 0022U, 0777U}) {
        for (const mode_t permissions : {0600U, 0644U, 0664U, 0666U, 0755U, 0200U}) {
            CreateForUser("tower.vkm", permissions);
            {
                const CUserMask userMask(mask);
                const COrdinaryUser user;
                EXPECT_TRUE(IsReplaced("tower.vkm"));
            }
            EXPECT_EQ(permissions, PermissionsOf("tower.vkm"));
            EXPECT_EQ("model", BytesOf("tower.vkm"));
            fs::remove(folder / "tower.vkm");
        }
    }
}

TEST_F(Permissions, HoldBeforeTheFileIsKept)
{
    CreateForUser("tower.vkm", 0600);
    CSafeFiles files(system);
    ASSERT_TRUE(WriteOutput(files, Path("tower.vkm"), "model"));
    EXPECT_EQ(2U, Names().size());
    for (const std::string& name : Names()) {
        EXPECT_EQ(0600U, PermissionsOf(name)) << name;
    }
}

TEST_F(FileOfOthers, StaysTheirsWhereTheSystemLetsUs)
{
    CreateFor(kSomebody, kTheirGroup, 06640);
    EXPECT_TRUE(IsReplaced("tower.vkm"));
    EXPECT_EQ(kSomebody, StatusOf("tower.vkm").st_uid);
    EXPECT_EQ(kTheirGroup, StatusOf("tower.vkm").st_gid);
    EXPECT_EQ(06640U, PermissionsOf("tower.vkm"));
}

TEST_F(FileOfOthers, InOurGroupBecomesOurs)
{
    CreateFor(kSomebody, COrdinaryUser::kGroup, 0664);
    const COrdinaryUser user;
    EXPECT_TRUE(IsReplaced("tower.vkm"));
    EXPECT_EQ(COrdinaryUser::kUser, StatusOf("tower.vkm").st_uid);
    EXPECT_EQ(COrdinaryUser::kGroup, StatusOf("tower.vkm").st_gid);
    EXPECT_EQ(0664U, PermissionsOf("tower.vkm"));
}

TEST_F(FileOfOthers, InAnotherGroupIsWrittenInPlace)
{
    CreateFor(kSomebody, kTheirGroup, 0666);
    const COrdinaryUser user;
    EXPECT_FALSE(IsReplaced("tower.vkm"));
    EXPECT_EQ("model", BytesOf("tower.vkm"));
    EXPECT_EQ(StringSet{"tower.vkm"}, Names());
}

TEST_F(FileOfOthers, InASharedFolderIsWrittenInPlace)
{
    CreateFor(kSomebody, COrdinaryUser::kGroup, 0664);
    ASSERT_EQ(0, ::chown(folder.c_str(), 0, 0));
    ASSERT_EQ(0, ::chmod(folder.c_str(), 01777));
    const COrdinaryUser user;
    EXPECT_FALSE(IsReplaced("tower.vkm"));
    EXPECT_EQ("model", BytesOf("tower.vkm"));
    EXPECT_EQ(StringSet{"tower.vkm"}, Names());
}

#ifdef __linux__

/// An access list as the system keeps it. Its entries: the owner, somebody, the group, the most that is allowed,
/// others.
struct CAccessList {
    struct CEntry {
        unsigned short kind;
        unsigned short permissions;
        unsigned int who;
    };
    unsigned int version = 2;
    CEntry entries[5] = {{1, 6, ~0U}, {2, 4, kSomebody}, {4, 4, ~0U}, {16, 6, ~0U}, {32, 0, ~0U}};
};

constexpr const char* kAccessList = "system.posix_acl_access";

/// Gives a path the access list under a name; returns why that cannot be, or nothing.
std::string SetAccessList(const std::string& path, const char* name)
{
    const CAccessList list;
    return ::setxattr(path.c_str(), name, &list, sizeof list, 0) == 0 ? "" : std::strerror(errno);
}

bool HasAccessList(const std::string& path)
{
    const CAccessList expected;
    CAccessList list;
    const ssize_t size = ::getxattr(path.c_str(), kAccessList, &list, sizeof list);
    return size == sizeof list && std::memcmp(&list, &expected, sizeof list) == 0;
}

class AccessLists : public COrdinaryUsersFolder {
protected:
    void SetUp() override
    {
        Create("probe", "");
        if (const std::string cause = SetAccessList(Path("probe"), kAccessList); !cause.empty()) {
            // Not every file system keeps access lists: then there are none to lose.
            GTEST_SKIP() << "no access lists here: " << cause;
        }
    }
};

TEST_F(AccessLists, AreKept)
{
    Create("tower.vkm", "old model");
    ASSERT_EQ("", SetAccessList(Path("tower.vkm"), kAccessList));
    EXPECT_TRUE(IsReplaced("tower.vkm"));
    EXPECT_TRUE(HasAccessList(Path("tower.vkm")));
}

TEST_F(AccessLists, OfAFolderGoToNewFilesAlone)
{
    CreateForUser("tower.vkm", 0640);
    ASSERT_EQ("", SetAccessList(folder.string(), "system.posix_acl_default"));
    EXPECT_TRUE(IsReplaced("tower.vkm"));
    EXPECT_EQ(-1, ::getxattr(Path("tower.vkm").c_str(), kAccessList, nullptr, 0));
    EXPECT_EQ(0640U, PermissionsOf("tower.vkm"));
    WriteAndKeep(Path("new"));
    EXPECT_TRUE(HasAccessList(Path("new")));
}

#endif

}  // namespace
}  // namespace satwecvt

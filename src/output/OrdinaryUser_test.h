// A user to whom not everything is allowed, also where the tests run as one who may do everything.
#pragma once

#include "output/OutputFolder_test.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>
#include <string>

namespace satwecvt {

/// An ordinary user for as long as the object lives.
class COrdinaryUser {
public:
    COrdinaryUser()
    {
        if (::geteuid() == 0) {
            EXPECT_EQ(0, ::setegid(kGroup));
            EXPECT_EQ(0, ::seteuid(kUser));
        }
    }
    ~COrdinaryUser()
    {
        if (::getuid() == 0) {
            EXPECT_EQ(0, ::seteuid(0));
            EXPECT_EQ(0, ::setegid(0));
        }
    }
    COrdinaryUser(const COrdinaryUser&) = delete;
    COrdinaryUser& operator=(const COrdinaryUser&) = delete;

    static constexpr uid_t kUser = 65534;
    static constexpr gid_t kGroup = 65534;
};

class COrdinaryUsersFolder : public COutputFolder {
protected:
    COrdinaryUsersFolder()
    {
        if (::geteuid() == 0) {
            EXPECT_EQ(0, ::chown(folder.c_str(), COrdinaryUser::kUser, COrdinaryUser::kGroup));
        }
    }

    /// A file with these permissions that belongs to the ordinary user, as its folder does.
    void CreateForUser(const std::string& name, mode_t permissions)
    {
        Create(name, "old model");
        if (::geteuid() == 0) {
            ASSERT_EQ(0, ::chown(Path(name).c_str(), COrdinaryUser::kUser, COrdinaryUser::kGroup));
        }
        ASSERT_EQ(0, ::chmod(Path(name).c_str(), permissions));
    }

    struct stat StatusOf(const std::string& name) const
    {
        struct stat status {};
        EXPECT_EQ(0, ::lstat(Path(name).c_str(), &status)) << name;
        return status;
    }
    mode_t PermissionsOf(const std::string& name) const { return StatusOf(name).st_mode & 07777; }

    /// Writes an output over an old file; returns whether it is another file now.
    bool IsReplaced(const std::string& name)
    {
        const ino_t before = StatusOf(name).st_ino;
        WriteAndKeep(Path(name));
        return StatusOf(name).st_ino != before;
    }
};

}  // namespace satwecvt

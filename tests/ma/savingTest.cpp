// SPDX-License-Identifier: Apache-2.0
// What saving does to the files on the disk: the old one is replaced as a whole or not at all.
#include <csignal>
#include <filesystem>
#include <set>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "ma/outputFile.h"
#include "support/sceneFile.h"

namespace
{

namespace fs = std::filesystem;

constexpr uid_t kNobody = 65534;

// Root may write everywhere; what permissions forbid shows only to others.
class AsUser
{
public:
    AsUser() : wasRoot_(geteuid() == 0) { EXPECT_EQ(wasRoot_ ? seteuid(kNobody) : 0, 0); }
    ~AsUser() { EXPECT_EQ(wasRoot_ ? seteuid(0) : 0, 0); }
    AsUser(const AsUser &) = delete;
    AsUser &operator=(const AsUser &) = delete;

private:
    bool wasRoot_;
};

// Files can't grow beyond a few bytes, as on a full disk.
class FullDisk
{
public:
    FullDisk()
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit full = {64, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &full);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;

private:
    rlimit before_;
};

class Saving : public SceneFileTest
{
protected:
    Saving()
    {
        fs::permissions(path(""), fs::perms(0755));
        old_ = writeBytes("old.ma", "the old text");
    }

    std::set<std::string> names() const
    {
        std::set<std::string> all;
        for (const fs::directory_entry &entry : fs::directory_iterator(path("")))
            all.insert(entry.path().filename().string());
        return all;
    }

    static bool save(const std::string &target) { return MFileIO::exportAll(target.c_str()); }

    std::string old_;
};

TEST_F(Saving, keepsPermissionsOwnerAndGroup)
{
    const bool isRoot = geteuid() == 0;
    const uid_t owner = isRoot ? kNobody : geteuid();
    const gid_t group = isRoot ? 1 : getegid();
    ASSERT_EQ(chown(old_.c_str(), owner, group), 0);
    ASSERT_EQ(chmod(old_.c_str(), 0624), 0);
    ASSERT_TRUE(save(old_));
    struct stat facts = {};
    ASSERT_EQ(stat(old_.c_str(), &facts), 0);
    EXPECT_EQ(facts.st_mode & 07777, 0624u);
    EXPECT_EQ(facts.st_uid, owner);
    EXPECT_EQ(facts.st_gid, group);
    EXPECT_EQ(textOf(old_).substr(0, 12), "//Maya ASCII");
}

TEST_F(Saving, throughALinkReplacesWhatItLeadsTo)
{
    fs::create_directory(path("folder"));
    fs::create_symlink("new.ma", path("folder/dangling.ma"));
    fs::create_symlink(path("folder/dangling.ma"), path("absolute.ma"));
    fs::create_symlink("old.ma", path("relative.ma"));
    const struct {
        const char *link;
        const char *target;
    } cases[] = {{"absolute.ma", "folder/new.ma"}, {"relative.ma", "old.ma"}};
    for (const auto &row : cases) {
        ASSERT_TRUE(save(path(row.link))) << takeErrors();
        EXPECT_TRUE(fs::is_symlink(path(row.link))) << row.link;
        EXPECT_FALSE(fs::is_symlink(path(row.target)));
        EXPECT_EQ(textOf(path(row.target)).substr(0, 12), "//Maya ASCII") << row.link;
    }
    EXPECT_TRUE(fs::is_symlink(path("folder/dangling.ma")));
}

TEST_F(Saving, isRefusedWithOneErrorAndNothingElse)
{
    fs::create_directory(path("folder.ma"));
    ASSERT_EQ(mkfifo(path("pipe.ma").c_str(), 0666), 0);
    fs::create_symlink("/dev/null", path("device.ma"));
    fs::create_symlink("endless.ma", path("endless.ma"));
    fs::create_symlink("no/such/folder.ma", path("nowhere.ma"));
    chmod(writeBytes("readOnly.ma", "the old text").c_str(), 0444);
    fs::create_directory(path("locked"));
    chmod(writeBytes("locked/old.ma", "the old text").c_str(), 0666);
    fs::permissions(path("locked"), fs::perms(0555));
    const std::set<std::string> before = names();

    const std::string longName = std::string(253, 'x') + ".ma";
    const struct {
        std::string target;
        const char *reason;
    } cases[] = {
        {path("folder.ma"), "Is a directory"},
        {path("no/such/folder.ma"), "No such file or directory"},
        {path("nowhere.ma"), "No such file or directory"},
        {path("pipe.ma"), "It is a pipe or a device"},
        {path("device.ma"), "It is a pipe or a device"},
        {path("endless.ma"), "Too many levels of symbolic links"},
        {path(longName), "File name too long"},
        {path("readOnly.ma"), "Permission denied"},
        {path("locked/old.ma"), "No file can be made in "},
    };
    for (const auto &row : cases) {
        const bool saved = [&] {
            const AsUser user;
            return MFileIO::exportAll(row.target.c_str(), "mayaAscii") == MStatus::kSuccess;
        }();
        EXPECT_FALSE(saved) << row.target;
        const std::string errors = takeErrors();
        EXPECT_NE(errors.find(row.target + ": The file could not be written: "), std::string::npos);
        EXPECT_NE(errors.find(row.reason), std::string::npos) << errors;
        EXPECT_EQ(errors.find('\n'), std::string::npos) << errors;
    }
    EXPECT_EQ(names(), before);
    EXPECT_TRUE(fs::is_empty(path("folder.ma")));
    EXPECT_EQ(textOf(path("readOnly.ma")) + textOf(path("locked/old.ma")),
              "the old textthe old text");
    fs::permissions(path("locked"), fs::perms(0755));
}

TEST_F(Saving, onAFullDiskKeepsTheOldFile)
{
    bool saved = true;
    {
        const FullDisk disk;
        saved = save(old_);
    }
    EXPECT_FALSE(saved);
    EXPECT_NE(takeErrors().find("could not be written: File too large"), std::string::npos);
    EXPECT_EQ(textOf(old_), "the old text");
    EXPECT_EQ(names(), std::set<std::string>{"old.ma"});
}

TEST_F(Saving, takesNamesOfEveryLengthThatTheDiskTakes)
{
    for (unsigned length : {248u, 249u, 255u}) {
        const std::string name = std::string(length - 3, 'x') + ".ma";
        EXPECT_TRUE(save(path(name)) && save(path(name))) << length << takeErrors();
    }
    EXPECT_EQ(names().size(), 4u);
}

TEST_F(Saving, leavesTheOldFileAloneWhenItIsKilled)
{
    const auto saveHalf = [this] {
        host::ma::OutputFile file(old_);
        file.write("half of the new");
        std::raise(SIGKILL);
    };
    EXPECT_EXIT(saveHalf(), testing::KilledBySignal(SIGKILL), "");
    EXPECT_EQ(textOf(old_), "the old text");
    EXPECT_TRUE(save(old_)); // takes away what a file system without nameless files keeps
    EXPECT_EQ(names(), std::set<std::string>{"old.ma"});
}

TEST_F(Saving, takesAwayWhatKilledSavesLeft)
{
    writeBytes(".korvex-saving-1", "left behind");
    const int other = ::open(writeBytes(".korvex-saving-2", "being written").c_str(), O_RDWR);
    ASSERT_EQ(flock(other, LOCK_EX), 0);
    EXPECT_TRUE(save(old_));
    EXPECT_EQ(names(), (std::set<std::string>{".korvex-saving-2", "old.ma"}));
    close(other);
}

} // namespace

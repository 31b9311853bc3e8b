// SPDX-License-Identifier: GPL-3.0-or-later
// What a save keeps of the file that it replaces, and what it leaves in the folder.
#include <fcntl.h>
#include <grp.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <filesystem>

#include "basis/run_time_error.h"
#include "basis/system/files.h"
#include "basis/system/kept_copy.h"
#include "basis/system/process.h"
#include "basis/system/temporary_names.h"
#include "basis/temporary_folder.h"

namespace varnholt {
namespace {

namespace fs = std::filesystem;

class Saving : public testing::Test {
 protected:
    Saving() : path(folder / "school.vht") { replaceWholeFile(path, "old"); }

    static struct stat statusOf(const std::string& of) {
        struct stat status {};
        EXPECT_EQ(::lstat(of.c_str(), &status), 0) << of;
        return status;
    }
    static int errorOfSaving(const std::string& to) {
        try {
            replaceWholeFile(to, "new");
        } catch (const RunTimeError& error) {
            EXPECT_TRUE(error.description().find(to) != std::string::npos) << error.description();
            return error.number();
        }
        return 0;
    }
    std::size_t filesInFolder() const {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()));
    }

    TemporaryFolder folder;
    std::string path;
};

TEST_F(Saving, KeepsTheRights) {
    for (const mode_t rights : {0600U, 0640U, 0664U, 0777U}) {
        ASSERT_EQ(::chmod(path.c_str(), rights), 0);
        replaceWholeFile(path, "new");
        EXPECT_EQ(statusOf(path).st_mode & 07777U, rights);
    }
}

TEST_F(Saving, GivesANewFileTheRightsThatTheUsersMaskLeaves) {
    const mode_t before = ::umask(027);
    replaceWholeFile(folder / "new.vht", "new");
    ::umask(before);
    EXPECT_EQ(statusOf(folder / "new.vht").st_mode & 07777U, 0640U);
}

TEST_F(Saving, KeepsOwnerAndGroupWhereThatIsAllowed) {
    if (::geteuid() != 0) GTEST_SKIP() << "only the superuser may give files away";
    ASSERT_EQ(::chown(path.c_str(), 1234, 2345), 0);
    ASSERT_EQ(::chmod(path.c_str(), 0640), 0);
    replaceWholeFile(path, "new");
    EXPECT_EQ(statusOf(path).st_uid, 1234U);
    EXPECT_EQ(statusOf(path).st_gid, 2345U);
    EXPECT_EQ(statusOf(path).st_mode & 07777U, 0640U);
}

TEST_F(Saving, GivesAnotherGroupNoMoreRightsThanEverybodyHas) {
    if (::geteuid() != 0) GTEST_SKIP() << "only the superuser may become somebody else";
    // The file belongs to a group that the saving user is not in; the folder may be written.
    ASSERT_EQ(::chmod(folder.path().c_str(), 0777), 0);
    ASSERT_EQ(::chown(path.c_str(), 65534, 2345), 0);
    ASSERT_EQ(::chmod(path.c_str(), 0664), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        if (::setgroups(0, nullptr) != 0 || ::setgid(65534) != 0 || ::setuid(65534) != 0)
            ::_exit(99);
        ::_exit(errorOfSaving(path));
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(WEXITSTATUS(status), 0);
    EXPECT_EQ(readWholeFile(path), "new");
    EXPECT_EQ(statusOf(path).st_gid, 65534U);
    EXPECT_EQ(statusOf(path).st_mode & 07777U, 0644U);
}

TEST_F(Saving, KeepsExtendedAttributes) {
    if (::setxattr(path.c_str(), "user.project", "school", 6, 0) != 0)
        GTEST_SKIP() << "the file system has no extended attributes";
    replaceWholeFile(path, "new");
    std::string value(6, ' ');
    EXPECT_EQ(::getxattr(path.c_str(), "user.project", value.data(), value.size()), 6);
    EXPECT_EQ(value, "school");
}

TEST_F(Saving, KeepsAnAccessControlList) {
    // As the system stores it, version 2: each entry is tag, rights and number. The user 1234 may
    // read and write, the group read, nobody else anything.
    constexpr unsigned char list[] = {
        2,    0, 0, 0,                          //
        0x01, 0, 6, 0, 0xff, 0xff, 0xff, 0xff,  // the owner
        0x02, 0, 6, 0, 0xd2, 0x04, 0,    0,     // user 1234
        0x04, 0, 4, 0, 0xff, 0xff, 0xff, 0xff,  // the group
        0x10, 0, 6, 0, 0xff, 0xff, 0xff, 0xff,  // the most that named ones get
        0x20, 0, 0, 0, 0xff, 0xff, 0xff, 0xff,  // others
    };
    const char* name = "system.posix_acl_access";
    if (::setxattr(path.c_str(), name, list, sizeof list, 0) != 0)
        GTEST_SKIP() << "the file system has no access control lists";
    replaceWholeFile(path, "new");
    unsigned char kept[sizeof list]{};
    ASSERT_EQ(::getxattr(path.c_str(), name, kept, sizeof kept), ssize_t{sizeof list});
    EXPECT_EQ(std::string(kept, kept + sizeof kept), std::string(list, list + sizeof list));
}

TEST_F(Saving, KeepsAllNamesOfAFileThatHasSeveral) {
    const std::string other = folder / "other name.vht";
    fs::create_hard_link(path, other);
    replaceWholeFile(path, "new, and longer");
    EXPECT_EQ(readWholeFile(other), "new, and longer");
    replaceWholeFile(other, "x");
    EXPECT_EQ(readWholeFile(path), "x");
    EXPECT_EQ(statusOf(path).st_nlink, 2U);
    EXPECT_EQ(filesInFolder(), 2U);
}

TEST_F(Saving, FollowsLinksToTheirFile) {
    fs::create_directory(folder / "elsewhere");
    fs::create_symlink("school.vht", folder / "first.vht");
    fs::create_symlink("../first.vht", folder / "elsewhere/second.vht");
    replaceWholeFile(folder / "elsewhere/second.vht", "new");
    EXPECT_EQ(readWholeFile(path), "new");
    EXPECT_TRUE(fs::is_symlink(folder / "first.vht"));
    EXPECT_TRUE(fs::is_symlink(folder / "elsewhere/second.vht"));
}

TEST_F(Saving, RefusesALinkThatLeadsNowhere) {
    fs::create_symlink("nowhere.vht", folder / "link.vht");
    EXPECT_EQ(errorOfSaving(folder / "link.vht"), 75);
    EXPECT_FALSE(fs::exists(folder / "nowhere.vht"));
    EXPECT_TRUE(fs::is_symlink(folder / "link.vht"));
}

TEST_F(Saving, RefusesLinksThatLeadInACircle) {
    fs::create_symlink("b.vht", folder / "a.vht");
    fs::create_symlink("a.vht", folder / "b.vht");
    EXPECT_EQ(errorOfSaving(folder / "a.vht"), 75);
}

TEST_F(Saving, ReplacesNothingThatIsNoFile) {
    fs::create_directory(folder / "folder");
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(errorOfSaving(folder / "folder"), 75);
    EXPECT_EQ(errorOfSaving(folder / "pipe"), 75);
    EXPECT_EQ(errorOfSaving("/dev/null"), 75);
    EXPECT_TRUE(fs::is_fifo(folder / "pipe"));
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST_F(Saving, FindsRoomForItsOwnFileBesideTheLongestName) {
    for (const std::size_t length : {250U, 255U}) {
        const std::string name = std::string(length - 4, 'n') + ".vht";
        replaceWholeFile(folder / name, "old");
        replaceWholeFile(folder / name, "new");
        EXPECT_EQ(readWholeFile(folder / name), "new");
    }
}

TEST_F(Saving, TakesAwayWhatASaveHasLeftThatWasKilled) {
    int names[2];
    ASSERT_EQ(::pipe(names), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        const std::string left = temporaryPath(folder.path());
        const bool told = ::write(names[1], left.data(), left.size()) > 0;
        ::_exit(told ? 0 : 1);
    }
    std::string left(4096, '\0');
    const ssize_t length = ::read(names[0], left.data(), left.size());
    ASSERT_GT(length, 0);
    left.resize(static_cast<std::size_t>(length));
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ::close(names[0]);
    ::close(names[1]);
    replaceWholeFile(folder / "a", "");
    fs::rename(folder / "a", left);
    // One of this process, which is running, and names that only look alike.
    const std::string own = temporaryPath(folder.path());
    fs::copy_file(left, own);
    fs::copy_file(left, folder / ".varnholt-save-notes");
    fs::copy_file(left, folder / ".varnholt-save-1-2-3-4-5");
    replaceWholeFile(path, "new");
    EXPECT_FALSE(fs::exists(left));
    EXPECT_TRUE(fs::exists(own));
    EXPECT_TRUE(fs::exists(folder / ".varnholt-save-notes"));
    EXPECT_TRUE(fs::exists(folder / ".varnholt-save-1-2-3-4-5"));
}

TEST_F(Saving, TellsThatAnotherProgramHasChangedTheFile) {
    const KnownFile known = knownFile(replaceWholeFile(path, "ours"), "ours");
    EXPECT_TRUE(replaceKnownFile(path, "ours 2", known).has_value());
    // The first save is not the last one any more.
    EXPECT_FALSE(replaceKnownFile(path, "ours 3", known).has_value());
    EXPECT_EQ(readWholeFile(path), "ours 2");
}

TEST_F(Saving, SeesAChangeThatCameTooSoonToShowInTheTime) {
    replaceWholeFile(path, "ours");
    const FileSource::Content read = DiskFiles().read(path);
    const KnownFile known = knownFile(read.stamp, read.bytes);
    const struct stat before = statusOf(path);
    // As many bytes in the same file, and the time put back.
    const int file = ::open(path.c_str(), O_WRONLY);
    ASSERT_EQ(::write(file, "them", 4), 4);
    const timespec times[2] = {before.st_atim, before.st_mtim};
    ASSERT_EQ(::futimens(file, times), 0);
    ::close(file);
    EXPECT_TRUE(changedStamp(path, known).has_value());
}

TEST_F(Saving, ReplacesAFileThatIsGone) {
    const KnownFile known = knownFile(replaceWholeFile(path, "ours"), "ours");
    fs::remove(path);
    EXPECT_TRUE(replaceKnownFile(path, "new", known).has_value());
    EXPECT_EQ(readWholeFile(path), "new");
}

TEST_F(Saving, FromTwoProgramsAtOnceLosesNothingUnseen) {
    // Each of two processes adds 1 five hundred times. One that comes too late sees that, reads
    // again and adds to what it finds, so that no addition is ever lost.
    replaceWholeFile(path, "0");
    constexpr int each = 500;
    const auto addOne = [this] {
        for (;;) {
            const FileSource::Content read = DiskFiles().read(path);
            const std::string next = std::to_string(std::stoi(read.bytes) + 1);
            if (replaceKnownFile(path, next, knownFile(read.stamp, read.bytes))) return;
        }
    };
    pid_t children[2];
    for (pid_t& child : children) {
        child = ::fork();
        if (child != 0) continue;
        for (int i = 0; i < each; ++i) addOne();
        ::_exit(0);
    }
    for (const pid_t child : children) {
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_EQ(status, 0);
    }
    EXPECT_EQ(readWholeFile(path), std::to_string(2 * each));
    EXPECT_EQ(filesInFolder(), 1U);
}

// A file with two names, whose writing was cut off.
class WritingCutOff : public Saving {
 protected:
    WritingCutOff() {
        fs::create_hard_link(path, folder / "other.vht");
        copy = keptCopyPath(folder.path(), statusOf(path).st_ino, "new and whole");
        replaceWholeFile(copy, "old");
    }
    void holds(const std::string& bytes) {
        const int file = ::open(path.c_str(), O_WRONLY | O_TRUNC);
        EXPECT_EQ(::write(file, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
        ::close(file);
    }
    std::string copy;
};

TEST_F(WritingCutOff, OffersTheCopyByEveryNameOfTheFile) {
    holds("new and");
    const auto found = keptCopyOf(path);
    ASSERT_TRUE(found.has_value());
    EXPECT_EQ(found->path, copy);
    EXPECT_TRUE(keptCopyOf(folder / "other.vht").has_value());
    restoreKeptCopy(path, *found);
    EXPECT_EQ(readWholeFile(folder / "other.vht"), "old");
    EXPECT_EQ(filesInFolder(), 2U);
}

TEST_F(WritingCutOff, OffersNothingWhenItHadNotBegun) {
    EXPECT_FALSE(keptCopyOf(path).has_value());
    EXPECT_FALSE(fs::exists(copy));
}

TEST_F(WritingCutOff, OffersNothingWhenItHadEnded) {
    holds("new and whole");
    EXPECT_FALSE(keptCopyOf(path).has_value());
    EXPECT_FALSE(fs::exists(copy));
}

TEST(ProcessIdentities, TellARunningProgramFromOneThatHasEnded) {
    const ProcessIdentity self = thisProcess();
    EXPECT_FALSE(hasEnded(self));
    ProcessIdentity earlier = self;
    earlier.begun += 1;
    EXPECT_TRUE(hasEnded(earlier));
    ProcessIdentity elsewhere = self;
    elsewhere.host += "x";
    EXPECT_FALSE(hasEnded(elsewhere));
}

}  // namespace
}  // namespace varnholt

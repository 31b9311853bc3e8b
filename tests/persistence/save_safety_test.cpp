// SPDX-License-Identifier: GPL-3.0-or-later
#include <signal.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstring>
#include <random>

#include "basis/run_time_error.h"
#include "persistence/project_fixture.h"

namespace varnholt {
namespace {

/// What a save in another process ended with: 0, or the number of the run-time error.
int saveElsewhere(const std::function<void()>& prepare, const GroundDesign& design,
                  const std::string& path) {
    const pid_t child = ::fork();
    if (child == 0) {
        int result = 0;
        try {
            prepare();
            saveVHTFile(design, path);
        } catch (const RunTimeError& error) {
            result = error.number();
        }
        ::_exit(result);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// A project of each kind, by the command that begins one.
class SavingLosesNothing : public ProjectTest, public testing::WithParamInterface<const char*> {
 protected:
    SavingLosesNothing() : path(folder / "work files/school.vht"), d(begun()) {
        d.type("INCommentsRichTextBox", std::string(20000, 'o'));
        saveVHTFile(d, path);
        old = bytesOf(path);
        d.type("INCommentsRichTextBox", std::string(30000, 'n'));
        fresh = projectText(d);
    }
    GroundDesign& begun() {
        main.click(GetParam());
        return dynamic_cast<GroundDesign&>(*main.activeWindow());
    }
    void expectOld() { EXPECT_TRUE(bytesOf(path) == old); }
    std::size_t filesIn(const std::string& name) {
        std::size_t count = 0;
        for (const auto& entry : std::filesystem::directory_iterator(folder / name)) {
            static_cast<void>(entry);
            ++count;
        }
        return count;
    }

    std::string path;
    GroundDesign& d;
    std::string old, fresh;
};

TEST_P(SavingLosesNothing, WhenTheProgramIsKilledAtAnyMomentOfAThousandSaves) {
    // In memory where there is such a place: a thousand flushes to a busy disk take long.
    const bool inMemory = std::filesystem::is_directory("/dev/shm");
    const TemporaryFolder place(inMemory ? "/dev/shm" : std::filesystem::temp_directory_path());
    path = place / "school.vht";
    replaceWholeFile(path, old);
    // One that is saved through a link, and one that is not.
    const std::string link = place / "link.vht";
    std::filesystem::create_symlink(path, link);
    std::mt19937 random(20260115);
    // The kills spread over the time that three saves take on this disk.
    const auto start = std::chrono::steady_clock::now();
    for (const std::string* text : {&fresh, &old, &fresh}) replaceWholeFile(path, *text);
    const std::chrono::duration<double, std::micro> threeSaves =
        std::chrono::steady_clock::now() - start;
    std::uniform_int_distribution<useconds_t> microseconds(
        0, static_cast<useconds_t>(threeSaves.count()));
    int oldFound = 0, newFound = 0;
    for (int round = 0; round < 1000; ++round) {
        const std::string& name = round % 2 == 0 ? path : link;
        int begun[2];
        ASSERT_EQ(::pipe(begun), 0);
        const pid_t child = ::fork();
        if (child == 0) {
            static_cast<void>(::write(begun[1], "x", 1) == 1);
            // Saves the two projects in turn until it is killed.
            for (bool fromOld = round % 4 < 2;; fromOld = !fromOld)
                replaceWholeFile(name, fromOld ? fresh : old);
        }
        // Only from then on, however busy the machine is.
        char first = 0;
        ASSERT_EQ(::read(begun[0], &first, 1), 1);
        ::usleep(microseconds(random));
        ::kill(child, SIGKILL);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ::close(begun[0]);
        ::close(begun[1]);
        ASSERT_TRUE(WIFSIGNALED(status)) << "the save ended by itself";
        const std::string found = bytesOf(path);
        ASSERT_TRUE(found == old || found == fresh)
            << "round " << round << ": " << found.size() << " bytes";
        (found == old ? oldFound : newFound) += 1;
    }
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    // Both must have been met, or the kills came too early or too late to prove anything.
    EXPECT_GT(oldFound, 50);
    EXPECT_GT(newFound, 50);
}

TEST_P(SavingLosesNothing, WhenTheDiskIsFullBeforeTheEnd) {
    for (const rlim_t most : {0u, 1u, 1000u, 29999u}) {
        SCOPED_TRACE(most);
        const auto fillDisk = [most] {
            ::signal(SIGXFSZ, SIG_IGN);
            const rlimit limit{most, most};
            ::setrlimit(RLIMIT_FSIZE, &limit);
        };
        EXPECT_EQ(saveElsewhere(fillDisk, d, path), 61);
        expectOld();
        EXPECT_EQ(filesIn("work files"), 1u);
    }
}

TEST_P(SavingLosesNothing, OnAFullFileSystem) {
    const std::string small = folder / "small";
    std::filesystem::create_directory(small);
    // Only root may mount; the test before this one holds for everybody.
    if (::mount("tmpfs", small.c_str(), "tmpfs", 0, "size=40k") != 0)
        GTEST_SKIP() << "no right to mount a small file system";
    path = small + "/school.vht";
    replaceWholeFile(path, old);
    EXPECT_EQ(saveElsewhere([] {}, d, path), 61);
    expectOld();
    EXPECT_EQ(filesIn("small"), 1u);
    ::umount(small.c_str());
}

/// Gives up the superuser's rights, for whom no right is ever missing.
void becomeNobody() {
    if (::geteuid() == 0 && (::setgid(65534) != 0 || ::setuid(65534) != 0)) ::_exit(99);
}

TEST_P(SavingLosesNothing, WithoutTheRightToWriteTheFile) {
    // The folder may be written, the file may not: it is not replaced all the same.
    std::filesystem::permissions(folder.path(), std::filesystem::perms::all);
    std::filesystem::permissions(folder / "work files", std::filesystem::perms::all);
    std::filesystem::permissions(path, std::filesystem::perms(0444));
    EXPECT_EQ(saveElsewhere(becomeNobody, d, path), 70);
    expectOld();
    EXPECT_EQ(filesIn("work files"), 1u);
}

TEST_P(SavingLosesNothing, WithoutTheRightToWriteTheFolder) {
    std::filesystem::permissions(folder.path(), std::filesystem::perms(0755));
    std::filesystem::permissions(path, std::filesystem::perms(0666));
    std::filesystem::permissions(folder / "work files", std::filesystem::perms(0555));
    EXPECT_EQ(saveElsewhere(becomeNobody, d, path), 70);
    expectOld();
    std::filesystem::permissions(folder / "work files", std::filesystem::perms(0755));
}

TEST_P(SavingLosesNothing, WhereAFolderHasTheName) {
    std::filesystem::create_directory(folder / "school.vht");
    saveAs(d, "school.vht");
    EXPECT_EQ(lastMessage(), "75 - Path/File access error: " + folder / "school.vht");
    EXPECT_TRUE(std::filesystem::is_directory(folder / "school.vht"));
    EXPECT_FALSE(d.currentFileCheck);
}

TEST_P(SavingLosesNothing, ThroughASymbolicLink) {
    std::filesystem::create_symlink(path, folder / "link.vht");
    saveVHTFile(d, folder / "link.vht");
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "link.vht"));
    EXPECT_TRUE(bytesOf(path) == fresh);
}

TEST_P(SavingLosesNothing, AndKeepsTheFilesPermissions) {
    std::filesystem::permissions(path, std::filesystem::perms(0640));
    saveVHTFile(d, path);
    EXPECT_EQ(std::filesystem::status(path).permissions(), std::filesystem::perms(0640));
}

INSTANTIATE_TEST_SUITE_P(OfAllKinds, SavingLosesNothing,
                         testing::Values("NewBorehole", "NewSurfaceWater"),
                         [](const testing::TestParamInfo<const char*>& each) {
                             return std::string(each.param).substr(std::strlen("New"));
                         });

}  // namespace
}  // namespace varnholt

// SPDX-License-Identifier: GPL-3.0-or-later
// Unsaved work of a program that ended without saving it.
#include "persistence/recovery/recovery.h"

#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <functional>
#include <thread>

#include "persistence/project_fixture.h"

namespace varnholt {
namespace {

RecoveryRecord sampleRecord() {
    RecoveryRecord record;
    record.form = "frmBHDesign";
    record.path = "/projects/caf\xE9/school.vht";
    record.name = "school.vht";
    record.changed = 1'768'000'000'000'000'000;
    record.known = KnownFile{{1, 2, 3, 4, false}, 5};
    record.isStale = true;
    record.document = "Varnholt Data File Version 3.0\r\n\r\nline\r\n";
    return record;
}

TEST(RecoveryRecords, ComeBackAsTheyWere) {
    const RecoveryRecord record = sampleRecord();
    const auto read = readRecord(recordBytes(record));
    ASSERT_TRUE(read.has_value());
    EXPECT_EQ(read->form, record.form);
    EXPECT_EQ(read->path, record.path);
    EXPECT_EQ(read->name, record.name);
    EXPECT_EQ(read->changed, record.changed);
    ASSERT_TRUE(read->known.has_value());
    EXPECT_EQ(read->known->stamp.modified, 4);
    EXPECT_EQ(read->known->fingerprint, 5U);
    EXPECT_TRUE(read->isStale);
    EXPECT_FALSE(read->savesUnderNewName);
    EXPECT_EQ(read->document, record.document);
}

TEST(RecoveryRecords, ThatAreCutAnywhereAreNeverTrusted) {
    const std::string bytes = recordBytes(sampleRecord());
    for (std::size_t end = 0; end < bytes.size(); ++end)
        EXPECT_FALSE(readRecord(bytes.substr(0, end)).has_value()) << end;
}

TEST(RecoveryRecords, WithAnyByteChangedAreNeverTrusted) {
    const std::string bytes = recordBytes(sampleRecord());
    for (std::size_t at = 0; at < bytes.size(); ++at)
        for (const char flip : {'\x01', '\x10', '\x80'}) {
            std::string changed = bytes;
            changed[at] = static_cast<char>(changed[at] ^ flip);
            EXPECT_FALSE(readRecord(changed).has_value()) << at;
        }
}

class UnsavedWork : public ProjectTest {
 protected:
    UnsavedWork() {
        texts.known.insert({{8550, "%1, %2, not saved."},
                            {8551, "Newer: %1."},
                            {8552, "Older: %1."},
                            {8553, "No file."},
                            {8554, "Open?"},
                            {8557, "Set aside: %1"},
                            {8559, "Still kept: %1"},
                            {8563, "Left: %1"}});
        saveAs(newDesign(), "work files/school.vht");
    }

    /// Runs the work in another process, whose windows are as these ones, keeps it, and ends the
    /// process as a crash does.
    void crashAfter(const std::function<void()>& work) {
        const pid_t child = ::fork();
        if (child == 0) {
            Recovery recovery(main);
            work();
            recovery.keepNow();
            ::_exit(0);
        }
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_EQ(status, 0);
    }
    void crashWithChanges() {
        crashAfter([this] { design().type("INProjectNameText", "Unsaved"); });
        closeAll();
        platform.questions.clear();
    }
    std::size_t filesKept() const {
        namespace fs = std::filesystem;
        if (!fs::exists(folder / "recovery")) return 0;
        std::size_t files = 0;
        for (const auto& entry : fs::recursive_directory_iterator(folder / "recovery"))
            files += entry.is_regular_file() ? 1 : 0;
        return files;
    }
    void offer() { Recovery(main).offer(); }
    /// Whether the clock keeps the work within ten seconds of a person's, as fast as can be.
    bool isKeptByTheClock(Recovery& recovery, Recovery::Time& now) const {
        for (int second = 0; second < 10; ++second) {
            recovery.tick(now += Recovery::step);
            for (int moment = 0; moment < 50 && filesKept() == 0; ++moment)
                std::this_thread::sleep_for(std::chrono::milliseconds(2));
            if (filesKept() > 0) return true;
        }
        return false;
    }
};

/// As on a full disk, no file of this process can take a byte.
void fillDisk(bool full) {
    ::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = full ? 0 : limit.rlim_max;
    ::setrlimit(RLIMIT_FSIZE, &limit);
}

TEST_F(UnsavedWork, IsOfferedAndOpensAsChangedUnderItsName) {
    crashWithChanges();
    const std::string saved = bytesOf(folder / "work files/school.vht");
    EXPECT_EQ(filesKept(), 1U);
    answer(Answer::yes);
    Recovery recovery(main);
    recovery.offer();
    ASSERT_EQ(platform.questions.size(), 1U);
    EXPECT_TRUE(platform.questions[0].text.starts_with("school.vht, "));
    EXPECT_NE(platform.questions[0].text.find("Older: "), std::string::npos);
    EXPECT_EQ(design().control("INProjectNameText").text(), "Unsaved");
    EXPECT_EQ(design().caption(), "Borehole Design Project - school.vht");
    EXPECT_TRUE(design().isChanged());
    EXPECT_EQ(bytesOf(folder / "work files/school.vht"), saved);
    // It is kept until it has been saved.
    recovery.keepNow();
    EXPECT_EQ(filesKept(), 1U);
    main.click("mnuFileSave");
    recovery.keepNow();
    EXPECT_EQ(filesKept(), 0U);
    EXPECT_EQ(platform.questions.size(), 1U);
}

TEST_F(UnsavedWork, IsDiscardedByNo) {
    crashWithChanges();
    answer(Answer::no);
    offer();
    EXPECT_TRUE(main.windows().empty());
    EXPECT_EQ(filesKept(), 0U);
    EXPECT_FALSE(std::filesystem::exists(folder / "recovery"));
}

TEST_F(UnsavedWork, IsKeptForTheNextStartByCancel) {
    crashWithChanges();
    answer(Answer::cancel);
    offer();
    EXPECT_TRUE(main.windows().empty());
    EXPECT_EQ(filesKept(), 1U);
}

TEST_F(UnsavedWork, OfADesignWithoutAFileOpensUnderItsCaption) {
    crashAfter([this] {
        newDesign().type("INProjectNameText", "New");
        ASSERT_TRUE(design().isChanged());
    });
    closeAll();
    platform.questions.clear();
    answer(Answer::yes);
    Recovery recovery(main);
    recovery.offer();
    EXPECT_NE(platform.questions[0].text.find("No file."), std::string::npos);
    EXPECT_EQ(design().control("INProjectNameText").text(), "New");
    EXPECT_EQ(design().FileName, "");
    EXPECT_FALSE(design().currentFileCheck);
}

TEST_F(UnsavedWork, IsNotTakenFromAProgramThatRuns) {
    int kept[2];
    ASSERT_EQ(::pipe(kept), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        Recovery recovery(main);
        design().type("INProjectNameText", "Elsewhere");
        recovery.keepNow();
        if (::write(kept[1], "x", 1) == 1) ::pause();
        ::_exit(0);
    }
    char byte = 0;
    ASSERT_EQ(::read(kept[0], &byte, 1), 1);
    offer();
    EXPECT_TRUE(platform.questions.empty());
    ::kill(child, SIGKILL);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    answer(Answer::no);
    offer();
    EXPECT_EQ(platform.questions.size(), 1U);
}

TEST_F(UnsavedWork, ThatIsDamagedIsSetAside) {
    crashWithChanges();
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder / "recovery"))
        if (entry.is_regular_file()) writeBytes(entry.path(), "Varnholt Recovery Version 1\n");
    offer();
    EXPECT_TRUE(platform.questions.empty());
    EXPECT_EQ(filesKept(), 1U);
    EXPECT_TRUE(main.control("NoticeLabel").caption().starts_with("Set aside: "));
    EXPECT_TRUE(main.control("NoticeLabel").caption().ends_with(".damaged"));
}

TEST_F(UnsavedWork, OfAnotherVersionOfTheProgramIsLeftToItAndThatIsTold) {
    crashWithChanges();
    // A record of version 2, whose fingerprint goes with what it holds.
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder / "recovery")) {
        if (!entry.is_regular_file()) continue;
        std::string bytes = bytesOf(entry.path());
        bytes[bytes.find('\n') - 1] = '2';
        EXPECT_TRUE(isOfAnotherVersion(bytes));
        EXPECT_FALSE(isOfAnotherVersion(bytes + "x"));
        writeBytes(entry.path(), bytes);
    }
    offer();
    EXPECT_TRUE(platform.questions.empty());
    EXPECT_EQ(filesKept(), 1U);
    EXPECT_TRUE(main.control("NoticeLabel").caption().starts_with("Left: "));
    EXPECT_TRUE(main.control("NoticeLabel").caption().ends_with(".unsaved"));
}

TEST_F(UnsavedWork, OfAWindowThatIsInUseIsKeptAndThatIsTold) {
    // Two programs have ended with zones of their own; there is one loads window.
    for (const char* file : {"zones/north.zon", "zones/south.zon"}) {
        writeZones(folder / file, 1);
        main.click("mnuZoneManage");
        crashAfter([&] {
            loads().LOOpenZoneFile(folder / file);
            loads().unsaved = true;
        });
        closeAll();
    }
    platform.questions.clear();
    answer(Answer::yes);
    answer(Answer::yes);
    Recovery recovery(main);
    recovery.offer();
    EXPECT_EQ(platform.questions.size(), 2U);
    EXPECT_EQ(main.windows().size(), 1U);
    EXPECT_EQ(main.control("NoticeLabel").caption(), "Still kept: south.zon");
    recovery.keepNow();
    EXPECT_EQ(filesKept(), 2U);
}

TEST_F(UnsavedWork, IsReadableByItsOwnerAlone) {
    crashWithChanges();
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder / "recovery")) {
        struct stat status {};
        ASSERT_EQ(::stat(entry.path().c_str(), &status), 0);
        EXPECT_EQ(status.st_mode & 07777U, entry.is_directory() ? 0700U : 0600U) << entry.path();
    }
}

TEST_F(UnsavedWork, IsForgottenOnceItIsRefused) {
    Recovery recovery(main);
    design().type("INProjectNameText", "Refused");
    recovery.keepNow();
    EXPECT_EQ(filesKept(), 1U);
    closeAll();
    recovery.keepNow();
    EXPECT_EQ(filesKept(), 0U);
}

TEST_F(UnsavedWork, IsKeptByTheClockInAPauseOrAfterAFewSeconds) {
    Recovery recovery(main);
    const Recovery::Time start{};
    recovery.tick(start);
    design().type("INProjectNameText", "a");
    recovery.tick(start + std::chrono::seconds(1));
    recovery.tick(start + std::chrono::seconds(2));  // nothing more has happened
    recovery.keepNow();
    EXPECT_EQ(filesKept(), 1U);
}

TEST_F(UnsavedWork, IsKeptOnceADiskThatWasFullHasRoomAgain) {
    crashAfter([this] {
        Recovery recovery(main);
        Recovery::Time now{};
        fillDisk(true);
        design().type("INProjectNameText", "Unsaved");
        for (int second = 0; second < 5; ++second) recovery.tick(now += Recovery::step);
        recovery.keepNow();
        if (filesKept() != 0) ::_exit(1);
        fillDisk(false);
        // Nothing more is typed.
        if (!isKeptByTheClock(recovery, now)) ::_exit(2);
        // The writing that has begun ends before the program does.
        recovery.keepNow();
        ::_exit(0);
    });
    closeAll();
    platform.questions.clear();
    answer(Answer::yes);
    Recovery recovery(main);
    recovery.offer();
    ASSERT_EQ(platform.questions.size(), 1U);
    EXPECT_EQ(design().control("INProjectNameText").text(), "Unsaved");
}

TEST_F(UnsavedWork, IsKeptOnceItsFolderCanBeMade) {
    writeBytes(folder / "recovery", "in the way");
    Recovery recovery(main);
    Recovery::Time now{};
    design().type("INProjectNameText", "Unsaved");
    for (int second = 0; second < 5; ++second) recovery.tick(now += Recovery::step);
    EXPECT_TRUE(std::filesystem::is_regular_file(folder / "recovery"));
    recovery.keepNow();
    std::filesystem::remove(folder / "recovery");
    EXPECT_TRUE(isKeptByTheClock(recovery, now));
}

TEST_F(UnsavedWork, IsKeptAgainAfterItsFolderHasBeenTakenAway) {
    Recovery recovery(main);
    Recovery::Time now{};
    design().type("INProjectNameText", "Unsaved");
    EXPECT_TRUE(isKeptByTheClock(recovery, now));
    std::filesystem::remove_all(folder / "recovery");
    design().type("INProjectNameText", "Unsaved too");
    EXPECT_TRUE(isKeptByTheClock(recovery, now));
}

TEST_F(UnsavedWork, WithChangesOnTheDiskSinceIsNotSavedOverThem) {
    crashWithChanges();
    writeBytes(folder / "work files/school.vht",
               bytesOf(folder / "work files/school.vht") + "\r\n");
    answer(Answer::yes);
    Recovery recovery(main);
    recovery.offer();
    answer(Answer::cancel);
    main.click("mnuFileSave");
    EXPECT_EQ(platform.questions.size(), 2U);
    EXPECT_TRUE(design().isChanged());
}

}  // namespace
}  // namespace varnholt

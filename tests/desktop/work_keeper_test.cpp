// SPDX-License-Identifier: GPL-3.0-or-later
// Unsaved work of a person's windows: typed into real fields, kept by the clock and at the signals
// that ask the program to end.
#include "desktop/windows/work_keeper.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QLineEdit>
#include <QSessionManager>
#include <QTest>
#include <QTimer>
#include <fstream>

#include "desk.h"
#include "desktop/binding/form_window.h"
#include "frame/design_document.h"
#include "persistence/recovery/recovery.h"

namespace varnholt {
namespace {

class WorkKeeperTest : public testing::Test {
 protected:
    WorkKeeperTest() {
        desk.main().click("NewBorehole");
        Desk::settle();
    }
    ~WorkKeeperTest() override { EXPECT_TRUE(desk.faults.empty()); }

    void type(const char* text) {
        const Form& design = *desk.main().find("frmBHDesign");
        auto* field = static_cast<QLineEdit*>(
            desk.shelf.windowOf(design)->binder().widget("INProjectNameText"));
        QTest::keyClicks(field, QString::fromLatin1(text));
    }
    std::size_t filesKept() const {
        namespace fs = std::filesystem;
        const std::string folder = desk.folder() + "/recovery";
        std::size_t files = 0;
        if (fs::exists(folder))
            for (const auto& entry : fs::recursive_directory_iterator(folder))
                files += entry.path().extension() == ".unsaved" ? 1 : 0;
        return files;
    }
    /// What this program has on the disk, while it runs.
    std::vector<RecoveryRecord> onDisk() const {
        std::vector<RecoveryRecord> records;
        for (const auto& entry :
             std::filesystem::recursive_directory_iterator(desk.folder() + "/recovery")) {
            if (entry.path().extension() != ".unsaved") continue;
            std::ifstream file(entry.path(), std::ios::binary);
            const std::string bytes{std::istreambuf_iterator<char>(file), {}};
            if (auto record = readRecord(bytes)) records.push_back(std::move(*record));
        }
        return records;
    }
    /// What a start that follows would offer.
    std::vector<RecoveryRecord> kept() const {
        RecoveryFolder::Taken taken = RecoveryFolder(desk.folder()).take();
        std::vector<RecoveryRecord> records;
        for (auto& found : taken.found) records.push_back(std::move(found.record));
        EXPECT_TRUE(taken.setAside.empty());
        EXPECT_TRUE(taken.left.empty());
        return records;
    }

    Desk desk;
};

TEST_F(WorkKeeperTest, KeepsWorkByTheClockWithinTenSeconds) {
    Recovery recovery(desk.main());
    const WorkKeeper keeper(*qApp, recovery);
    type("Kept by the clock");
    EXPECT_EQ(filesKept(), 0U);
    EXPECT_TRUE(QTest::qWaitFor([this] { return filesKept() == 1; }, 10'000));
}

TEST_F(WorkKeeperTest, KeepsWorkAtOnceWhenTheSessionEnds) {
    Recovery recovery(desk.main());
    const WorkKeeper keeper(*qApp, recovery);
    type("Kept at the session's end");
    ASSERT_EQ(filesKept(), 0U);
    auto* session = qApp->findChild<QSessionManager*>();
    ASSERT_NE(session, nullptr);
    // What the toolkit does when the desktop's session manager tells of the end.
    qApp->commitDataRequest(*session);
    const std::vector<RecoveryRecord> records = onDisk();
    ASSERT_EQ(records.size(), 1U);
    EXPECT_NE(records[0].document.find("Kept at the session's end"), std::string::npos);
    // The session may go on after all, and so does the window.
    EXPECT_NE(desk.main().find("frmBHDesign"), nullptr);
}

class EndSignal : public WorkKeeperTest, public testing::WithParamInterface<int> {};

TEST_P(EndSignal, KeepsWorkAtOnceAndEndsTheProgramAsItDoesByItself) {
    const pid_t child = ::fork();
    if (child == 0) {
        // Tests that run in the background would ignore some of them.
        ::signal(GetParam(), SIG_DFL);
        Recovery recovery(desk.main());
        const WorkKeeper keeper(*qApp, recovery);
        // The signal comes before the clock has ticked once.
        QTimer::singleShot(0, [this] {
            type("Kept at the end");
            ::raise(GetParam());
        });
        QApplication::exec();
        ::_exit(0);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status)) << status;
    EXPECT_EQ(WTERMSIG(status), GetParam());
    const std::vector<RecoveryRecord> records = kept();
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].form, "frmBHDesign");
    EXPECT_NE(records[0].document.find("Kept at the end"), std::string::npos);
}

TEST_P(EndSignal, KeepsWorkWhileADialogWaitsForThePerson) {
    const pid_t child = ::fork();
    if (child == 0) {
        // Tests that run in the background would ignore some of them.
        ::signal(GetParam(), SIG_DFL);
        Recovery recovery(desk.main());
        const WorkKeeper keeper(*qApp, recovery);
        type("Kept behind a dialog");
        QTimer::singleShot(0, [] { ::raise(GetParam()); });
        QDialog dialog(desk.window.get());
        dialog.exec();
        ::_exit(0);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status)) << status;
    ASSERT_EQ(kept().size(), 1U);
}

INSTANTIATE_TEST_SUITE_P(OfAllKinds, EndSignal, testing::Values(SIGTERM, SIGHUP, SIGINT),
                         [](const testing::TestParamInfo<int>& each) {
                             return each.param == SIGTERM  ? "Terminate"
                                    : each.param == SIGHUP ? "HangUp"
                                                           : "Interrupt";
                         });

}  // namespace
}  // namespace varnholt

// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/windows/desktop_platform.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>
#include <atomic>
#include <chrono>
#include <fstream>
#include <memory>
#include <thread>

#include "app/application.h"
#include "basis/system/patience.h"
#include "basis/temporary_folder.h"
#include "desktop/widgets/qt_text.h"
#include "desktop/widgets/theme.h"
#include "desktop/windows/main_window.h"
#include "frame/frmAbout.h"
#include "reports/frmPROptions.h"
#include "tools/program_folder.h"

namespace varnholt {
namespace {

class DesktopPlatformTest : public testing::Test {
 protected:
    DesktopPlatformTest()
        : platform(shelf), program(platform, {"/nowhere", installedFiles().resources, 0x409}) {
        applyTheme(*qApp, Scheme::light);
        window = std::make_unique<MainWindow>(program.main(), FaultTaker(), std::string());
        shelf.setMain(*window, program.main());
        window->show();
    }

    /// Once a dialog of that kind has come up, does this with it.
    template <class Dialog>
    void whenShown(std::function<void(Dialog&)> hand) {
        QTimer::singleShot(0, window.get(), [this, hand = std::move(hand)] {
            auto* dialog = dynamic_cast<Dialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr) return whenShown<Dialog>(hand);
            hand(*dialog);
        });
    }

    WindowShelf shelf{false};
    DesktopPlatform platform;
    Application program;
    std::unique_ptr<MainWindow> window;
};

TEST_F(DesktopPlatformTest, TakesTheDayThatItIsGivenForToday) {
    EXPECT_EQ(DesktopPlatform(shelf, Date{2026, 1, 15}).today(), (Date{2026, 1, 15}));
    EXPECT_EQ(platform.today(), dateOfToday());
}

TEST_F(DesktopPlatformTest, ShowsAMessageAsItStandsWithItsIcon) {
    QString shown;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    whenShown<QMessageBox>([&](QMessageBox& box) {
        shown = box.text();
        icon = box.icon();
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        box.button(QMessageBox::Ok)->click();
    });
    platform.message(MessageIcon::exclamation, "Varnholt", "11 - <b>Division</b> by zero");
    EXPECT_EQ(plain(shown), "11 - <b>Division</b> by zero");
    EXPECT_EQ(icon, QMessageBox::Warning);
}

TEST_F(DesktopPlatformTest, AnswersAQuestionByTheButtonPressed) {
    const std::pair<QMessageBox::StandardButton, Answer> cases[] = {
        {QMessageBox::Yes, Answer::yes},
        {QMessageBox::No, Answer::no},
        {QMessageBox::Cancel, Answer::cancel}};
    for (const auto& [button, answer] : cases) {
        whenShown<QMessageBox>(
            [pressed = button](QMessageBox& box) { box.button(pressed)->click(); });
        EXPECT_EQ(platform.question(Buttons::yesNoCancel, "Save", "Save?"), answer);
    }
}

TEST_F(DesktopPlatformTest, WarnsWhereAQuestionTakesSomethingAway) {
    for (const QMessageBox::Icon expected : {QMessageBox::Question, QMessageBox::Warning}) {
        whenShown<QMessageBox>([expected](QMessageBox& box) {
            EXPECT_EQ(box.icon(), expected);
            box.button(QMessageBox::No)->click();
        });
        const Answer answer = expected == QMessageBox::Warning
                                  ? platform.confirm(Buttons::yesNo, "Remove", "Remove?")
                                  : platform.question(Buttons::yesNo, "Clear", "Clear?");
        EXPECT_EQ(answer, Answer::no);
    }
}

TEST_F(DesktopPlatformTest, TakesAClosedQuestionForCancel) {
    whenShown<QMessageBox>([](QMessageBox& box) { box.close(); });
    EXPECT_EQ(platform.question(Buttons::yesNoCancel, "Save", "Save?"), Answer::cancel);
    whenShown<QMessageBox>([](QMessageBox& box) { box.close(); });
    EXPECT_EQ(platform.question(Buttons::okCancel, "Clear", "Clear?"), Answer::cancel);
}

TEST_F(DesktopPlatformTest, OffersTheKindsOfFilesWithTheOneAskedForInFront) {
    whenShown<QFileDialog>([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.nameFilters().size(), 2);
        EXPECT_EQ(plain(dialog.selectedNameFilter()), "Zone Files (*.zon)");
        EXPECT_EQ(plain(dialog.defaultSuffix()), "zon");
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
        dialog.reject();
    });
    const FileDialog dialog{
        true, "Save Zones", "/tmp", "a b.zon", "Projects (*.vht)|*.vht|Zone Files (*.zon)|*.zon",
        2,    true};
    EXPECT_EQ(platform.chooseFile(dialog), std::nullopt);
}

TEST_F(DesktopPlatformTest, OffersTheFoldersOfTheLastFilesAtTheSideAndNamesEveryCombo) {
    TemporaryFolder folder;
    std::ofstream(folder / "river.vht") << "x";
    program.main().fileUsed(folder / "river.vht");
    whenShown<QFileDialog>([&](QFileDialog& dialog) {
        EXPECT_TRUE(dialog.sidebarUrls().contains(QUrl::fromLocalFile(qt(folder.path()))));
        for (const QLabel* label : dialog.findChildren<QLabel*>()) {
            if (!label->isVisible() || label->text().isEmpty()) continue;
            EXPECT_NE(label->buddy(), nullptr) << plain(label->text());
        }
        dialog.reject();
    });
    EXPECT_EQ(platform.chooseFile({false, "Open", "/tmp", "", "Projects (*.vht)|*.vht", 1, false}),
              std::nullopt);
}

TEST_F(DesktopPlatformTest, RunsADialogUntilItsFormEndsItself) {
    frmAbout about(platform, program.texts());
    whenShown<FormDialog>([](FormDialog& dialog) {
        static_cast<QPushButton*>(dialog.content().binder().widget("cmdOK"))->click();
    });
    platform.runModal(about);
    EXPECT_TRUE(about.modalEnded());
    EXPECT_EQ(shelf.windowOf(about), nullptr);
}

TEST_F(DesktopPlatformTest, HasRoomForTheTitleOfANarrowDialog) {
    frmPROptions options(program.main());
    whenShown<FormDialog>([](FormDialog& dialog) {
        EXPECT_GT(dialog.width(),
                  dialog.fontMetrics().horizontalAdvance(dialog.windowTitle()) + 100);
        dialog.reject();
    });
    platform.runModal(options);
}

TEST_F(DesktopPlatformTest, EndsADialogByEscapeAfterItsOwnQuestion) {
    class Stubborn : public frmAbout {
     public:
        using frmAbout::frmAbout;
        bool queryClose() override { return ++asked > 1; }
        int asked = 0;
    } about(platform, program.texts());
    whenShown<FormDialog>([](FormDialog& dialog) {
        for (int times = 0; times < 2; ++times) {
            QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
            QCoreApplication::sendEvent(&dialog, &escape);
        }
    });
    platform.runModal(about);
    EXPECT_EQ(about.asked, 2);
    EXPECT_TRUE(about.modalEnded());
}

TEST_F(DesktopPlatformTest, PressesTheFirstButtonOfADialogByEnter) {
    frmAbout about(platform, program.texts());
    whenShown<FormDialog>([](FormDialog& dialog) {
        QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QCoreApplication::sendEvent(&dialog, &enter);
    });
    platform.runModal(about);
    EXPECT_TRUE(about.modalEnded());
}

TEST_F(DesktopPlatformTest, ShowsProgressOnlyOfWhatLastsAQuarterOfASecond) {
    QElapsedTimer clock;
    clock.start();
    const auto dialog = [] {
        return dynamic_cast<QProgressDialog*>(QApplication::activeModalWidget());
    };
    platform.progress("Selecting", 1, 1000);
    EXPECT_EQ(dialog(), nullptr);
    while (dialog() == nullptr && clock.elapsed() < 5000) platform.progress("Selecting", 2, 1000);
    ASSERT_NE(dialog(), nullptr);
    EXPECT_GE(clock.elapsed(), 250);
    EXPECT_EQ(plain(dialog()->labelText()), "Selecting");
    platform.progress("Selecting", 1000, 1000);
    EXPECT_EQ(dialog(), nullptr);
}

class SlowFile : public DesktopPlatformTest {
 protected:
    ~SlowFile() override { release->store(true); }

    /// Reads as from a folder that does not answer, for as long as the platform waits.
    std::optional<int> read() {
        const Patience patience = [this](std::chrono::milliseconds waited) {
            return platform.waitFor("/net/plans/school.vht", waited);
        };
        const auto result = patiently<int>(patience, [release = release] {
            while (!release->load()) std::this_thread::sleep_for(std::chrono::milliseconds(1));
            return 7;
        });
        platform.waitingEnded();
        return result;
    }
    static QProgressDialog* dialog() {
        return dynamic_cast<QProgressDialog*>(QApplication::activeModalWidget());
    }

    std::shared_ptr<std::atomic<bool>> release = std::make_shared<std::atomic<bool>>(false);
};

TEST_F(SlowFile, IsWaitedForWithoutAWordForAQuarterOfASecond) {
    release->store(true);
    EXPECT_EQ(read(), 7);
    EXPECT_TRUE(platform.waitFor("/net/plans/school.vht", std::chrono::milliseconds(249)));
    EXPECT_EQ(dialog(), nullptr);
}

TEST_F(SlowFile, IsNamedInADialogThatGoesWhenItHasBeenRead) {
    QString shown;
    whenShown<QProgressDialog>([&](QProgressDialog& dialog) {
        shown = dialog.labelText();
        EXPECT_EQ(dialog.windowModality(), Qt::ApplicationModal);
        // How long it takes nobody knows.
        EXPECT_EQ(dialog.maximum(), 0);
        release->store(true);
    });
    EXPECT_EQ(read(), 7);
    EXPECT_EQ(plain(shown), "Reading school.vht \xE2\x80\xA6");
    EXPECT_EQ(dialog(), nullptr);
}

TEST_F(SlowFile, IsGivenUpByCancelThoughItNeverAnswers) {
    whenShown<QProgressDialog>([](QProgressDialog& dialog) {
        auto* cancel = dialog.findChild<QPushButton*>();
        ASSERT_NE(cancel, nullptr);
        cancel->click();
    });
    EXPECT_EQ(read(), std::nullopt);
    EXPECT_EQ(dialog(), nullptr);
}

TEST_F(SlowFile, IsGivenUpByEscape) {
    whenShown<QProgressDialog>([](QProgressDialog& dialog) {
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QCoreApplication::sendEvent(&dialog, &escape);
    });
    EXPECT_EQ(read(), std::nullopt);
    EXPECT_EQ(dialog(), nullptr);
}

TEST_F(DesktopPlatformTest, KeepsTextOnTheClipboard) {
    platform.setClipboard("1\t2\r\n3");
    EXPECT_EQ(platform.clipboard(), "1\t2\r\n3");
}

}  // namespace
}  // namespace varnholt

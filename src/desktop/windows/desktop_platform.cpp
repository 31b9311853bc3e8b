// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/windows/desktop_platform.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDesktopServices>
#include <QDir>
#include <QEventLoop>
#include <QFileDialog>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QProgressDialog>
#include <QSplitter>
#include <QTimer>
#include <QTreeView>
#include <QUrl>
#include <algorithm>

#include "basis/file_system.h"
#include "desktop/binding/typing.h"
#include "desktop/widgets/qt_text.h"
#include "desktop/windows/main_window.h"

namespace varnholt {
namespace {

QMessageBox::Icon iconOf(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::information:
            return QMessageBox::Information;
        case MessageIcon::exclamation:
            return QMessageBox::Warning;
        case MessageIcon::question:
            return QMessageBox::Question;
        case MessageIcon::critical:
            return QMessageBox::Critical;
        case MessageIcon::plain:
            break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons buttonsOf(Buttons buttons) {
    switch (buttons) {
        case Buttons::yesNoCancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        case Buttons::yesNo:
            return QMessageBox::Yes | QMessageBox::No;
        case Buttons::okCancel:
            break;
    }
    return QMessageBox::Ok | QMessageBox::Cancel;
}

Answer answerOf(int button) {
    switch (button) {
        case QMessageBox::Yes:
            return Answer::yes;
        case QMessageBox::No:
            return Answer::no;
        case QMessageBox::Ok:
            return Answer::ok;
        default:
            return Answer::cancel;
    }
}

/// Shows the dialog's kinds of files; a saved file takes the extension of the chosen kind.
void offerFilters(QFileDialog& picker, const FileDialog& dialog) {
    const std::vector<FileFilter> filters = fileFilters(dialog.filter);
    if (filters.empty()) return;
    QStringList names;
    for (const FileFilter& filter : filters) names << qt(nameFilter(filter));
    const auto choose = [&picker, names, filters](const QString& name) {
        const auto chosen = names.indexOf(name);
        if (chosen >= 0)
            picker.setDefaultSuffix(qt(extensionOf(filters[static_cast<std::size_t>(chosen)])));
    };
    QObject::connect(&picker, &QFileDialog::filterSelected, &picker, choose);
    const QString first =
        names[std::clamp(dialog.filterIndex, 1, static_cast<int>(names.size())) - 1];
    picker.setNameFilters(names);
    picker.selectNameFilter(first);
    if (dialog.saving) choose(first);
}

/// Shows sizes and dates whole where the desktop has no file dialog of its own.
void widenColumns(const QFileDialog& picker) {
    if (const auto* files = picker.findChild<QTreeView*>())
        files->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
}

/// The names of the folders at the side are seen whole.
void widenSide(const QFileDialog& picker) {
    constexpr int side = 150, files = 490;
    if (auto* split = picker.findChild<QSplitter*>()) split->setSizes({side, files});
}

/// The folders at the side where the desktop has no file dialog of its own, after the toolkit's.
void offerFolders(QFileDialog& picker, const std::vector<std::string>& folders) {
    QList<QUrl> places{QUrl(QStringLiteral("file:")), QUrl::fromLocalFile(QDir::homePath())};
    for (const std::string& folder : folders)
        if (const QUrl place = QUrl::fromLocalFile(qt(folder));
            QDir(qt(folder)).exists() && !places.contains(place))
            places << place;
    picker.setSidebarUrls(places);
}

/// The toolkit's own dialog has labels for its combos, and leaves them without names.
void nameCombos(const QFileDialog& picker) {
    for (const QString& stem : {QStringLiteral("lookIn"), QStringLiteral("fileType")}) {
        auto* label = picker.findChild<QLabel*>(stem + QStringLiteral("Label"));
        auto* combo = picker.findChild<QComboBox*>(stem + QStringLiteral("Combo"));
        if (label == nullptr || combo == nullptr) continue;
        combo->setAccessibleName(qt(captionWords(plain(label->text()))));
        label->setBuddy(combo);
    }
}

/// Between two repaints of a progress, ms.
constexpr int repaintEvery = 40;

}  // namespace

DesktopPlatform::DesktopPlatform(WindowShelf& shelf, const std::optional<Date>& today)
    : shelf_(shelf), today_(today) {}

DesktopPlatform::~DesktopPlatform() = default;

void DesktopPlatform::message(MessageIcon icon, const std::string& title, const std::string& text) {
    QMessageBox box(iconOf(icon), qt(title), qt(text), QMessageBox::Ok,
                    shelf_.mainWindow().dialogParent());
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

Answer DesktopPlatform::question(Buttons buttons, const std::string& title,
                                 const std::string& text) {
    return ask(MessageIcon::question, buttons, title, text);
}

Answer DesktopPlatform::confirm(Buttons buttons, const std::string& title,
                                const std::string& text) {
    return ask(MessageIcon::exclamation, buttons, title, text);
}

Answer DesktopPlatform::ask(MessageIcon icon, Buttons buttons, const std::string& title,
                            const std::string& text) {
    QMessageBox box(iconOf(icon), qt(title), qt(text), buttonsOf(buttons),
                    shelf_.mainWindow().dialogParent());
    box.setTextFormat(Qt::PlainText);
    return answerOf(box.exec());
}

std::optional<std::string> DesktopPlatform::chooseFile(const FileDialog& dialog) {
    QFileDialog picker(shelf_.mainWindow().dialogParent(), qt(dialog.title), qt(dialog.folder));
    widenColumns(picker);
    widenSide(picker);
    nameCombos(picker);
    offerFolders(picker, shelf_.mainWindow().usualFolders());
    picker.setAcceptMode(dialog.saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    picker.setFileMode(dialog.saving ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    picker.setOption(QFileDialog::DontConfirmOverwrite, !dialog.overwritePrompt);
    offerFilters(picker, dialog);
    if (!dialog.proposedName.empty()) picker.selectFile(qt(dialog.proposedName));
    if (picker.exec() != QDialog::Accepted || picker.selectedFiles().isEmpty()) return std::nullopt;
    return plain(picker.selectedFiles().front());
}

std::string DesktopPlatform::clipboard() { return plain(QGuiApplication::clipboard()->text()); }

void DesktopPlatform::setClipboard(const std::string& text) {
    QGuiApplication::clipboard()->setText(qt(text));
}

char DesktopPlatform::decimalMark() {
    return QLocale().decimalPoint() == QLatin1String(",") ? ',' : '.';
}

void DesktopPlatform::tell(const std::string& sentence) { shelf_.mainWindow().tell(sentence); }

void DesktopPlatform::edit(EditCommand command) { editFocusedField(command); }

void DesktopPlatform::progress(const std::string& what, std::size_t done, std::size_t total) {
    if (done >= total) {
        progress_.reset();
        started_.invalidate();
        return;
    }
    if (!started_.isValid()) started_.start();
    if (started_.elapsed() < quietTime) return;
    if (!progress_) {
        progress_ = std::make_unique<QProgressDialog>(shelf_.mainWindow().dialogParent());
        progress_->setWindowModality(Qt::ApplicationModal);
        progress_->setCancelButton(nullptr);
        progress_->setMinimumDuration(0);
        progress_->setAutoClose(false);
        progress_->setAutoReset(false);
        painted_.invalidate();
    }
    if (painted_.isValid() && painted_.elapsed() < repaintEvery) return;
    painted_.start();
    progress_->setLabelText(qt(what));
    progress_->setMaximum(static_cast<int>(total));
    progress_->setValue(static_cast<int>(done));
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void DesktopPlatform::waitingEnded() { waiting_.reset(); }

bool DesktopPlatform::waitFor(const std::string& path, std::chrono::milliseconds waited) {
    if (waited.count() < quietTime) return true;
    if (!waiting_) {
        const std::string words = shelf_.mainWindow().reading(fileNameOf(path));
        waiting_ = std::make_unique<QProgressDialog>(shelf_.mainWindow().dialogParent());
        waiting_->setWindowModality(Qt::ApplicationModal);
        waiting_->setMinimumDuration(0);
        waiting_->setRange(0, 0);
        waiting_->setLabelText(qt(words));
        waiting_->show();
    }
    QCoreApplication::processEvents();
    // A dialog that was sent away in another way than by its button waits for nothing either.
    return !waiting_->wasCanceled() && !waiting_->isHidden();
}

void DesktopPlatform::openOutside(const std::string& address) {
    if (mayOpenOutside(address)) QDesktopServices::openUrl(QUrl(qt(address)));
}

void DesktopPlatform::quit(Form&) {
    // The handler at hand ends first.
    QTimer::singleShot(0, &shelf_.mainWindow(), [this] { shelf_.mainWindow().close(); });
}

bool mayOpenOutside(const std::string& address) {
    const QString scheme = QUrl(qt(address)).scheme().toLower();
    return scheme == QLatin1String("http") || scheme == QLatin1String("https") ||
           scheme == QLatin1String("file");
}

std::vector<FileFilter> fileFilters(const std::string& filter) {
    std::vector<FileFilter> filters;
    const QStringList parts = qt(filter).split(u'|');
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2)
        filters.push_back({plain(parts[i]), plain(parts[i + 1])});
    return filters;
}

std::string nameFilter(const FileFilter& filter) {
    // The patterns stand in the caption's brackets, parted by blanks.
    QString caption = qt(filter.caption);
    if (const qsizetype bracket = caption.lastIndexOf(u'('); bracket >= 0)
        caption.truncate(bracket);
    QString patterns = qt(filter.patterns).replace(u';', u' ').simplified();
    patterns.replace(QLatin1String("*.*"), QLatin1String("*"));
    return plain(QStringLiteral("%1 (%2)").arg(caption.trimmed(), patterns));
}

std::string extensionOf(const FileFilter& filter) {
    const std::string pattern = filter.patterns.substr(0, filter.patterns.find(';'));
    const bool one = pattern.starts_with("*.") && pattern.find('*', 1) == std::string::npos;
    return one ? pattern.substr(2) : std::string();
}

}  // namespace varnholt

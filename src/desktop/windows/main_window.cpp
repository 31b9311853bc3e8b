// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/windows/main_window.h"

#include <QAccessible>
#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QStackedWidget>
#include <QStandardPaths>
#include <QStatusBar>
#include <QToolBar>
#include <QUrl>
#include <QVBoxLayout>
#include <algorithm>

#include "basis/file_system.h"
#include "desktop/binding/giving_out.h"
#include "desktop/binding/mnemonics.h"
#include "desktop/widgets/icons.h"
#include "desktop/widgets/look.h"
#include "desktop/widgets/notice_bar.h"
#include "desktop/widgets/qt_text.h"
#include "desktop/widgets/theme.h"
#include "desktop/windows/child_frame.h"
#include "desktop/windows/named_things.h"
#include "desktop/windows/start_page.h"
#include "desktop/windows/window_keys.h"
#include "desktop/windows/window_order.h"
#include "forms/text_numbers/calculators.h"
#include "forms/text_numbers/desktop.h"
#include "forms/text_numbers/feedback.h"
#include "forms/text_numbers/files.h"
#include "forms/text_numbers/screen_reader.h"
#include "frame/varnmain.h"
#include "loads/linked_design.h"
#include "loads/loads_window.h"
#include "persistence/project_commands.h"

namespace varnholt {
namespace {

bool isOurs(const QUrl& url) {
    const QString name = url.fileName().toLower();
    return url.isLocalFile() &&
           (name.endsWith(QLatin1String(".vht")) || name.endsWith(QLatin1String(".zon")));
}

/// Windows that reached down to the foot of their area do so in its new height.
void followFoot(const QMdiArea& area, int heightBefore) {
    const int more = area.height() - heightBefore;
    if (more == 0) return;
    for (QMdiSubWindow* frame : area.subWindowList()) {
        const QRect place = frame->geometry();
        if (frame->isMaximized() || frame->isMinimized() || place.bottom() + 1 != heightBefore)
            continue;
        frame->resize(place.width(), place.height() + more);
    }
}

}  // namespace

MainWindow::MainWindow(Varnmain& main, FaultTaker faults, const std::string& recentFile)
    : main_(main),
      faults_(std::move(faults)),
      recent_(recentFile),
      pages_(new QStackedWidget),
      area_(new QMdiArea),
      units_(new QLabel),
      told_(new QLabel) {
    setObjectName(QStringLiteral("Varnmain"));
    setWindowIcon(applicationIcon());
    setAcceptDrops(true);
    area_->setFrameShape(QFrame::NoFrame);
    area_->setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    start_ = new StartPage(
        main, [this](const std::string& entry) { menu_->action(entry)->trigger(); }, startFiles());
    pages_->addWidget(start_);
    pages_->addWidget(area_);
    auto* middle = new QWidget;
    auto* rows = new QVBoxLayout(middle);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(newNotice());
    rows->addWidget(pages_, 1);
    setCentralWidget(middle);

    auto* toolbar = new QToolBar(qt(main.text(Text::toolbarName)), this);
    toolbar->setObjectName(QStringLiteral("tbrMain"));
    toolbar->setMovable(false);
    toolbar->setContextMenuPolicy(Qt::PreventContextMenu);
    toolbar->setIconSize({24, 24});
    addToolBar(toolbar);
    menu_ = std::make_unique<MainMenu>(
        main, *menuBar(), *toolbar,
        [this](const std::function<void()>& command) { guarded(command); });
    menu_->onChange = [this] { refresh(); };
    addRecentMenu();
    addGivingOutEntries();
    addFinder();
    addWindowKeys(*this);
    main.fileUsed = [this](const std::string& file) { recent_.add(file); };
    addWindowMenu();
    statusBar()->setSizeGripEnabled(true);
    told_->setObjectName(QStringLiteral("toldLabel"));
    told_->setTextFormat(Qt::PlainText);
    told_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    statusBar()->addWidget(told_, 1);
    statusBar()->addPermanentWidget(units_);
    resize(usualSize().boundedTo(screen()->availableSize().shrunkBy(frameMargins())));
    refresh();
    area_->setBackground(QApplication::palette().brush(QPalette::Window));
    dress(*this);
}

MainWindow::~MainWindow() {
    main_.fileUsed = [](const std::string&) {};
}

void MainWindow::guarded(const std::function<void()>& action) {
    try {
        action();
    } catch (...) {
        if (!faults_) throw;
        faults_(std::current_exception());
    }
}

void MainWindow::showArea(bool area) {
    pages_->setCurrentWidget(area ? static_cast<QWidget*>(area_) : start_);
}

StartFiles MainWindow::startFiles() {
    return {[this] { return recent_.files(); },
            [this] { return exampleFiles(main_.MainDirectory); },
            [this](const std::string& path) { openFiles({path}); },
            [this](const std::string& path) {
                commandBegins();
                guarded([&] { openTemplate(main_, path); });
            }};
}

void MainWindow::showStartPicture(QWidget* picture) { start_->setPicture(picture); }

void MainWindow::explain(const std::string& command) {
    guarded([&] { main_.help(command); });
}

void MainWindow::tell(const std::string& sentence) {
    const QString text = qt(sentence);
    if (text == told_->text()) return;
    told_->setText(text);
    told_->setToolTip(text);
    told_->setAccessibleName(text);
    if (text.isEmpty()) return;
    // A hint of the menu that called the command would cover it.
    statusBar()->clearMessage();
    QAccessibleEvent alert(told_, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

std::string MainWindow::reading(const std::string& file) const {
    return filledIn(main_.text(Text::readingFile), {file});
}

QWidget* MainWindow::dialogParent() {
    QWidget* modal = QApplication::activeModalWidget();
    return modal != nullptr ? modal : this;
}

void MainWindow::refresh() {
    setWindowTitle(qt(main_.caption()));
    const char* units = main_.control("Metric").checked() ? "Metric" : "English";
    units_->setText(qt(main_.control(units).caption()));
    showNotice();
}

/// A bar above all windows, which goes with the next command or by its own button.
QWidget* MainWindow::newNotice() {
    notice_ = new QLabel;
    notice_->setObjectName(QStringLiteral("NoticeLabel"));
    notice_->setTextFormat(Qt::PlainText);
    notice_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* close = new QPushButton(qt(main_.text(Text::closeNotice)));
    close->setAutoDefault(false);
    // Pressed by the mouse it leaves the keyboard where one works.
    close->setFocusPolicy(Qt::TabFocus);
    connect(close, &QPushButton::clicked, this, [this] {
        main_.setNotice({});
        refresh();
    });
    auto* bar = new NoticeBar(notice_, close);
    bar->setSign(QStringLiteral("refused"));
    QSizePolicy policy = bar->sizePolicy();
    policy.setRetainSizeWhenHidden(false);
    bar->setSizePolicy(policy);
    noticeStrip_ = new QWidget;
    auto* around = new QHBoxLayout(noticeStrip_);
    around->setContentsMargins(gridStep, gridStep / 2, gridStep, gridStep / 2);
    around->addWidget(bar);
    return noticeStrip_;
}

/// What no window is there to tell.
void MainWindow::showNotice() {
    const QString text = qt(main_.control("NoticeLabel").caption());
    const int before = area_->height();
    notice_->setVisible(!text.isEmpty());
    noticeStrip_->setVisible(!text.isEmpty());
    centralWidget()->layout()->activate();
    followFoot(*area_, before);
    if (text == notice_->text()) return;
    notice_->setText(text);
    if (text.isEmpty()) return;
    QAccessibleEvent alert(notice_, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void MainWindow::commandBegins() {
    if (menu_->beforeCommand) guarded(menu_->beforeCommand);
}

void MainWindow::openFiles(const std::vector<std::string>& paths) {
    commandBegins();
    for (const std::string& path : paths) guarded([&] { openFile(main_, path); });
}

void MainWindow::closeEvent(QCloseEvent* event) {
    commandBegins();
    bool closes = false;
    guarded([&] {
        closes = main_.queryClose();
        if (closes) main_.platform().closed(main_);
    });
    event->setAccepted(closes);
}

void MainWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        area_->setBackground(QApplication::palette().brush(QPalette::Window));
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    for (const QUrl& url : event->mimeData()->urls())
        if (isOurs(url)) return event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
    std::vector<std::string> paths;
    for (const QUrl& url : event->mimeData()->urls())
        if (isOurs(url)) paths.push_back(plain(url.toLocalFile()));
    event->acceptProposedAction();
    openFiles(paths);
}

void MainWindow::addRecentMenu() {
    QMenu* file = menu_->menu("File");
    recentMenu_ = new QMenu(qt(main_.text(Text::recentFiles)), this);
    recentMenu_->setIcon(houseIcon(QStringLiteral("recent")));
    file->insertMenu(menu_->action("Split1"), recentMenu_);
    connect(recentMenu_, &QMenu::aboutToShow, this, [this] { fillRecentMenu(); });
}

void MainWindow::fillRecentMenu() {
    recentMenu_->clear();
    int place = 0;
    for (const std::string& file : recent_.files()) {
        QString shown = qt(fileNameOf(file));
        shown.replace(u'&', QStringLiteral("&&"));
        QAction* entry = recentMenu_->addAction(QStringLiteral("&%1  %2").arg(++place).arg(shown));
        entry->setStatusTip(qt(file));
        connect(entry, &QAction::triggered, this, [this, file] { openFiles({file}); });
    }
    if (place == 0) recentMenu_->addAction(qt(main_.text(Text::noRecentFiles)))->setEnabled(false);
}

/// Everything that has a name, narrowed by typing.
void MainWindow::addFinder() {
    QMenu* edit = menu_->menu("mnuEdit");
    edit->addSeparator();
    QAction* action = edit->addAction(qt(main_.text(Text::findByName)));
    action->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_K));
    action->setStatusTip(qt(main_.text(Text::findByNameHint)));
    connect(action, &QAction::triggered, this, [this] {
        commandBegins();
        findByName();
    });
}

void MainWindow::findByName() {
    std::vector<NamedThing> things;
    addMenuCommands(*menuBar(), things);
    // The window in front comes first.
    const QList<QMdiSubWindow*> frames = area_->subWindowList(QMdiArea::ActivationHistoryOrder);
    for (auto frame = frames.rbegin(); frame != frames.rend(); ++frame)
        if (auto* child = dynamic_cast<ChildFrame*>(*frame)) addControlsOf(*child, things);
    for (const ExampleFile& example : exampleFiles(main_.MainDirectory))
        things.push_back(
            {NamedThing::Kind::example, example.name, {}, {}, true, [this, path = example.path] {
                 openFiles({path});
             }});
    const auto word = [this](int number) { return qt(main_.text(number)); };
    auto* finder = new NameFinder(
        this, std::move(things),
        {word(Text::findByName), word(Text::findByNamePrompt), word(Text::emptySearch),
         word(Text::nothingOfThatName), word(Text::kindCommands), word(Text::kindFields),
         word(Text::kindExamples)});
    finder->show();
}

void MainWindow::addControlsOf(ChildFrame& frame, std::vector<NamedThing>& things) {
    const std::size_t before = things.size();
    addControls(frame.content(), things);
    for (std::size_t i = before; i < things.size(); ++i)
        things[i].run = [this, kept = QPointer(&frame), run = things[i].run] {
            if (kept == nullptr) return;
            area_->setActiveSubWindow(kept);
            guarded(run);
        };
}

std::vector<std::string> MainWindow::usualFolders() const {
    std::vector<std::string> folders{
        plain(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation))};
    const auto add = [&folders](const std::string& file) {
        std::string folder = folderOf(file);
        if (std::find(folders.begin(), folders.end(), folder) == folders.end())
            folders.push_back(std::move(folder));
    };
    for (const ExampleFile& example : exampleFiles(main_.MainDirectory)) add(example.path);
    for (const std::string& file : recent_.files()) add(file);
    return folders;
}

FormWindow* MainWindow::activeContent() const {
    auto* frame = dynamic_cast<ChildFrame*>(area_->activeSubWindow());
    return frame == nullptr || frame->content().binder().form() == nullptr ? nullptr
                                                                           : &frame->content();
}

void MainWindow::giveOut(void (*run)(const Form&, QWidget*), QWidget* (*subject)(QWidget&)) {
    if (FormWindow* content = activeContent())
        run(*content->binder().form(), subject(*content));
    else
        run(main_, nullptr);
}

/// Tables and pictures can be taken away from the menu as by the pointer.
void MainWindow::addGivingOutEntries() {
    struct Row {
        int caption, hint;
        const char* shortcut;
        void (*run)(const Form&, QWidget*);
        QWidget* (*subject)(QWidget&);
    };
    static constexpr Row rows[] = {
        {Text::copyWholeTable, Text::copyWholeTableHint, "Ctrl+Alt+C",
         [](const Form& form, QWidget* widget) { copyTable(form, widget); }, tableSubject},
        {Text::copyPicture, Text::copyPictureHint, "Ctrl+Alt+Shift+C", copyPicture, pictureSubject},
        {Text::savePicture, Text::savePictureHint, "Ctrl+Alt+Shift+S", savePicture,
         pictureSubject}};
    QMenu* edit = menu_->menu("mnuEdit");
    edit->addSeparator();
    for (const Row& row : rows) {
        QAction* action = edit->addAction(qt(main_.text(row.caption)));
        action->setShortcut(QKeySequence(QString::fromLatin1(row.shortcut)));
        action->setStatusTip(qt(main_.text(row.hint)));
        connect(action, &QAction::triggered, this, [this, row] {
            commandBegins();
            guarded([&] { giveOut(row.run, row.subject); });
        });
    }
}

void MainWindow::addWindowMenu() {
    QMenu* menu = menu_->menu("Window");
    struct Row {
        int caption, hint;
        const char* shortcut;
        std::function<void()> run;
    };
    const Row rows[] = {{Text::tileWindows, Text::tileWindowsHint, "Ctrl+Shift+T",
                         [this] { area_->tileSubWindows(); }},
                        {Text::cascadeWindows, Text::cascadeWindowsHint, "Ctrl+Shift+C",
                         [this] { cascade(*area_); }},
                        {Text::loadsBesideDesign, Text::loadsBesideDesignHint, "Ctrl+Shift+D",
                         [this] { setLoadsBesideDesign(); }},
                        {Text::nextWindow, Text::nextWindowHint, "Ctrl+Tab",
                         [this] { area_->activateNextSubWindow(); }},
                        {Text::closeWindow, Text::closeWindowHint, "Ctrl+W; Ctrl+F4",
                         [this] { area_->closeActiveSubWindow(); }}};
    std::vector<std::string> captions;
    for (const Row& row : rows) captions.push_back(main_.text(row.caption));
    const std::vector<QString> marked = withMnemonics(captions);
    std::size_t place = 0;
    for (const Row& row : rows) {
        QAction* action = menu->addAction(marked[place++]);
        action->setShortcuts(QKeySequence::listFromString(QString::fromLatin1(row.shortcut)));
        action->setStatusTip(qt(main_.text(row.hint)));
        connect(action, &QAction::triggered, area_, [run = row.run] { run(); });
    }
    menu->addSeparator();
    connect(menu, &QMenu::aboutToShow, this, [this] { fillWindowMenu(); });
}

/// The pair of the window in front; of several designs that share the loads the one that they are
/// named after.
void MainWindow::setLoadsBesideDesign() {
    const auto* design = dynamic_cast<const LinkedDesign*>(main_.activeWindow());
    const auto* loads = dynamic_cast<const LoadsWindow*>(main_.activeWindow());
    if (design != nullptr) loads = design->LoadsHome();
    if (design == nullptr && loads != nullptr && loads->links().named() != nullptr)
        design = &loads->links().named()->design();
    if (design == nullptr || loads == nullptr || !frameOf)
        return statusBar()->showMessage(qt(main_.text(Text::noLinkedPair)));
    setSideBySide(*area_, *frameOf(*loads), *frameOf(*design));
}

void MainWindow::fillWindowMenu() {
    QMenu* menu = menu_->menu("Window");
    for (QAction* entry : windowEntries_) delete entry;
    windowEntries_.clear();
    int place = 0;
    for (ChildWindow* window : main_.windows()) {
        QString caption = qt(window->caption());
        caption.replace(u'&', QStringLiteral("&&"));
        QAction* entry = menu->addAction(QStringLiteral("&%1  %2").arg(++place).arg(caption));
        entry->setCheckable(true);
        entry->setChecked(window == main_.activeWindow());
        connect(entry, &QAction::triggered, this,
                [this, window] { guarded([&] { main_.activate(*window); }); });
        windowEntries_.push_back(entry);
    }
    if (place > 0) return;
    windowEntries_.push_back(menu->addAction(qt(main_.text(Text::noWindows))));
    windowEntries_.back()->setEnabled(false);
}

}  // namespace varnholt

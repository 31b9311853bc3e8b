// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/windows/report_preview.h"

#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QToolBar>
#include <QVBoxLayout>

#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "desktop/binding/button_keys.h"
#include "desktop/binding/form_window.h"
#include "desktop/paper/pdf_file.h"
#include "desktop/paper/print_module.h"
#include "desktop/widgets/house_widgets.h"
#include "desktop/widgets/icons.h"
#include "desktop/widgets/look.h"
#include "desktop/widgets/qt_text.h"
#include "desktop/widgets/tool_keys.h"
#include "forms/text_numbers/feedback.h"
#include "forms/text_numbers/reports.h"
#include "forms/text_numbers/screen_reader.h"
#include "reports/report_shelf.h"

namespace varnholt {
namespace {

/// A name for the report's file: its title without what a file's name cannot hold.
std::string fileNameFor(const Report& report, const std::string& extension) {
    QString name = qt(report.caption).trimmed();
    if (!report.projectName.empty())
        name = qt(report.projectName).left(60).simplified() + QStringLiteral(" - ") + name;
    for (const QChar forbidden : QStringLiteral("/\\:*?\"<>|")) name.replace(forbidden, u'-');
    return plain(name) + extension;
}

}  // namespace

ReportPreview::ReportPreview(std::shared_ptr<const Report> report, const PageSetup& setup,
                             const Texts& texts, PreviewServices services)
    : report_(std::move(report)),
      setup_(setup),
      texts_(texts),
      services_(std::move(services)),
      fileBar_(new QToolBar),
      pageBar_(new QToolBar),
      view_(new ReportView(texts)) {
    setObjectName(qt(report_->object));
    setWindowTitle(qt(report_->caption).trimmed());
    setWindowIcon(houseIcon(QStringLiteral("print")));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(fileBar_);
    layout->addWidget(pageBar_);
    layout->addWidget(view_);
    addTools();
    view_->setAccessibleName(windowTitle());
    view_->onChange = [this] { showState(); };
    setFocusProxy(view_);
    setSetup(setup_);
}

/// F1 asks about the preview before it is the menu's key, as in the forms' windows. There is
/// nothing in it that What's This, with Shift, would tell of.
bool ReportPreview::event(QEvent* event) {
    const bool isKey =
        event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress;
    const auto* key = isKey ? static_cast<const QKeyEvent*>(event) : nullptr;
    if (!isKey || !isHelpKey(*key) || (key->modifiers() & Qt::ShiftModifier) != 0)
        return QWidget::event(event);
    if (event->type() == QEvent::ShortcutOverride)
        QMetaObject::invokeMethod(
            this, [this] { services_.help(); }, Qt::QueuedConnection);
    event->accept();
    return true;
}

void ReportPreview::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    giveKeys(*this);
}

QString ReportPreview::words(int text) const { return qt(texts_.text(text)); }

QAction* ReportPreview::tool(QToolBar* bar, const char* name, int text, const char* keys,
                             void (ReportPreview::*run)()) {
    QAction* action = bar->addAction(words(text));
    action->setObjectName(QString::fromLatin1(name));
    if (*keys != '\0') {
        action->setShortcut(QKeySequence(QString::fromLatin1(keys)));
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        action->setToolTip(
            QStringLiteral("%1  (%2)")
                .arg(words(text), action->shortcut().toString(QKeySequence::NativeText)));
    }
    addAction(action);
    workByKeyboard(*bar, action);
    connect(action, &QAction::triggered, this, run);
    return action;
}

/// What is done with the report, and below it how it is shown: in one row they would not all be in
/// sight.
void ReportPreview::addTools() {
    fileBar_->setToolButtonStyle(Qt::ToolButtonTextOnly);
    pageBar_->setToolButtonStyle(Qt::ToolButtonTextOnly);
    tool(fileBar_, "print", Text::previewPrint, "", &ReportPreview::print);
    tool(fileBar_, "savePdf", Text::previewSavePdf, "", &ReportPreview::savePdf);
    tool(fileBar_, "saveHtml", Text::previewSaveHtml, "", &ReportPreview::saveHtml);
    tool(fileBar_, "saveCsv", Text::previewSaveCsv, "", &ReportPreview::saveCsv);
    tool(fileBar_, "copy", Text::previewCopy, "", &ReportPreview::copy);
    fileBar_->addSeparator();
    addSearch();
    addPageTools();
    pageBar_->addSeparator();
    addPaperTools();
}

void ReportPreview::addPageTools() {
    tool(pageBar_, "previous", Text::previewPreviousPage, "Alt+Up", &ReportPreview::previousPage)
        ->setText(QStringLiteral("\u2039"));
    page_ = new QSpinBox;
    page_->setAccessibleName(words(Text::previewPage));
    page_->setKeyboardTracking(false);
    page_->setButtonSymbols(QAbstractSpinBox::NoButtons);
    pages_ = new QLabel;
    pageBar_->addWidget(page_);
    pageBar_->addWidget(pages_);
    tool(pageBar_, "next", Text::previewNextPage, "Alt+Down", &ReportPreview::nextPage)
        ->setText(QStringLiteral("\u203A"));
    connect(page_, &QSpinBox::valueChanged, this,
            [this](int page) { view_->goTo(static_cast<std::size_t>(page - 1)); });
    pageBar_->addSeparator();
    tool(pageBar_, "smaller", Text::previewSmaller, "Ctrl+-", &ReportPreview::smaller)
        ->setText(QStringLiteral("\u2212"));
    zoom_ = new QComboBox;
    zoom_->addItems({words(Text::previewFitWidth), words(Text::previewFitPage)});
    for (const int percent : {50, 75, 100, 125, 150, 200, 300})
        zoom_->addItem(QStringLiteral("%1 %").arg(percent), percent);
    zoom_->setEditable(true);
    pageBar_->addWidget(zoom_);
    labelUnseen(*zoom_, words(Text::previewZoom));
    tool(pageBar_, "larger", Text::previewLarger, "Ctrl++", &ReportPreview::larger)
        ->setText(QStringLiteral("+"));
    connect(zoom_, &QComboBox::textActivated, this, [this](const QString& text) {
        if (text == zoom_->itemText(0)) return fitWidth();
        if (text == zoom_->itemText(1)) return fitPage();
        const double percent = QString(text).remove(u'%').trimmed().toDouble();
        if (percent > 0) view_->setZoom(percent / 100);
    });
}

void ReportPreview::addPaperTools() {
    continuous_ =
        tool(pageBar_, "continuous", Text::previewContinuous, "", &ReportPreview::toggleContinuous);
    continuous_->setCheckable(true);
    continuous_->setChecked(true);
    paper_ = new QComboBox;
    paper_->addItem(words(Text::paperA4), static_cast<int>(QPageSize::A4));
    paper_->addItem(words(Text::paperLetter), static_cast<int>(QPageSize::Letter));
    paper_->setObjectName(QStringLiteral("paper"));
    pageBar_->addWidget(paper_);
    labelUnseen(*paper_, words(Text::previewPaper));
    connect(paper_, &QComboBox::activated, this, [this] {
        PageSetup other = setup_;
        other.size = QPageSize(static_cast<QPageSize::PageSizeId>(paper_->currentData().toInt()));
        setSetup(other);
    });
    landscape_ =
        tool(pageBar_, "landscape", Text::previewLandscape, "", &ReportPreview::toggleLandscape);
    landscape_->setCheckable(true);
}

void ReportPreview::addSearch() {
    search_ = new QLineEdit;
    makeSearch(*search_, words(Text::previewSearch), words(Text::emptySearch));
    search_->setMaximumWidth(180);
    search_->setObjectName(QStringLiteral("search"));
    fileBar_->addWidget(search_);
    connect(search_, &QLineEdit::returnPressed, this, &ReportPreview::search);
    auto* find = new QAction(this);
    find->setShortcut(QKeySequence(QKeySequence::Find));
    find->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    addAction(find);
    connect(find, &QAction::triggered, search_, qOverload<>(&QWidget::setFocus));
}

void ReportPreview::setSetup(const PageSetup& setup) {
    auto pages =
        std::make_shared<const PageLayout>(report_, setup.layoutFor(*report_), services_.layingOut);
    // Half a report must not be printed or saved for the whole.
    if (pages->isComplete() || view_->pages() == nullptr) {
        setup_ = setup;
        view_->setPages(std::move(pages));
    }
    showState();
}

void ReportPreview::showState() {
    const int count = static_cast<int>(view_->pageCount());
    const QSignalBlocker quietPage(page_), quietZoom(zoom_);
    page_->setRange(1, std::max(1, count));
    page_->setValue(static_cast<int>(view_->page()) + 1);
    pages_->setText(QStringLiteral(" ") + words(Text::previewOfPages).arg(count));
    // Paper that was chosen in the set-up may be none of the list.
    paper_->setPlaceholderText(setup_.size.name());
    paper_->setCurrentIndex(paper_->findData(static_cast<int>(setup_.size.id())));
    landscape_->setChecked(setup_.layoutFor(*report_).orientation() == QPageLayout::Landscape);
    if (view_->fit() == ReportView::Fit::none)
        zoom_->setEditText(QStringLiteral("%1 %").arg(qRound(100 * view_->zoom())));
    else
        zoom_->setCurrentIndex(view_->fit() == ReportView::Fit::width ? 0 : 1);
    // An action whose mark has changed writes its words anew.
    if (isVisible()) giveKeys(*this);
}

void ReportPreview::print() {
    PrintModule* module = findPrintModule();
    if (module == nullptr) return services_.tell(texts_.text(Text::printPartMissing));
    if (!module->hasPrinter()) return services_.tell(texts_.text(Text::noPrinter));
    std::unique_ptr<PageLayout> pages;
    PrintJob job{windowTitle(), setup_.layoutFor(*report_), {}, {}};
    job.layOut = [&](const QPageLayout& paper) {
        pages = std::make_unique<PageLayout>(report_, paper, services_.layingOut);
        return pages->isComplete() ? static_cast<int>(pages->pages().size()) : 0;
    };
    job.paint = [&](QPainter& painter, int page) {
        PagePainter(*pages, texts_).paint(painter, static_cast<std::size_t>(page));
    };
    module->print(this, job);
}

void ReportPreview::save(const std::string& extension) {
    const int filter = extension == ".pdf"    ? Text::pdfFileFilter
                       : extension == ".html" ? Text::htmlFileFilter
                                              : Text::csvFileFilter;
    std::string path = services_.chooseFile(fileNameFor(*report_, extension), filter);
    if (path.empty()) return;
    if (!path.ends_with(extension)) path += extension;
    saveAs(path);
}

void ReportPreview::saveAs(const std::string& path) {
    bool brokenOff = false;
    const auto writePdf = [&](const Report&, const std::string& file) {
        const std::string bytes =
            pdfOf(*view_->pages(), setup_.layoutFor(*report_), texts_, services_.writing);
        brokenOff = bytes.empty();
        if (!brokenOff) replaceWholeFile(file, bytes);
    };
    try {
        saveReport(*report_, path, writePdf);
        if (!brokenOff) note(Text::savedAs, path);
    } catch (const RunTimeError& error) {
        services_.tell(filledIn(texts_.text(Text::reportNotSaved), {path, error.what()}));
    }
}

/// The page in front as text, columns apart by tabulators.
void ReportPreview::copy() {
    const QString words = wordsOf(*view_->pages(), view_->page());
    QGuiApplication::clipboard()->setText(words);
    note(Text::tableCopied, std::to_string(words.count(u'\n')));
}

void ReportPreview::note(int text, const std::string& what) {
    if (services_.note) services_.note(filledIn(texts_.text(text), {what}));
}

void ReportPreview::previousPage() {
    if (view_->page() > 0) view_->goTo(view_->page() - 1);
}

void ReportPreview::nextPage() { view_->goTo(view_->page() + 1); }

void ReportPreview::search() {
    const bool found = view_->find(search_->text()) || search_->text().isEmpty();
    QPalette colours = search_->palette();
    colours.setColor(QPalette::Text,
                     found ? palette().color(QPalette::Text) : lookOf(palette()).alarm);
    search_->setPalette(colours);
}

void ReportPreview::toggleContinuous() { view_->setContinuous(continuous_->isChecked()); }

void ReportPreview::toggleLandscape() {
    PageSetup other = setup_;
    other.orientation = landscape_->isChecked() ? QPageLayout::Landscape : QPageLayout::Portrait;
    setSetup(other);
}

}  // namespace varnholt

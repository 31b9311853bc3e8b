// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/help/help_viewer.h"

#include <QHelpContentWidget>
#include <QHelpIndexWidget>
#include <QHelpLink>
#include <QHelpSearchEngine>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPrintDialog>
#include <QPrinter>
#include <QShortcut>
#include <QSplitter>
#include <QTabWidget>
#include <QTextBrowser>
#include <QTextDocument>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "desktop/reading/help_folder.h"
#include "forms/text_numbers/browser.h"
#include "forms/text_numbers/help.h"
#include "forms/text_numbers/screen_reader.h"

namespace varnholt {
namespace {

enum Pane { contentsPane, indexPaneNumber, searchPaneNumber };

/// The topic of "…/vht.qch::/borehole.html#soil".
QString topicOf(const HelpRequest& request) {
    const QString address = QString::fromStdString(request.topic);
    const qsizetype mark = address.indexOf(QLatin1String("::/"));
    return mark < 0 ? QStringLiteral("index.html") : address.mid(mark + 3);
}

/// The row of the address: of a section that is named after its first page, the page's own.
QModelIndex contentsRowOf(const QHelpContentModel& contents, const QUrl& address,
                          const QModelIndex& parent = {}) {
    QModelIndex found;
    for (int i = 0; i < contents.rowCount(parent); ++i) {
        const QModelIndex row = contents.index(i, 0, parent);
        if (contents.contentItemAt(row)->url() == address) found = row;
        const QModelIndex below = contentsRowOf(contents, address, row);
        if (below.isValid()) found = below;
    }
    return found;
}

}  // namespace

HelpViewer::HelpViewer(HelpPlaces places)
    : places_(std::move(places)),
      collection_(QString::fromStdString(places_.cacheFolder)),
      display_(places_.newDisplay(this)),
      panes_(new QTabWidget) {
    setObjectName(QStringLiteral("HelpWindow"));
    setWindowTitle(text(Text::helpTitle));
    setWindowIcon(places_.icon(QStringLiteral("help")));
    auto* tools = addToolBar(text(Text::helpTitle));
    tools->setMovable(false);
    tools->setContextMenuPolicy(Qt::PreventContextMenu);
    tools->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    back_ = addTool(Text::browserBack, "back", QKeySequence::Back, &HelpViewer::back);
    forward_ =
        addTool(Text::browserForward, "forward", QKeySequence::Forward, &HelpViewer::forward);
    addTool(Text::browserHome, "home", QKeySequence(QStringLiteral("Alt+Home")), &HelpViewer::home);
    addTool(Text::helpPrint, "print", QKeySequence::Print, &HelpViewer::print);
    auto* split = new QSplitter;
    split->addWidget(panes_);
    split->addWidget(display_->widget());
    split->setStretchFactor(1, 1);
    split->setSizes({290, 680});
    split->setChildrenCollapsible(false);
    setCentralWidget(split);
    resize(970, 680);
    for (const char* keys : {"Esc", "Ctrl+W", "Ctrl+F4"})
        connect(new QShortcut(QKeySequence(QString::fromLatin1(keys)), this), &QShortcut::activated,
                this, [this] { close(); });
    display_->onLink = [this](const QUrl& link) { follow(link); };
    display_->picture = [this](const QUrl& address) -> QVariant {
        return collection_.engine() != nullptr ? collection_.engine()->fileData(address)
                                               : QByteArray();
    };
}

QString HelpViewer::text(int number) const {
    return QString::fromStdString(places_.texts->text(number));
}

QAction* HelpViewer::addTool(int caption, const char* icon, const QKeySequence& keys,
                             void (HelpViewer::*run)()) {
    auto* action = new QAction(text(caption), this);
    if (*icon != '\0') action->setIcon(places_.icon(QString::fromLatin1(icon)));
    action->setShortcut(keys);
    action->setToolTip(action->text() +
                       QStringLiteral("  (%1)").arg(keys.toString(QKeySequence::NativeText)));
    connect(action, &QAction::triggered, this, [this, run] { (this->*run)(); });
    findChild<QToolBar*>()->addAction(action);
    return action;
}

bool HelpViewer::openFile(const QString& file) {
    const QHelpEngine* before = collection_.engine();
    if (!collection_.open(file)) return false;
    if (collection_.engine() != before) addPanes();
    return true;
}

void HelpViewer::addPanes() {
    panes_->clear();
    auto* contents = collection_.engine()->contentWidget();
    contents_ = contents;
    contents->setHeaderHidden(true);
    connect(contents, &QHelpContentWidget::linkActivated, this, &HelpViewer::follow);
    connect(contents, &QHelpContentWidget::clicked, this, [this, contents](const QModelIndex& row) {
        const auto* model = static_cast<QHelpContentModel*>(contents->model());
        follow(model->contentItemAt(row)->url());
    });
    connect(collection_.engine()->contentModel(), &QHelpContentModel::contentsCreated, contents,
            [this, contents] {
                contents->expandAll();
                showInContents();
            });
    contents->setAccessibleName(text(Text::helpContentsPane));
    panes_->addTab(contents, text(Text::helpContentsPane));
    panes_->addTab(indexPane(), text(Text::helpIndexPane));
    panes_->addTab(searchPane(), text(Text::helpSearchPane));
}

/// The prompt stands in the line while it is empty, and a button empties it.
void HelpViewer::makeSearch(QLineEdit& line, const QString& prompt) const {
    line.setPlaceholderText(prompt);
    line.setAccessibleName(prompt);
    line.setClearButtonEnabled(true);
    if (auto* button = line.findChild<QToolButton*>())
        button->setAccessibleName(text(Text::emptySearch));
}

QWidget* HelpViewer::indexPane() {
    auto* pane = new QWidget;
    auto* layout = new QVBoxLayout(pane);
    lookFor_ = new QLineEdit;
    makeSearch(*lookFor_, text(Text::helpLookFor));
    index_ = collection_.engine()->indexWidget();
    index_->setAccessibleName(text(Text::helpIndexPane));
    layout->addWidget(lookFor_);
    layout->addWidget(index_, 1);
    connect(lookFor_, &QLineEdit::textChanged, index_,
            [this](const QString& words) { index_->filterIndices(words); });
    connect(lookFor_, &QLineEdit::returnPressed, index_, &QHelpIndexWidget::activateCurrentItem);
    connect(index_, &QHelpIndexWidget::documentActivated, this,
            [this](const QHelpLink& link, const QString&) { follow(link.url); });
    connect(index_, &QHelpIndexWidget::documentsActivated, this,
            [this](const QList<QHelpLink>& links, const QString&) {
                if (!links.isEmpty()) follow(links.first().url);
            });
    connect(index_, &QHelpIndexWidget::clicked, this,
            [this](const QModelIndex&) { index_->activateCurrentItem(); });
    return pane;
}

QWidget* HelpViewer::searchPane() {
    auto* pane = new QWidget;
    auto* layout = new QVBoxLayout(pane);
    words_ = new QLineEdit;
    makeSearch(*words_, text(Text::helpFind));
    results_ = new QListWidget;
    results_->setAccessibleName(text(Text::helpResults));
    told_ = new QLabel;
    told_->setWordWrap(true);
    layout->addWidget(words_);
    layout->addWidget(told_);
    layout->addWidget(results_, 1);
    connect(words_, &QLineEdit::returnPressed, this, [this] { search(); });
    const auto open = [this](QListWidgetItem* item) { follow(item->data(Qt::UserRole).toUrl()); };
    connect(results_, &QListWidget::itemActivated, this, open);
    connect(results_, &QListWidget::itemClicked, this, open);
    return pane;
}

/// The pages are read for the search when it is first used: that takes longer than a page.
void HelpViewer::search() {
    QHelpSearchEngine* engine = collection_.engine()->searchEngine();
    const QString words = words_->text();
    if (searchable_) {
        engine->search(words);
        return;
    }
    searchable_ = true;
    told_->setText(text(Text::helpIndexing));
    connect(engine, &QHelpSearchEngine::indexingFinished, this,
            [engine, this] { engine->search(words_->text()); });
    connect(engine, &QHelpSearchEngine::searchingFinished, this,
            [this](int) { showResults(words_->text()); });
    engine->reindexDocumentation();
}

void HelpViewer::showResults(const QString&) {
    const QHelpSearchEngine* engine = collection_.engine()->searchEngine();
    results_->clear();
    for (const QHelpSearchResult& result : engine->searchResults(0, engine->searchResultCount())) {
        auto* item = new QListWidgetItem(result.title(), results_);
        item->setData(Qt::UserRole, result.url());
    }
    told_->setText(results_->count() == 0 ? text(Text::helpNothingFound) : QString());
    told_->setVisible(results_->count() == 0);
}

bool HelpViewer::display(const HelpRequest& request) {
    if (!openFile(QString::fromStdString(request.file))) return false;
    switch (request.kind) {
        case HelpRequest::Kind::contents:
            choose(contentsPane, contents_);
            break;
        case HelpRequest::Kind::index:
            choose(indexPaneNumber, lookFor_);
            break;
        case HelpRequest::Kind::search:
            choose(searchPaneNumber, words_);
            break;
        case HelpRequest::Kind::keyword:
        case HelpRequest::Kind::aLink:
            lookUp(QString::fromStdString(request.keyword));
            return true;
        case HelpRequest::Kind::topicId:
            lookUp(QString::number(request.topicId));
            return true;
        case HelpRequest::Kind::topic:
            display_->widget()->setFocus();
            break;
    }
    visit(topicOf(request));
    return true;
}

void HelpViewer::choose(int pane, QWidget* first) {
    panes_->setCurrentIndex(pane);
    first->setFocus();
}

/// Shows the page of a keyword; where there are several the index shows them all.
void HelpViewer::lookUp(const QString& keyword) {
    const QList<QHelpLink> links = collection_.engine()->documentsForKeyword(keyword);
    if (links.size() != 1)
        choose(indexPaneNumber, lookFor_);
    else
        display_->widget()->setFocus();
    lookFor_->setText(keyword);
    if (!links.isEmpty()) follow(links.first().url);
}

std::string HelpViewer::page() const {
    return place_ < 0 ? std::string() : history_[place_].toStdString();
}

void HelpViewer::visit(const QString& topic) {
    if (!showTopic(topic)) return;
    if (place_ < 0 || history_[place_] != topic) {
        history_.resize(++place_);
        history_.append(topic);
    }
    refreshTools();
}

bool HelpViewer::showTopic(const QString& topic) {
    const QUrl url = collection_.urlOf(topic);
    const QByteArray page = collection_.engine()->fileData(url);
    QString html = QString::fromUtf8(page);
    if (page.isEmpty())
        html = QStringLiteral("<p>%1</p>").arg(text(Text::helpPageMissing).toHtmlEscaped());
    display_->showPage(url, html);
    return true;
}

void HelpViewer::follow(const QUrl& link) {
    if (link.scheme() == exampleScheme) {
        if (places_.openExample) places_.openExample(link.path().toStdString());
        return;
    }
    if (link.scheme() == QLatin1String("qthelp")) visit(HelpCollection::topicOf(link));
}

void HelpViewer::step(int by) {
    const qsizetype wanted = place_ + by;
    if (wanted < 0 || wanted >= history_.size()) return;
    place_ = wanted;
    showTopic(history_[place_]);
    refreshTools();
}

void HelpViewer::refreshTools() {
    back_->setEnabled(place_ > 0);
    forward_->setEnabled(place_ + 1 < history_.size());
    showInContents();
}

/// Marks the page on show in the contents, once those have been read.
void HelpViewer::showInContents() {
    if (contents_ == nullptr || place_ < 0) return;
    const auto& contents = *static_cast<const QHelpContentModel*>(contents_->model());
    QUrl address = collection_.urlOf(history_[place_]);
    QModelIndex row = contentsRowOf(contents, address);
    address.setFragment({});
    if (!row.isValid()) row = contentsRowOf(contents, address);
    if (row.isValid()) contents_->setCurrentIndex(row);
}

void HelpViewer::print() {
    QPrinter printer;
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() != QDialog::Accepted) return;
    display_->printable()->print(&printer);
}

}  // namespace varnholt

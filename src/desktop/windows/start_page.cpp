// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/windows/start_page.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QResizeEvent>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>
#include <functional>
#include <memory>
#include <span>
#include <utility>

#include "basis/file_system.h"
#include "desktop/widgets/icons.h"
#include "desktop/widgets/look.h"
#include "desktop/widgets/qt_text.h"
#include "desktop/widgets/text_label.h"
#include "desktop/windows/project_miniature.h"
#include "forms/text_numbers/desktop.h"
#include "forms/text_numbers/feedback.h"
#include "frame/varnmain.h"

namespace varnholt {
namespace {

/// A picture at the left of a button.
struct StartPicture {
    QSize size;
    std::function<void(QPainter& painter, const QRect& place, const QWidget& button)> paint;
};

constexpr QSize iconRoom{28, 28};
constexpr QSize miniatureRoom{64, 40};

StartPicture iconPicture(const char* name) {
    return {iconRoom, [icon = houseIcon(QString::fromLatin1(name))](
                          QPainter& painter, const QRect& place, const QWidget&) {
                icon.paint(&painter, place);
            }};
}

/// What the project holds, drawn from its file; the icon of its kind where that cannot be read.
StartPicture projectPicture(const std::string& path, const char* icon) {
    return {miniatureRoom, [miniature = std::make_shared<ProjectMiniature>(path),
                            kind = houseIcon(QString::fromLatin1(icon))](
                               QPainter& painter, const QRect& place, const QWidget& button) {
                if (!miniature->paint(painter, place, button)) kind.paint(&painter, place);
            }};
}

/// A button as wide as the page's card: a picture, the command, and below it what it is for.
class StartButton : public QPushButton {
 public:
    StartButton(StartPicture picture, QString command, QString hint)
        : picture_(std::move(picture)), command_(std::move(command)), hint_(std::move(hint)) {
        setAccessibleName(command_);
        setAccessibleDescription(hint_);
        setCursor(Qt::PointingHandCursor);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        setAttribute(Qt::WA_Hover);
    }

    /// Of a long folder the beginning and the end are shown.
    void shortenHint() {
        shortens_ = true;
        setToolTip(hint_);
    }

    QSize sizeHint() const override {
        constexpr int shortWidth = 30 * gridStep;
        const int hint = fontMetrics().horizontalAdvance(hint_);
        const int text = std::max(heavy().horizontalAdvance(command_),
                                  shortens_ ? std::min(hint, shortWidth) : hint);
        const int lines = 2 * fontMetrics().height() + gridStep / 2;
        return {text + picture_.size.width() + 5 * gridStep,
                std::max(lines + 2 * gridStep, picture_.size.height() + gridStep)};
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const Look& look = lookOf(palette());
        const bool lit = underMouse() || hasFocus();
        painter.setPen(lit ? look.accent : look.hairline);
        painter.setBrush(isDown() ? look.hairline : look.field);
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 6, 6);
        const QRect place(QPoint(3 * gridStep / 2, (height() - picture_.size.height()) / 2),
                          picture_.size);
        picture_.paint(painter, visual(place), *this);
        const int left = place.right() + 2 * gridStep;
        const int line = fontMetrics().height();
        const int top = (height() - 2 * line - 4) / 2;
        const QRect words(left, top, width() - left - gridStep / 2, line);
        QFont font = this->font();
        font.setWeight(QFont::DemiBold);
        painter.setFont(font);
        painter.setPen(look.ink);
        painter.drawText(visual(words), alignment(), command_);
        painter.setFont(this->font());
        painter.setPen(look.muted);
        painter.drawText(visual(words.translated(0, line + 4)), alignment(),
                         fontMetrics().elidedText(hint_, Qt::ElideMiddle, words.width()));
    }

 private:
    QRect visual(const QRect& place) const {
        return QStyle::visualRect(layoutDirection(), rect(), place);
    }
    int alignment() const {
        return QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignVCenter;
    }
    QFontMetrics heavy() const {
        QFont font = this->font();
        font.setWeight(QFont::DemiBold);
        return QFontMetrics(font);
    }

    StartPicture picture_;
    QString command_, hint_;
    bool shortens_ = false;
};

TextLabel* titleOf(const QString& text, double size) {
    auto* title = new TextLabel(text);
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * size);
    font.setWeight(QFont::DemiBold);
    title->setFont(font);
    return title;
}

/// A project of the program's folder that the page tells something of.
struct KnownExample {
    const char* name;
    const char* icon;
    int caption;  ///< 0 for the file's own name
    int hint;
};

constexpr KnownExample templates[] = {
    {"office", "new-borehole", Text::templateOffice, Text::exampleOffice},
    {"school-north", "new-borehole", Text::templateSchool, Text::exampleSchool},
    {"house", "new-horizontal", Text::templateHouse, Text::exampleHouse}};
constexpr KnownExample knownExamples[] = {
    {"office", "new-borehole", 0, Text::exampleOffice},
    {"school-north", "new-borehole", 0, Text::exampleSchool},
    {"school-south", "new-borehole", 0, Text::exampleSouth},
    {"house", "new-horizontal", 0, Text::exampleHouse},
    {"trench-office", "new-horizontal", 0, Text::exampleTrench},
    {"school-pond", "new-surface-water", 0, Text::examplePond}};

}  // namespace

StartPage::StartPage(const Varnmain& main, std::function<void(const std::string&)> run,
                     StartFiles files)
    : main_(main), run_(std::move(run)), files_(std::move(files)), fileCard_(new QWidget) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    auto* whole = new QWidget;
    across_ = new QBoxLayout(QBoxLayout::LeftToRight, whole);
    across_->setSpacing(4 * gridStep);
    auto* card = new QWidget;
    card_ = new QVBoxLayout(card);
    card_->setSpacing(gridStep);
    card_->addWidget(titleOf(qt(main.text(Text::startPageTitle)), 1.3));
    card_->addWidget(line(main, "NewBorehole", "new-borehole", Text::startPageBorehole));
    card_->addWidget(line(main, "NewHorizontal", "new-horizontal", Text::startPageHorizontal));
    card_->addWidget(
        line(main, "NewSurfaceWater", "new-surface-water", Text::startPageSurfaceWater));
    card_->addWidget(line(main, "mnuZoneManage", "zones", Text::startPageZones));
    card_->addWidget(line(main, "mnuFileOpen", "open", Text::startPageOpen));
    auto* drop = new TextLabel(qt(main.text(Text::startPageDrop)));
    drop->setMuted();
    card_->addWidget(drop);
    fileLines_ = new QVBoxLayout(fileCard_);
    fileLines_->setSpacing(gridStep / 2);
    across_->addStretch(1);
    across_->addWidget(card, 0, Qt::AlignCenter);
    across_->addWidget(fileCard_, 0, Qt::AlignCenter);
    across_->addStretch(1);
    setWidget(whole);
}

/// Buttons below a head, in as many columns as find room beside the commands.
void StartPage::addSection(int head, const std::vector<QWidget*>& buttons) {
    if (buttons.empty()) return;
    fileLines_->addWidget(titleOf(qt(main_.text(head)), 1));
    auto* section = new QWidget;
    auto* grid = new QGridLayout(section);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(gridStep);
    grid->setVerticalSpacing(gridStep / 2);
    const int columns = std::max(columns_, 1);
    for (int column = 0; column < columns; ++column) grid->setColumnStretch(column, 1);
    int place = 0;
    for (QWidget* button : buttons) {
        grid->addWidget(button, place / columns, place % columns);
        ++place;
    }
    fileLines_->addWidget(section);
}

QWidget* StartPage::fileButton(QPushButton* button, const std::function<void()>& open) {
    // The page goes with the first window that opens: not from under the button's own hands.
    connect(button, &QPushButton::clicked, this, open, Qt::QueuedConnection);
    return button;
}

std::vector<QWidget*> StartPage::recentButtons() {
    constexpr std::size_t mostRecent = 4;
    std::vector<std::string> recent = files_.recent();
    if (recent.size() > mostRecent) recent.resize(mostRecent);
    std::vector<QWidget*> buttons;
    for (const std::string& path : recent) {
        auto* button =
            new StartButton(iconPicture("recent"), qt(fileNameOf(path)), qt(folderOf(path)));
        button->shortenHint();
        buttons.push_back(fileButton(button, [this, path] { files_.open(path); }));
    }
    return buttons;
}

/// The files are those of the moment.
void StartPage::fillFiles() {
    while (QLayoutItem* item = fileLines_->takeAt(0)) {
        if (QWidget* old = item->widget()) {
            old->hide();
            old->deleteLater();
        }
        delete item;
    }
    const std::vector<QWidget*> recent = recentButtons();
    const std::vector<ExampleFile> examples = files_.examples();
    const auto buttonsOf = [&](std::span<const KnownExample> known,
                               const std::function<void(const std::string&)>& open) {
        std::vector<QWidget*> buttons;
        for (const KnownExample& one : known)
            for (const ExampleFile& file : examples)
                if (file.name == QLatin1String(one.name))
                    buttons.push_back(fileButton(
                        new StartButton(projectPicture(file.path, one.icon),
                                        one.caption == 0 ? file.name : qt(main_.text(one.caption)),
                                        qt(main_.text(one.hint))),
                        [open, path = file.path] { open(path); }));
        return buttons;
    };
    const std::vector<QWidget*> begun = buttonsOf(templates, files_.openAsTemplate);
    const std::vector<QWidget*> shown = buttonsOf(knownExamples, files_.open);
    widestFile_ = 0;
    for (const auto* section : {&recent, &begun, &shown})
        for (const QWidget* button : *section)
            widestFile_ = std::max(widestFile_, button->sizeHint().width());
    columns_ = columnsIn(viewport()->width());
    addSection(Text::startPageRecent, recent);
    addSection(Text::startPageTemplates, begun);
    addSection(Text::startPageExamples, shown);
    fileCard_->setVisible(fileLines_->count() > 0);
    across_->setDirection(columns_ > 0 ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
}

void StartPage::showEvent(QShowEvent* event) {
    fillFiles();
    QScrollArea::showEvent(event);
}

/// Columns of files that find room beside the commands; 0 where there is none, and the files stand
/// below them.
int StartPage::columnsIn(int width) const {
    constexpr int edges = 10 * gridStep, mostColumns = 2;
    const int room = width - card_->parentWidget()->sizeHint().width() - edges;
    const int column = std::max(1, widestFile_ + gridStep);
    return std::clamp(room / column, 0, mostColumns);
}

void StartPage::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    if (isVisible() && columnsIn(event->size().width()) != columns_) fillFiles();
}

QWidget* StartPage::line(const Varnmain& main, const std::string& entry, const char* icon,
                         int hint) {
    auto* button =
        new StartButton(iconPicture(icon), qt(main.control(entry).caption()), qt(main.text(hint)));
    connect(button, &QPushButton::clicked, this, [this, entry] { run_(entry); });
    return button;
}

void StartPage::setPicture(QWidget* picture) {
    if (picture_ != nullptr) {
        picture_->hide();
        picture_->deleteLater();
    }
    picture_ = picture;
    if (picture != nullptr) card_->insertWidget(0, picture);
}

}  // namespace varnholt

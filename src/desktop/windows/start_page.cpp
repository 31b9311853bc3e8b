// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/windows/start_page.h"

#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QResizeEvent>
#include <QVBoxLayout>
#include <algorithm>
#include <iterator>

#include "basis/file_system.h"
#include "desktop/widgets/icons.h"
#include "desktop/widgets/look.h"
#include "desktop/widgets/qt_text.h"
#include "desktop/widgets/text_label.h"
#include "forms/text_numbers.h"
#include "frame/varnmain.h"

namespace varnholt {
namespace {

/// A button as wide as the page's card: an icon, the command, and below it what it is for.
class StartButton : public QPushButton {
 public:
    StartButton(const QIcon& icon, QString command, QString hint)
        : icon_(icon), command_(std::move(command)), hint_(std::move(hint)) {
        setAccessibleName(command_);
        setAccessibleDescription(hint_);
        setCursor(Qt::PointingHandCursor);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        setAttribute(Qt::WA_Hover);
    }

    QSize sizeHint() const override {
        const int text =
            std::max(heavy().horizontalAdvance(command_), fontMetrics().horizontalAdvance(hint_));
        return {text + iconSize + 5 * gridStep, 2 * fontMetrics().height() + 2 * gridStep + 4};
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
        const QRect place(2 * gridStep, (height() - iconSize) / 2, iconSize, iconSize);
        icon_.paint(&painter, place);
        const int left = place.right() + 2 * gridStep;
        const int line = fontMetrics().height();
        const int top = (height() - 2 * line - 4) / 2;
        QFont font = this->font();
        font.setWeight(QFont::DemiBold);
        painter.setFont(font);
        painter.setPen(look.ink);
        painter.drawText(QRect(left, top, width() - left, line), Qt::AlignVCenter, command_);
        painter.setFont(this->font());
        painter.setPen(look.muted);
        painter.drawText(QRect(left, top + line + 4, width() - left, line), Qt::AlignVCenter,
                         hint_);
    }

 private:
    QFontMetrics heavy() const {
        QFont font = this->font();
        font.setWeight(QFont::DemiBold);
        return QFontMetrics(font);
    }

    static constexpr int iconSize = 28;
    QIcon icon_;
    QString command_, hint_;
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
    {"house", "new-borehole", Text::templateHouse, Text::exampleHouse}};
constexpr KnownExample knownExamples[] = {
    {"office", "new-borehole", 0, Text::exampleOffice},
    {"school-north", "new-borehole", 0, Text::exampleSchool},
    {"house", "new-borehole", 0, Text::exampleHouse},
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

void StartPage::addHead(int text) { fileLines_->addWidget(titleOf(qt(main_.text(text)), 1)); }

void StartPage::addFile(const QIcon& icon, const QString& name, const QString& hint,
                        const std::function<void()>& open) {
    auto* button = new StartButton(icon, name, hint);
    // The page goes with the first window that opens: not from under the button's own hands.
    connect(button, &QPushButton::clicked, this, open, Qt::QueuedConnection);
    fileLines_->addWidget(button);
}

/// The files are those of the moment.
void StartPage::fillFiles() {
    while (QLayoutItem* item = fileLines_->takeAt(0)) {
        if (item->widget() != nullptr) item->widget()->deleteLater();
        delete item;
    }
    constexpr std::size_t mostRecent = 4;
    std::vector<std::string> recent = files_.recent();
    if (recent.size() > mostRecent) recent.resize(mostRecent);
    if (!recent.empty()) addHead(Text::startPageRecent);
    for (const std::string& path : recent)
        addFile(houseIcon(QStringLiteral("recent")), qt(fileNameOf(path)), qt(folderOf(path)),
                [this, path] { files_.open(path); });
    const std::vector<ExampleFile> examples = files_.examples();
    const auto find = [&](const char* name) -> const ExampleFile* {
        for (const ExampleFile& example : examples)
            if (example.name == QLatin1String(name)) return &example;
        return nullptr;
    };
    const bool any = std::any_of(std::begin(templates), std::end(templates),
                                 [&](const KnownExample& known) { return find(known.name); });
    if (any) addHead(Text::startPageTemplates);
    for (const KnownExample& known : templates)
        if (const ExampleFile* file = find(known.name))
            addFile(houseIcon(QString::fromLatin1(known.icon)), qt(main_.text(known.caption)),
                    qt(main_.text(known.hint)),
                    [this, path = file->path] { files_.openAsTemplate(path); });
    if (!examples.empty()) addHead(Text::startPageExamples);
    for (const KnownExample& known : knownExamples)
        if (const ExampleFile* file = find(known.name))
            addFile(houseIcon(QString::fromLatin1(known.icon)), file->name,
                    qt(main_.text(known.hint)), [this, path = file->path] { files_.open(path); });
    fileCard_->setVisible(fileLines_->count() > 0);
}

void StartPage::showEvent(QShowEvent* event) {
    fillFiles();
    QScrollArea::showEvent(event);
}

void StartPage::resizeEvent(QResizeEvent* event) {
    constexpr int besideEachOther = 110 * gridStep;
    across_->setDirection(event->size().width() < besideEachOther ? QBoxLayout::TopToBottom
                                                                  : QBoxLayout::LeftToRight);
    QScrollArea::resizeEvent(event);
}

QWidget* StartPage::line(const Varnmain& main, const std::string& entry, const char* icon,
                         int hint) {
    auto* button = new StartButton(houseIcon(QString::fromLatin1(icon)),
                                   qt(main.control(entry).caption()), qt(main.text(hint)));
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

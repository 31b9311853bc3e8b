// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/windows/start_page.h"

#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

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

}  // namespace

StartPage::StartPage(const Varnmain& main, std::function<void(const std::string&)> run)
    : run_(std::move(run)) {
    auto* across = new QHBoxLayout(this);
    auto* card = new QWidget;
    card_ = new QVBoxLayout(card);
    card_->setSpacing(gridStep);
    auto* title = new TextLabel(qt(main.text(Text::startPageTitle)));
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * 1.3);
    font.setWeight(QFont::DemiBold);
    title->setFont(font);
    card_->addWidget(title);
    card_->addWidget(line(main, "NewBorehole", "new-borehole", Text::startPageBorehole));
    card_->addWidget(line(main, "NewHorizontal", "new-horizontal", Text::startPageHorizontal));
    card_->addWidget(
        line(main, "NewSurfaceWater", "new-surface-water", Text::startPageSurfaceWater));
    card_->addWidget(line(main, "mnuZoneManage", "zones", Text::startPageZones));
    card_->addWidget(line(main, "mnuFileOpen", "open", Text::startPageOpen));
    auto* drop = new TextLabel(qt(main.text(Text::startPageDrop)));
    drop->setMuted();
    card_->addWidget(drop);
    across->addStretch(1);
    across->addWidget(card, 0, Qt::AlignCenter);
    across->addStretch(1);
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

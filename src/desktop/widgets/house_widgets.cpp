// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widgets/house_widgets.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QStyle>
#include <algorithm>
#include <cmath>
#include <limits>

#include "desktop/widgets/icons.h"
#include "desktop/widgets/look.h"
#include "desktop/widgets/text_label.h"
#include "desktop/widgets/told_role.h"

namespace varnholt {

FieldEdit::FieldEdit(int characters, QWidget* parent) : QLineEdit(parent), characters_(0) {
    setMaxLength(std::numeric_limits<int>::max());
    if (characters > 0) setFigures(characters);
}

void FieldEdit::setFigures(int characters) {
    characters_ = characters;
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize FieldEdit::sizeHint() const {
    const QSize usual = QLineEdit::sizeHint();
    if (characters_ == 0) return {std::max(usual.width(), 160), usual.height()};
    constexpr int edges = 18;
    return {fontMetrics().horizontalAdvance(u'0') * characters_ + edges, usual.height()};
}

QSize FieldEdit::minimumSizeHint() const {
    return characters_ == 0 ? QLineEdit::minimumSizeHint() : sizeHint();
}

void FieldEdit::setMark(const QIcon& icon, const QString& reason) {
    if (mark_ != nullptr) removeAction(mark_);
    mark_ = nullptr;
    if (icon.isNull()) return;
    mark_ = addAction(icon, QLineEdit::LeadingPosition);
    mark_->setToolTip(reason);
}

void FieldEdit::contextMenuEvent(QContextMenuEvent* event) {
    QMenu* menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (QAction* action : menu->actions()) {
        // The toolkit tells its commands by nothing but their captions.
        if (!action->text().startsWith(QLineEdit::tr("&Paste"))) continue;
        QObject::disconnect(action, nullptr, this, nullptr);
        QObject::connect(action, &QAction::triggered, this, &FieldEdit::pasteByKey);
    }
    if (addToMenu) addToMenu(*menu, event->reason() == QContextMenuEvent::Keyboard);
    menu->popup(event->globalPos());
}

void FieldEdit::pasteByKey() {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_V, Qt::ControlModifier);
    QCoreApplication::sendEvent(this, &press);
}

namespace {
constexpr int positionsPerUnit = 1000;
/// Ranges below this many units are worked in tenths.
constexpr double fineRange = 20;
}  // namespace

NumberSlider::NumberSlider(QWidget* parent) : QSlider(Qt::Horizontal, parent) {
    // Larger numbers are at the right in every language, as on the axis of a chart.
    setLayoutDirection(Qt::LeftToRight);
    NumberSlider::setNumbers(0, 100);
    setMinimumWidth(160);
    connect(this, &QSlider::valueChanged, this, [this](int position) { snap(position); });
}

int NumberSlider::positionOf(double number) const {
    // The positions are whole numbers of 32 bits.
    constexpr double widest = 2e6;
    const double above = std::clamp(number - lowest_, 0.0, widest);
    return static_cast<int>(std::lround(above * positionsPerUnit));
}

void NumberSlider::setNumbers(double lowest, double highest) {
    lowest_ = lowest;
    highest_ = highest;
    step_ = highest_ - lowest_ < fineRange ? 0.1 : 1;
    writing_ = true;
    setRange(0, positionOf(highest_));
    setSingleStep(static_cast<int>(step_ * positionsPerUnit));
    setPageStep(10 * singleStep());
    setValue(positionOf(number_));
    writing_ = false;
}

void NumberSlider::setNumber(double number) {
    number_ = number;
    writing_ = true;
    setValue(positionOf(number));
    writing_ = false;
}

void NumberSlider::snap(int position) {
    if (writing_) return;
    const double number = lowest_ + static_cast<double>(position) / positionsPerUnit;
    const double snapped = std::round(number / step_) * step_;
    moveTo(std::clamp(snapped, lowest_, highest_));
}

void NumberSlider::moveTo(double number) {
    setNumber(number);
    if (onMoved) onMoved(number);
}

void makeSearch(QLineEdit& line, const QString& prompt, const QString& empty) {
    line.setPlaceholderText(prompt);
    line.setAccessibleName(prompt);
    line.setClearButtonEnabled(true);
    if (auto* button = line.findChild<QToolButton*>()) button->setAccessibleName(empty);
}

void labelUnseen(QComboBox& combo, const QString& name) {
    combo.setAccessibleName(name);
    auto* label = new TextLabel(name, combo.parentWidget());
    label->setBuddy(&combo);
    label->hide();
}

UpDownButtons::UpDownButtons(QWidget* parent)
    : QWidget(parent), up_(new QToolButton(this)), down_(new QToolButton(this)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    for (QToolButton* button : {up_, down_}) {
        button->setProperty("stepper", true);
        button->setAutoRepeat(true);
        button->setFocusPolicy(Qt::NoFocus);
        button->setIconSize({9, 9});
        button->setFixedWidth(18);
        button->setMinimumHeight(12);
        button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
        layout->addWidget(button);
    }
    up_->setIcon(houseIcon(QStringLiteral("step-up")));
    down_->setIcon(houseIcon(QStringLiteral("step-down")));
    // As high as the field beside it.
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    setFocusPolicy(Qt::StrongFocus);
    connect(up_, &QToolButton::clicked, this, [this] { step(1); });
    connect(down_, &QToolButton::clicked, this, [this] { step(-1); });
}

void UpDownButtons::callButtons(const QString& up, const QString& down) {
    up_->setAccessibleName(up);
    down_->setAccessibleName(down);
}

void UpDownButtons::setNumbers(double lowest, double highest) {
    lowest_ = lowest;
    highest_ = highest;
    refresh();
}

void UpDownButtons::setNumber(double number) {
    number_ = number;
    refresh();
}

void UpDownButtons::moveTo(double number) {
    const double within = std::max(lowest_, std::min(highest_, number));
    if (onMoved) onMoved(within);
}

void UpDownButtons::refresh() {
    up_->setEnabled(number_ < highest_);
    down_->setEnabled(number_ > lowest_);
}

void UpDownButtons::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Up)
        step(1);
    else if (event->key() == Qt::Key_Down)
        step(-1);
    else
        QWidget::keyPressEvent(event);
}

void UpDownButtons::wheelEvent(QWheelEvent* event) {
    // The wheel scrolls the page; it does not change a design by accident.
    event->ignore();
}

GroupBox::GroupBox(QWidget* parent)
    : QWidget(parent), title_(new TextLabel(this)), layout_(new QVBoxLayout(this)) {
    tellAs(*this, QAccessible::Grouping);
    QFont font = title_->font();
    font.setWeight(QFont::DemiBold);
    title_->setFont(font);
    title_->hide();
    layout_->setContentsMargins(2 * gridStep, gridStep + gridStep / 2, 2 * gridStep,
                                gridStep + gridStep / 2);
    layout_->setSpacing(gridStep);
    layout_->addWidget(title_);
}

void GroupBox::setTitle(const QString& title) {
    title_->setText(title);
    title_->setVisible(!title.isEmpty());
    setAccessibleName(title);
    fitTitle();
}

QWidget* GroupBox::takeTitle() {
    layout_->removeWidget(title_);
    title_->setProperty(titleProperty, true);
    return title_;
}

void GroupBox::breakTitleBeyond(int width) {
    widestTitle_ = width;
    fitTitle();
}

void GroupBox::fitTitle() {
    if (widestTitle_ == 0) return;
    const int width = title_->fontMetrics().horizontalAdvance(title_->text());
    title_->setWordWrap(width > widestTitle_);
}

void GroupBox::setLow() {
    layout_->setContentsMargins(2 * gridStep, gridStep / 2, 2 * gridStep, gridStep / 2);
}

void GroupBox::setContent(QWidget* content) {
    delete content_;
    content_ = content;
    if (content == nullptr) return;
    layout_->addWidget(content, 1);
    for (QWidget* inner : content->findChildren<QWidget*>())
        if (auto* group = dynamic_cast<GroupBox*>(inner)) group->setNested(true);
    if (auto* group = dynamic_cast<GroupBox*>(content)) group->setNested(true);
}

void GroupBox::setNested(bool nested) {
    nested_ = nested;
    // What follows stands apart by the gap between pieces.
    layout_->setContentsMargins(0, gridStep / 2, 0, 0);
}

/// From the title to the edge.
void GroupBox::drawRule(QPainter& painter, const QColor& colour) const {
    if (title_->isHidden() || title_->parentWidget() != this) return;
    const int middle = title_->geometry().center().y();
    const int from =
        title_->x() + title_->fontMetrics().horizontalAdvance(title_->text()) + gridStep;
    const QRect line(from, middle, width() - from, 1);
    if (from < width())
        painter.fillRect(QStyle::visualRect(layoutDirection(), rect(), line), colour);
}

void GroupBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Look& look = lookOf(palette());
    painter.setPen(look.hairline);
    if (nested_) return drawRule(painter, look.hairline);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(look.surface);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 6, 6);
}

ScrollPage::ScrollPage(QWidget* page) {
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    // Its size is settled with the window's.
    page->setAttribute(Qt::WA_Resized);
    setWidget(page);
    viewport()->setAutoFillBackground(false);
    page->setAutoFillBackground(false);
}

QSize ScrollPage::sizeHint() const { return widget()->sizeHint() + QSize(2, 2); }

}  // namespace varnholt

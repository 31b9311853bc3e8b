// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/paper/report_view.h"

#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <array>
#include <cmath>

#include "desktop/widgets/look.h"

namespace varnholt {
namespace {

constexpr double gap = 2.0 * gridStep;
constexpr double largest = 5, smallest = 0.1;
constexpr std::array<double, 11> steps{0.25, 0.33, 0.5, 0.67, 0.75, 1, 1.25, 1.5, 2, 3, 4};

}  // namespace

ReportView::ReportView(const Texts& texts, QWidget* parent)
    : QAbstractScrollArea(parent), texts_(texts) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setAutoFillBackground(false);
}

void ReportView::setPages(std::shared_ptr<const PageLayout> layout) {
    const std::size_t before = layout_ ? page() : 0;
    layout_ = std::move(layout);
    pictures_.clear();
    found_ = placesOf(*layout_, words_);
    place_ = 0;
    applyFit();
    goTo(std::min(before, pageCount() - 1));
    setAccessibleDescription(wordsOf(*layout_, page()));
}

double ReportView::perUnit() const { return zoom_ * logicalDpiX() / 72.0 / unitsPerPoint; }

QSizeF ReportView::sheet() const { return layout_ ? layout_->sheet() * perUnit() : QSizeF(); }

QRectF ReportView::placeOf(std::size_t page) const {
    const QSizeF size = sheet();
    const double x =
        std::max(gap, (viewport()->width() - size.width()) / 2) - horizontalScrollBar()->value();
    const double row = continuous_ ? static_cast<double>(page) : 0;
    const double y = gap + row * (size.height() + gap) - verticalScrollBar()->value();
    return {QPointF(std::round(x), std::round(y)), size};
}

std::size_t ReportView::page() const {
    if (!layout_ || pageCount() == 0) return 0;
    if (!continuous_) return single_;
    const double middle = verticalScrollBar()->value() + viewport()->height() / 3.0;
    const double each = sheet().height() + gap;
    return std::min(pageCount() - 1, static_cast<std::size_t>(std::max(0.0, middle / each)));
}

void ReportView::goTo(std::size_t page) {
    if (!layout_ || pageCount() == 0) return;
    page = std::min(page, pageCount() - 1);
    single_ = page;
    if (continuous_)
        verticalScrollBar()->setValue(
            static_cast<int>(static_cast<double>(page) * (sheet().height() + gap)));
    else
        verticalScrollBar()->setValue(0);
    viewport()->update();
    onChange();
}

void ReportView::setFit(Fit fit) {
    fit_ = fit;
    applyFit();
    onChange();
}

void ReportView::setZoom(double zoom) {
    fit_ = Fit::none;
    const std::size_t before = page();
    zoom_ = std::clamp(zoom, smallest, largest);
    pictures_.clear();
    arrange();
    goTo(before);
}

void ReportView::step(int count) {
    const auto at = count > 0 ? std::upper_bound(steps.begin(), steps.end(), zoom_ * 1.001)
                              : std::lower_bound(steps.begin(), steps.end(), zoom_ * 0.999);
    if (count > 0) return setZoom(at == steps.end() ? steps.back() : *at);
    setZoom(at == steps.begin() ? steps.front() : *(at - 1));
}

void ReportView::setContinuous(bool continuous) {
    const std::size_t before = page();
    continuous_ = continuous;
    arrange();
    goTo(before);
}

void ReportView::applyFit() {
    if (!layout_) return;
    const QSizeF whole = layout_->sheet() / unitsPerPoint * logicalDpiX() / 72.0;
    const QSizeF room = QSizeF(viewport()->size()) - QSizeF(2 * gap, 2 * gap);
    if (fit_ == Fit::width) zoom_ = room.width() / whole.width();
    if (fit_ == Fit::page)
        zoom_ = std::min(room.width() / whole.width(), room.height() / whole.height());
    zoom_ = std::clamp(zoom_, smallest, largest);
    pictures_.clear();
    arrange();
}

void ReportView::arrange() {
    if (!layout_ || arranging_) return;
    arranging_ = true;
    const QSizeF size = sheet();
    const double sheets = continuous_ ? static_cast<double>(pageCount()) : 1;
    const double height = gap + sheets * (size.height() + gap);
    const double width = size.width() + 2 * gap;
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setSingleStep(3 * gridStep);
    verticalScrollBar()->setRange(0, std::max(0, static_cast<int>(height) - viewport()->height()));
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setRange(0, std::max(0, static_cast<int>(width) - viewport()->width()));
    viewport()->update();
    arranging_ = false;
}

QPixmap ReportView::picture(std::size_t page) {
    if (const QPixmap* known = pictures_.object(page)) return *known;
    const double ratio = devicePixelRatioF();
    QPixmap drawn((sheet() * ratio).toSize().expandedTo({1, 1}));
    drawn.setDevicePixelRatio(ratio);
    drawn.fill(Qt::white);
    QPainter painter(&drawn);
    painter.scale(perUnit(), perUnit());
    PagePainter(*layout_, texts_).paint(painter, page);
    painter.end();
    pictures_.insert(page, new QPixmap(drawn));
    return drawn;
}

void ReportView::paintEvent(QPaintEvent*) {
    QPainter painter(viewport());
    const Look& look = lookOf(palette());
    painter.fillRect(viewport()->rect(), look.dark ? look.window : look.hairline);
    if (!layout_ || pageCount() == 0) return;
    const std::size_t from = continuous_ ? 0 : single_;
    const std::size_t to = continuous_ ? pageCount() : single_ + 1;
    for (std::size_t page = from; page < to; ++page) {
        const QRectF place = placeOf(page);
        if (place.bottom() < 0) continue;
        if (place.top() > viewport()->height()) break;
        painter.drawPixmap(place.topLeft(), picture(page));
        painter.setPen(look.line);
        painter.drawRect(place);
        if (place_ >= found_.size() || found_[place_].page != page) continue;
        const QRectF where = found_[place_].where;
        QColor mark = look.accent;
        mark.setAlpha(60);
        painter.fillRect(
            QRectF(place.topLeft() + where.topLeft() * perUnit(), where.size() * perUnit()), mark);
    }
}

void ReportView::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    const std::size_t before = page();
    applyFit();
    if (fit_ != Fit::none) goTo(before);
    onChange();
}

void ReportView::wheelEvent(QWheelEvent* event) {
    if ((event->modifiers() & Qt::ControlModifier) == 0)
        return QAbstractScrollArea::wheelEvent(event);
    if (event->angleDelta().y() != 0) step(event->angleDelta().y() > 0 ? 1 : -1);
    event->accept();
}

void ReportView::keyPressEvent(QKeyEvent* event) {
    const bool control = (event->modifiers() & Qt::ControlModifier) != 0;
    switch (event->key()) {
        case Qt::Key_PageDown:
            return goTo(page() + 1);
        case Qt::Key_PageUp:
            return goTo(page() == 0 ? 0 : page() - 1);
        case Qt::Key_Home:
            return goTo(0);
        case Qt::Key_End:
            return goTo(pageCount());
        case Qt::Key_Plus:
            if (control) return step(1);
            break;
        case Qt::Key_Minus:
            if (control) return step(-1);
            break;
        default:
            break;
    }
    QAbstractScrollArea::keyPressEvent(event);
}

void ReportView::scrollContentsBy(int, int) {
    viewport()->update();
    if (!arranging_) onChange();
}

void ReportView::changeEvent(QEvent* event) {
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) viewport()->update();
}

bool ReportView::find(const QString& words) {
    if (!layout_) return false;
    if (words != words_) {
        words_ = words;
        found_ = placesOf(*layout_, words);
        place_ = 0;
    } else if (!found_.empty()) {
        place_ = (place_ + 1) % found_.size();
    }
    showFound();
    return !found_.empty();
}

void ReportView::showFound() {
    viewport()->update();
    if (found_.empty()) return;
    goTo(found_[place_].page);
    const QRectF place = placeOf(found_[place_].page);
    const double y = place.top() + found_[place_].where.top() * perUnit();
    if (y < 0 || y > viewport()->height() - 4 * gridStep)
        verticalScrollBar()->setValue(verticalScrollBar()->value() +
                                      static_cast<int>(y - viewport()->height() / 3.0));
}

}  // namespace varnholt

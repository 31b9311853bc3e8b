// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widgets/reflow_layout.h"

#include <QStyle>
#include <QWidget>
#include <QWidgetItem>
#include <algorithm>

#include "desktop/widgets/look.h"

namespace varnholt {
namespace {

int heightOf(QLayoutItem* item, int width) {
    const int usual =
        item->hasHeightForWidth() ? item->heightForWidth(width) : item->sizeHint().height();
    return std::max(usual, item->minimumSize().height());
}

}  // namespace

ReflowLayout::ReflowLayout(QWidget* parent) : QLayout(parent) {
    setContentsMargins(0, 0, 0, 0);
    setSpacing(gridStep);
}

ReflowLayout::~ReflowLayout() {
    for (const Placed& piece : pieces_) delete piece.item;
}

void ReflowLayout::addPiece(QWidget* piece, int stretch, bool grows) {
    addChildWidget(piece);
    addItem(new QWidgetItem(piece));
    pieces_.back().stretch = stretch;
    pieces_.back().grows = grows;
}

void ReflowLayout::addItem(QLayoutItem* item) {
    pieces_.push_back({item, 0, false});
    invalidate();
}

QLayoutItem* ReflowLayout::itemAt(int index) const {
    return index >= 0 && index < count() ? pieces_[static_cast<std::size_t>(index)].item : nullptr;
}

QLayoutItem* ReflowLayout::takeAt(int index) {
    QLayoutItem* item = itemAt(index);
    if (item != nullptr) pieces_.erase(pieces_.begin() + index);
    return item;
}

void ReflowLayout::invalidate() {
    known_.first = -1;
    QLayout::invalidate();
}

/// Pieces go into a line as long as each of them can be as narrow as that takes.
std::vector<ReflowLayout::Line> ReflowLayout::linesFor(int width) const {
    std::vector<Line> lines;
    int taken = 0;
    for (const Placed& piece : pieces_) {
        if (piece.item->isEmpty()) continue;
        const int least = piece.item->minimumSize().width();
        const bool fits = !lines.empty() && taken + spacing() + least <= width;
        taken = fits ? taken + spacing() + least : least;
        if (!fits) lines.emplace_back();
        lines.back().pieces.push_back({&piece, least});
        lines.back().grows = lines.back().grows || piece.grows;
    }
    for (Line& line : lines) shareWidth(line, width);
    return lines;
}

/// Pieces without a share of their own take what they ask for, the others part the rest by their
/// shares, none below its least width.
void ReflowLayout::shareWidth(Line& line, int width) const {
    int rest = width - spacing() * static_cast<int>(line.pieces.size() - 1);
    const bool anyShares = std::any_of(line.pieces.begin(), line.pieces.end(),
                                       [](const InLine& in) { return in.piece->stretch > 0; });
    const auto shareOf = [&](const InLine& in) { return anyShares ? in.piece->stretch : 1; };
    std::vector<InLine*> open;
    int shares = 0;
    int leastOfOpen = 0;
    for (InLine& in : line.pieces) {
        if (shareOf(in) == 0) continue;
        open.push_back(&in);
        shares += shareOf(in);
        leastOfOpen += in.width;
    }
    for (InLine& in : line.pieces) {
        if (shareOf(in) > 0) continue;
        const int most = std::max(in.width, rest - leastOfOpen);
        in.width = std::clamp(in.piece->item->sizeHint().width(), in.width, most);
        rest -= in.width;
    }
    for (bool settled = false; !settled && !open.empty();) {
        settled = true;
        for (auto at = open.begin(); at != open.end(); ++at) {
            if ((*at)->width * shares <= rest * shareOf(**at)) continue;
            rest -= (*at)->width;
            shares -= shareOf(**at);
            open.erase(at);
            settled = false;
            break;
        }
    }
    for (InLine* in : open) {
        const int share = shareOf(*in);
        in->width = rest * share / shares;
        rest -= in->width;
        shares -= share;
    }
    for (const InLine& in : line.pieces)
        line.height = std::max(line.height, heightOf(in.piece->item, in.width));
}

void ReflowLayout::shareHeight(std::vector<Line>& lines, int height) const {
    int over = height - spacing() * static_cast<int>(lines.size() - 1);
    int growing = 0;
    for (const Line& line : lines) {
        over -= line.height;
        growing += line.grows ? 1 : 0;
    }
    if (over <= 0) return;
    if (growing == 0) {
        lines.back().height += over;
        return;
    }
    for (Line& line : lines) {
        if (!line.grows) continue;
        line.height += over / growing;
        over -= over / growing;
        --growing;
    }
}

void ReflowLayout::place(const Line& line, const QPoint& corner, const QRect& around) const {
    int x = corner.x();
    const Qt::LayoutDirection way = parentWidget()->layoutDirection();
    for (const InLine& in : line.pieces) {
        const QRect place(x, corner.y(), in.width, line.height);
        in.piece->item->setGeometry(QStyle::visualRect(way, around, place));
        x += in.width + spacing();
    }
}

void ReflowLayout::setGeometry(const QRect& rect) {
    QLayout::setGeometry(rect);
    const QRect inner = contentsRect();
    std::vector<Line> lines = linesFor(inner.width());
    if (lines.empty()) return;
    shareHeight(lines, inner.height());
    QPoint corner = inner.topLeft();
    for (const Line& line : lines) {
        place(line, corner, inner);
        corner.ry() += line.height + spacing();
    }
}

int ReflowLayout::heightForWidth(int width) const {
    if (known_.first == width) return known_.second;
    const QMargins edges = contentsMargins();
    int height = edges.top() + edges.bottom() - spacing();
    const std::vector<Line> lines = linesFor(width - edges.left() - edges.right());
    for (const Line& line : lines) height += line.height + spacing();
    known_ = {width, lines.empty() ? 0 : height};
    return known_.second;
}

QSize ReflowLayout::sizeHint() const {
    QSize size(-spacing(), 0);
    for (const Placed& piece : pieces_) {
        if (piece.item->isEmpty()) continue;
        const QSize hint = piece.item->sizeHint();
        size =
            QSize(size.width() + spacing() + hint.width(), std::max(size.height(), hint.height()));
    }
    return size.expandedTo(QSize(0, 0)).grownBy(contentsMargins());
}

QSize ReflowLayout::minimumSize() const {
    QSize size(0, 0);
    for (const Placed& piece : pieces_)
        if (!piece.item->isEmpty()) size = size.expandedTo(piece.item->minimumSize());
    return size.grownBy(contentsMargins());
}

}  // namespace varnholt

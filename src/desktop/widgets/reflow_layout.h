// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLayout>
#include <utility>
#include <vector>

namespace varnholt {

/// Pieces side by side where the width has room for all of them, else in as many lines as it
/// takes. Pieces of a line end together; height that is left over goes to the lines that grow, or
/// to the last one.
class ReflowLayout : public QLayout {
 public:
    explicit ReflowLayout(QWidget* parent);
    ~ReflowLayout() override;

    /// @param stretch  its share of a line's width; 0 for a piece that keeps to its own
    /// @param grows    makes use of more height than it needs
    void addPiece(QWidget* piece, int stretch, bool grows);

    void addItem(QLayoutItem* item) override;
    int count() const override { return static_cast<int>(pieces_.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect& rect) override;
    void invalidate() override;

 private:
    struct Placed {
        QLayoutItem* item;
        int stretch;
        bool grows;
    };
    /// A piece with its width in the line.
    struct InLine {
        const Placed* piece;
        int width;
    };
    struct Line {
        std::vector<InLine> pieces;
        int height = 0;
        bool grows = false;
    };

    std::vector<Line> linesFor(int width) const;
    void shareWidth(Line& line, int width) const;
    void shareHeight(std::vector<Line>& lines, int height) const;
    void place(const Line& line, const QPoint& corner, const QRect& around) const;

    std::vector<Placed> pieces_;
    /// The width last asked about, and its height.
    mutable std::pair<int, int> known_{-1, 0};
};

}  // namespace varnholt

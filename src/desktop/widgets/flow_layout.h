// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLayout>
#include <memory>
#include <vector>

namespace varnholt {

/// Items in lines that break where the width ends, as words do; those of a line stand in the middle
/// of its height.
class FlowLayout : public QLayout {
 public:
    explicit FlowLayout(QWidget* parent);
    ~FlowLayout() override;

    void addItem(QLayoutItem* item) override;
    int count() const override { return static_cast<int>(items_.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect& rect) override;

 private:
    struct Line {
        std::vector<QLayoutItem*> items;
        int height = 0;
    };

    std::vector<Line> linesFor(int width) const;
    /// Height that the items take in that place; moves them there when asked to.
    int place(const QRect& rect, bool move) const;

    std::vector<QLayoutItem*> items_;
};

}  // namespace varnholt

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLayout>
#include <functional>
#include <memory>

class QTabWidget;

namespace varnholt {

/// Pages with a bar that belongs to all of them. The bar stands at the end of the line of the tabs
/// where both find room in it, so that the pages have the bar's height; else above the tabs.
class HeadedTabsLayout : public QLayout {
 public:
    HeadedTabsLayout(QWidget* parent, QWidget* bar, QTabWidget* tabs);
    ~HeadedTabsLayout() override;

    /// Whether the bar stands in the line of the tabs.
    bool isBeside() const { return beside_; }
    /// The least width of the bar, in pixels, with all that it may come to show; without it, what
    /// the bar needs now.
    std::function<int()> barNeeds;
    /// The bar goes to the line of the tabs, or back above them.
    std::function<void(bool beside)> onTurned;

    void addItem(QLayoutItem*) override {}
    int count() const override { return 2; }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int) override { return nullptr; }
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect& rect) override;

 private:
    int tabsWidth() const;
    int tabsHeight() const;
    int barHeight(int width) const;
    bool fitsBeside(int width) const;
    void placeAbove(const QRect& rect);
    void placeBeside(const QRect& rect);

    std::unique_ptr<QLayoutItem> bar_, pages_;
    QTabWidget* tabs_;
    bool beside_ = false;
};

}  // namespace varnholt

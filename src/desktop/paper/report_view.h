// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractScrollArea>
#include <QCache>
#include <QPixmap>
#include <functional>
#include <memory>
#include <vector>

#include "desktop/paper/page_painter.h"

namespace varnholt {

/// The pages of a report on the screen, as they will print.
class ReportView : public QAbstractScrollArea {
 public:
    enum class Fit { width, page, none };

    /// @param texts  must outlive the view
    explicit ReportView(const Texts& texts, QWidget* parent = nullptr);

    void setPages(std::shared_ptr<const PageLayout> layout);
    const PageLayout* pages() const { return layout_.get(); }
    std::size_t pageCount() const { return layout_ ? layout_->pages().size() : 0; }

    /// The page in front, from 0.
    std::size_t page() const;
    void goTo(std::size_t page);
    void setFit(Fit fit);
    Fit fit() const { return fit_; }
    /// 1 is the size on paper.
    void setZoom(double zoom);
    double zoom() const { return zoom_; }
    /// A step larger or smaller.
    void step(int steps);
    /// All pages below each other, or one at a time.
    void setContinuous(bool continuous);
    bool isContinuous() const { return continuous_; }

    /// Goes to the next place of the words behind the present one. False when there is none.
    bool find(const QString& words);
    const std::vector<TextPlace>& found() const { return found_; }
    std::size_t foundPlace() const { return place_; }

    /// Page, zoom or fit has changed.
    std::function<void()> onChange = [] {};

 protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void changeEvent(QEvent* event) override;

 private:
    double perUnit() const;  ///< pixels of the screen for a unit of the layout
    QSizeF sheet() const;    ///< in pixels
    /// The sheet's place in the viewport.
    QRectF placeOf(std::size_t page) const;
    void applyFit();
    void arrange();
    QPixmap picture(std::size_t page);
    void showFound();

    const Texts& texts_;
    std::shared_ptr<const PageLayout> layout_;
    Fit fit_ = Fit::width;
    double zoom_ = 1;
    bool continuous_ = true;
    bool arranging_ = false;
    std::size_t single_ = 0;  ///< the page on show when there is one at a time
    QCache<std::size_t, QPixmap> pictures_{6};
    QString words_;
    std::vector<TextPlace> found_;
    std::size_t place_ = 0;
};

}  // namespace varnholt

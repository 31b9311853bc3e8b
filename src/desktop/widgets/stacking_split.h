// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSplitter>
#include <functional>

namespace varnholt {

class ScrollPage;

/// Two pieces with a bar between them that can be dragged: side by side where the second one has
/// the width that it needs, else the first above the second.
class StackingSplit : public QSplitter {
 public:
    /// @param needed  how wide the second piece must be to stand beside the first, in pixels
    StackingSplit(QWidget* first, QWidget* second, std::function<int()> needed);

    /// The first piece takes this part of the width until a person moves the bar.
    void setFirstPart(double part) { firstPart_ = part; }
    /// Looks again whether the pieces fit side by side: their needs have changed.
    void arrange();

 protected:
    void resizeEvent(QResizeEvent* event) override;

 private:
    void shareWidth();

    std::function<int()> needed_;
    double firstPart_ = 0;       ///< 0 leaves it as wide as it is
    QList<int> beside_, above_;  ///< where the bar stood last
};

/// A list beside a page that scrolls, or above it where the page would have to scroll sideways.
/// @param listPart  of the width, where the page leaves so much
StackingSplit* besidePage(QWidget* list, ScrollPage* page, double listPart);

}  // namespace varnholt

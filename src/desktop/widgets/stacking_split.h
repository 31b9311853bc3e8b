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

    /// Looks again whether the pieces fit side by side: their needs have changed.
    void arrange();

 protected:
    void resizeEvent(QResizeEvent* event) override;

 private:
    std::function<int()> needed_;
    QList<int> beside_, above_;  ///< where the bar stood last
};

/// A list beside a page that scrolls, or above it where the page would have to scroll sideways.
StackingSplit* besidePage(QWidget* list, ScrollPage* page, int listShare, int pageShare);

}  // namespace varnholt

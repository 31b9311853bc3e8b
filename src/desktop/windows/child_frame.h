// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMdiSubWindow>
#include <functional>

#include "desktop/binding/form_window.h"

namespace varnholt {

/// The window of a child form inside the main window.
class ChildFrame : public QMdiSubWindow {
 public:
    ChildFrame();

    /// Takes what it shows, once it stands in its area: then all of it is dressed at once.
    void setContent(FormWindow* content);
    FormWindow& content() { return *content_; }
    /// Its place while it is neither maximised nor minimised.
    const QRect& ownPlace() const { return ownPlace_; }
    /// Before it is shown.
    void setOwnPlace(const QRect& place);
    /// A person presses the close box.
    std::function<void()> onCloseBox;

 protected:
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

 private:
    void notePlace();

    FormWindow* content_ = nullptr;
    QRect ownPlace_;
};

}  // namespace varnholt

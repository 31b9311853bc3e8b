// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QMouseEvent>
#include <filesystem>
#include <string>

#include "design/frmBHDesign.h"
#include "desk.h"
#include "desktop/binding/binder.h"
#include "desktop/binding/form_window.h"

namespace varnholt {

/// A school's design and beside it a window of its own whose figures are found while nobody types.
template <class Window>
class LateWindow : public testing::Test {
 protected:
    /// @param command  of the design, which opens the window
    /// @param name     the window's form
    LateWindow(const char* command, const char* name) : name_(name) {
        const std::filesystem::path examples = VARNHOLT_SOURCE_DIR "/examples";
        const std::filesystem::path program = desk.folder();
        constexpr auto replacing = std::filesystem::copy_options::overwrite_existing;
        std::filesystem::copy(examples / "school-south.vht", program / "work files", replacing);
        std::filesystem::copy(examples / "school-south.zon", program / "zones", replacing);
        desk.platform.picks.push_back("work files/school-south.vht");
        desk.main().click("mnuFileOpen");
        desk.main().activate(design());
        design().click(command);
    }
    frmBHDesign& design() {
        return dynamic_cast<frmBHDesign&>(*desk.main().windowsNamed("frmBHDesign").back());
    }
    Window& late() { return dynamic_cast<Window&>(*desk.main().windowsNamed(name_).back()); }
    /// Lets the loop turn until the figures have been found.
    void idle() {
        const QDeadlineTimer patience(60'000);
        while ((design().isBehind() || late().isBehind()) && !patience.hasExpired())
            QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
        QCoreApplication::processEvents();
    }
    QWidget* widget(const std::string& control) {
        return desk.shelf.windowOf(late())->binder().widget(control);
    }
    static void press(QWidget* target, const QPointF& place) {
        QMouseEvent down(QEvent::MouseButtonPress, place, target->mapToGlobal(place),
                         Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &down);
    }

    Desk desk;
    ViewRegistry views;

 private:
    std::string name_;
};

}  // namespace varnholt

// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/reading/desktop_help.h"

#include <QApplication>
#include <QCursor>
#include <QFileInfo>
#include <QToolTip>
#include <QWhatsThis>
#include <QWidget>

#include "basis/file_system.h"
#include "desktop/widgets/modules.h"
#include "desktop/widgets/qt_text.h"
#include "desktop/widgets/theme.h"

namespace varnholt {
namespace {

HelpModule* findHelpModule() {
    static HelpModule* const module = findModule<HelpModule>("varnholt_help");
    return module;
}

/// The library of a part of the program, as a component of the help.
HelpComponent componentOf(const char* name) {
    for (const QString& folder : moduleFolders()) {
        const QString file = folder + QLatin1String(name) + QStringLiteral(".so");
        if (QFileInfo(file).isFile())
            return {plain(QFileInfo(file).canonicalFilePath()), qVersion()};
    }
    return {};
}

}  // namespace

DesktopHelp::DesktopHelp() = default;

DesktopHelp::~DesktopHelp() {
    if (window_ != nullptr) delete window_;
}

bool DesktopHelp::isHelpFile(const std::string& path) const {
    return UnseenHelp().isHelpFile(path);
}

long DesktopHelp::display(const HelpRequest& request) {
    if (!isHelpFile(request.file)) return 0;
    if (window_ == nullptr) {
        HelpModule* module = findHelpModule();
        if (module == nullptr) return displayPage(request);
        window_ = module->newWindow(places_);
        dress(*window_->window());
    }
    if (!window_->display(request)) return 0;
    showWindow(request.onTop);
    return static_cast<long>(window_->window()->winId());
}

/// The page alone, without contents, index and search.
long DesktopHelp::displayPage(const HelpRequest& request) const {
    const std::string& topic = request.topic;
    const std::size_t mark = topic.find("::/");
    const std::string page = mark == std::string::npos ? "index.html" : topic.substr(mark + 3);
    if (places_.showPage) places_.showPage(joinPath(folderOf(request.file), page));
    return 1;
}

void DesktopHelp::showWindow(bool onTop) const {
    QWidget* window = window_->window();
    window->setWindowFlag(Qt::WindowStaysOnTopHint, onTop);
    window->setAttribute(Qt::WA_ShowWithoutActivating, quiet_);
    // The program ends with its main window.
    window->setAttribute(Qt::WA_QuitOnClose, false);
    window->show();
    if (quiet_) return;
    window->raise();
    window->activateWindow();
}

void DesktopHelp::displayPopup(const HelpPopup& popup) {
    QToolTip::showText(QCursor::pos(), qt(popup.text).toHtmlEscaped());
}

void DesktopHelp::invokeWhatsThis() {
    if (!quiet_) QWhatsThis::enterWhatsThisMode();
}

void DesktopHelp::close() {
    if (window_ != nullptr) window_->close();
}

HelpComponent DesktopHelp::helpComponent() const { return componentOf("varnholt_help"); }
HelpComponent DesktopHelp::browserComponent() const { return componentOf("varnholt_web"); }

}  // namespace varnholt

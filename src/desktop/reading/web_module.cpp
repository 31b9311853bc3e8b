// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/reading/web_module.h"

#include <unistd.h>

#include <QGuiApplication>
#include <QOpenGLContext>
#include <QPalette>

#include "desktop/widgets/modules.h"

// The toolkit's own call, by which its engine for the web would share contexts if it were linked.
extern Q_GUI_EXPORT void qt_gl_set_global_share_context(QOpenGLContext* context);
extern Q_GUI_EXPORT QOpenGLContext* qt_gl_global_share_context();

namespace varnholt {
namespace {

/// The engine draws with the contexts of one family, which must be there before it is loaded. To
/// make them at every start would cost those who never look at a page.
void shareContexts() {
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    if (qt_gl_global_share_context() != nullptr) return;
    auto* context = new QOpenGLContext(qApp);
    context->setFormat(QSurfaceFormat::defaultFormat());
    // The engine asks for the context's form even where there is none to be had; it then draws
    // without it.
    if (!context->create()) qputenv("QT_QUICK_BACKEND", "software");
    qt_gl_set_global_share_context(context);
}

/// Pages that know a dark and a light scheme take the program's; the engine asks once, when it is
/// loaded.
void preferScheme() {
    const bool dark = QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
    QByteArray flags = qgetenv("QTWEBENGINE_CHROMIUM_FLAGS");
    if (!flags.isEmpty()) flags += ' ';
    flags += dark ? "--blink-settings=preferredColorScheme=0"
                  : "--blink-settings=preferredColorScheme=1";
    qputenv("QTWEBENGINE_CHROMIUM_FLAGS", flags);
}

/// The sandbox of the engine refuses to run for root, and the engine without it.
void prepareSandbox() {
    if (geteuid() == 0) qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
}

}  // namespace

WebModule* findWebModule() {
    static WebModule* const module = [] {
        prepareSandbox();
        preferScheme();
        shareContexts();
        return findModule<WebModule>("varnholt_web");
    }();
    return module;
}

}  // namespace varnholt

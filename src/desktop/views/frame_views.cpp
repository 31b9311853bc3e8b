// SPDX-License-Identifier: GPL-3.0-or-later
#include <QLabel>

#include "desktop/binding/binder.h"
#include "desktop/views/view_registry.h"
#include "desktop/widgets/icons.h"
#include "desktop/widgets/layout.h"
#include "desktop/widgets/text_label.h"

namespace varnholt {
namespace {

QWidget* programIcon(int size) {
    auto* label = new QLabel;
    label->setPixmap(applicationIcon().pixmap(size, size));
    label->setFixedSize(size, size);
    return label;
}

QWidget* large(QWidget* label) {
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * 2);
    font.setWeight(QFont::Bold);
    label->setFont(font);
    return label;
}

QWidget* muted(QWidget* label) {
    mute(label);
    return label;
}

QWidget* padded(QWidget* content, int steps) {
    const int edge = steps * gridStep;
    content->layout()->setContentsMargins(edge, edge, edge, edge);
    return content;
}

QWidget* makeSplashView(Binder& bind) {
    return padded(row_(programIcon(72),
                       grow(column(large(bind.widget("lblTitle")), muted(bind.widget("lblVersion")),
                                   wrapped(bind.widget("lblWarning"))))),
                  1);
}

QWidget* makeAboutView(Binder& bind) {
    return padded(
        column(row_(programIcon(64),
                    grow(column(large(bind.widget("lblTitle")), muted(bind.widget("lblVersion")),
                                wrapped(bind.widget("lblDescription"))))),
               row_(stretch(), bind.widget("cmdSysInfo"), bind.widget("cmdOK"))),
        3);
}

}  // namespace

void registerFrameViews(ViewRegistry& views) {
    views.registerView("frmSplash", makeSplashView);
    views.registerView("frmAbout", makeAboutView);
}

}  // namespace varnholt

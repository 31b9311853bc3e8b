// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/views/view_pieces.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <utility>

#include "desktop/drawings/drawings.h"
#include "desktop/widgets/qt_text.h"
#include "desktop/widgets/text_label.h"

namespace varnholt {
namespace {

QWidget* light(Binder& bind, const std::string& image, LinkPartner partner) {
    Drawing* lamp = newLinkLight(partner, bind.form()->texts());
    bind.drawing(image, lamp);
    lamp->setToolTip(lamp->description());
    lamp->setAccessibleName(lamp->description());
    return lamp;
}

}  // namespace

QWidget* ifAny(Binder& bind, const std::string& name) {
    return bind.has(name) ? bind.widget(name) : nullptr;
}

QWidget* named(Binder& bind, const std::string& control, const std::string& caption) {
    QWidget* widget = bind.widget(control);
    widget->setAccessibleName(qt(bind.form()->control(caption).caption()));
    return widget;
}

QWidget* hint(Binder& bind, int text, std::function<bool()> condition) {
    auto* label = new TextLabel(qt(bind.text(text)));
    label->setMuted();
    label->setWordWrap(true);
    const auto refresh = [label, condition = std::move(condition)] {
        // A label without a parent would open as a window of its own.
        const bool shown = condition();
        if (!shown || label->parentWidget() != nullptr) label->setVisible(shown);
    };
    refresh();
    bind.onSettled(refresh);
    return label;
}

QWidget* noticeBar(Binder& bind) {
    auto* bar = new QFrame;
    bar->setObjectName(QStringLiteral("noticeBar"));
    bar->setFrameShape(QFrame::StyledPanel);
    auto* row = new QHBoxLayout(bar);
    row->addWidget(wrapped(bind.widget("NoticeLabel")), 1);
    row->addWidget(bind.widget("NoticeCommand"));
    const auto refresh = [bar, &bind] {
        const Form* form = bind.form();
        const bool shown = form != nullptr && form->control("NoticeLabel").visible();
        // A bar without a parent would open as a window of its own.
        if (!shown || bar->parentWidget() != nullptr) bar->setVisible(shown);
    };
    refresh();
    bind.onSettled(refresh);
    return bar;
}

QWidget* linkLights(Binder& bind) {
    return row_(light(bind, "imgLinkLight(0)", LinkPartner::zones),
                light(bind, "imgLinkLight(8)", LinkPartner::block),
                light(bind, "imgLinkLight(6)", LinkPartner::none));
}

}  // namespace varnholt

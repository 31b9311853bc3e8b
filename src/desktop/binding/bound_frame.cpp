// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/binding/bound_frame.h"

#include <utility>

#include "desktop/binding/binder.h"
#include "desktop/widgets/house_widgets.h"
#include "desktop/widgets/qt_text.h"

namespace varnholt {

BoundFrame::BoundFrame(Binder& binder, Control& control)
    : BoundControl(binder, control, new GroupBox), box_(static_cast<GroupBox*>(widget())) {
    showAll();
}

void BoundFrame::setContent(PartMaker content) {
    content_ = std::move(content);
    if (control().visible()) buildNext();
}

bool BoundFrame::buildNext() {
    if (!content_) return false;
    const PartMaker content = std::exchange(content_, nullptr);
    binder().buildLate([&] { box_->setContent(content()); });
    return true;
}

void BoundFrame::show(Property property) {
    if (property == Property::caption) return box_->setTitle(qt(control().caption()));
    if (property == Property::visible && control().visible()) buildNext();
    BoundControl::show(property);
}

Shown BoundFrame::shown(Property property) const {
    if (property == Property::caption) return plain(box_->title());
    return BoundControl::shown(property);
}

void BoundFrame::showForecolor() {
    QPalette palette = box_->titleLabel()->palette();
    palette.setColor(QPalette::WindowText, textColour(control().forecolor(), look()));
    box_->titleLabel()->setPalette(palette);
}

std::unique_ptr<BoundControl> bindFrame(Binder& binder, Control& control) {
    return std::make_unique<BoundFrame>(binder, control);
}

}  // namespace varnholt

// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/views/view_registry.h"

#include <utility>

namespace varnholt {

ViewRegistry::ViewRegistry() {
    registerFrameViews(*this);
    registerViews(*this);
}

void ViewRegistry::registerView(const std::string& formName, ViewMaker maker) {
    makers_[formName] = std::move(maker);
}

QWidget* ViewRegistry::make(Binder& bind) const {
    const auto found = makers_.find(bind.form()->formName());
    return found == makers_.end() ? makeGenericView(bind) : found->second(bind);
}

ViewMaker ViewRegistry::maker() const {
    return [this](Binder& bind) { return make(bind); };
}

}  // namespace varnholt

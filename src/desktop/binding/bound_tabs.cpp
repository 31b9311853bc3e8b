// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/binding/bound_tabs.h"

#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "desktop/binding/binder.h"
#include "desktop/widgets/house_widgets.h"
#include "desktop/widgets/qt_text.h"

namespace varnholt {

BoundTabs::BoundTabs(Binder& binder, Control& control)
    : BoundControl(binder, control, new QTabWidget), tabs_(static_cast<QTabWidget*>(widget())) {
    tabs_->setDocumentMode(true);
    tabs_->setUsesScrollButtons(true);
    // The bar scrolls, so that no caption is cut, and none needs to be measured for it.
    tabs_->setElideMode(Qt::ElideNone);
    tabs_->tabBar()->setDrawBase(false);
    QObject::connect(tabs_, &QTabWidget::currentChanged, &binder,
                     [this](int page) { turnTo(page); });
}

void BoundTabs::addPages(std::vector<PartMaker> makers) {
    for (std::size_t page = 0; page < makers.size(); ++page) {
        auto* place = new QWidget;
        auto* layout = new QVBoxLayout(place);
        layout->setContentsMargins(0, 0, 0, 0);
        tabs_->addTab(place, QString());
    }
    makers_ = std::move(makers);
    showAll();
    if (tabs_->currentIndex() >= 0) build(static_cast<std::size_t>(tabs_->currentIndex()));
}

void BoundTabs::turnTo(int page) {
    if (page < 0) return;
    // Before the form hears of it: its handler may wait for an answer with the page on show.
    build(static_cast<std::size_t>(page));
    binder().act(*this, [page](Form& form, const std::string& name) { form.choose(name, page); });
}

void BoundTabs::build(std::size_t page) {
    if (page >= makers_.size() || !makers_[page]) return;
    const PartMaker maker = std::exchange(makers_[page], nullptr);
    QLayout* place = tabs_->widget(static_cast<int>(page))->layout();
    binder().buildLate([&] {
        auto* content = new ScrollPage(maker());
        place->addWidget(content);
        content->show();
    });
}

bool BoundTabs::buildNext() {
    const auto missing = std::find_if(makers_.begin(), makers_.end(),
                                      [](const PartMaker& maker) { return maker != nullptr; });
    if (missing == makers_.end()) return false;
    build(static_cast<std::size_t>(missing - makers_.begin()));
    return true;
}

void BoundTabs::show(Property property) {
    if (property == Property::items) {
        const auto& items = control().items();
        for (int page = 0; page < tabs_->count(); ++page)
            if (static_cast<std::size_t>(page) < items.size())
                tabs_->setTabText(page, buttonCaption(items[static_cast<std::size_t>(page)]));
    } else if (property == Property::index) {
        if (control().index() >= 0) tabs_->setCurrentIndex(control().index());
    } else {
        BoundControl::show(property);
    }
}

Shown BoundTabs::shown(Property property) const {
    if (property == Property::items) {
        std::vector<std::string> items;
        items.reserve(static_cast<std::size_t>(tabs_->count()));
        for (int page = 0; page < tabs_->count(); ++page)
            items.push_back(captionOfButton(tabs_->tabText(page)));
        return items;
    }
    // A form that never chose a page shows the first and knows of none.
    const int page = control().index() < 0 ? -1 : tabs_->currentIndex();
    if (property == Property::index) return page;
    if (property == Property::text)
        return page < 0 ? std::string() : captionOfButton(tabs_->tabText(page));
    return BoundControl::shown(property);
}

std::unique_ptr<BoundControl> bindTabs(Binder& binder, Control& control) {
    return std::make_unique<BoundTabs>(binder, control);
}

}  // namespace varnholt

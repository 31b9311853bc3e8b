// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/link.h"

#include <algorithm>

#include "loads/linked_design.h"
#include "loads/loads_window.h"

namespace varnholt {

Link::Link(LinkedDesign& design, LoadsWindow& loads) : design_(design), loads_(loads) {
    loads.links_.add(*this);
}

Link::~Link() { loads_.links_.remove(*this); }

void Link::read() { loads_.links_.reader_ = this; }

bool Link::isNamed() const { return loads_.links().named() == this; }

std::int16_t LoadsLinks::designLinkID() const {
    return reader_ == nullptr ? std::int16_t{0} : reader_->design().myID;
}

void LoadsLinks::add(Link& link) {
    links_.push_back(&link);
    named_ = reader_ = &link;
}

/// The window goes on serving the others: one of them gives it its name now.
void LoadsLinks::remove(Link& link) {
    links_.erase(std::remove(links_.begin(), links_.end(), &link), links_.end());
    Link* last = links_.empty() ? nullptr : links_.back();
    if (named_ == &link) named_ = last;
    if (reader_ == &link) reader_ = named_;
}

}  // namespace varnholt

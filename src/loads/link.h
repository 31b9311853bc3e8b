// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

namespace varnholt {

class LinkedDesign;
class LoadsWindow;

/// A design that takes its loads from a loads window. Both sides know it, and it ends with
/// whichever of them ends first.
class Link {
 public:
    /// The loads window now names this design.
    Link(LinkedDesign& design, LoadsWindow& loads);
    ~Link();
    Link(const Link&) = delete;
    Link& operator=(const Link&) = delete;

    LinkedDesign& design() const { return design_; }
    LoadsWindow& loads() const { return loads_; }
    /// The design has just read the loads.
    void read();
    /// The loads window carries this design's name in its title.
    bool isNamed() const;

 private:
    LinkedDesign& design_;
    LoadsWindow& loads_;
};

/// The links of one loads window. It serves any number of designs; the title names one of them.
class LoadsLinks {
 public:
    /// In the order in which they were made.
    const std::vector<Link*>& all() const { return links_; }
    /// Null without a link.
    Link* named() const { return named_; }
    /// Number of the design that read from the window last; 0 when unlinked.
    std::int16_t designLinkID() const;

 private:
    friend class Link;

    void add(Link& link);
    void remove(Link& link);

    std::vector<Link*> links_;
    Link* named_ = nullptr;
    Link* reader_ = nullptr;
};

}  // namespace varnholt

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <utility>
#include <vector>

#include "basis/shared.h"
#include "loads/zone.h"

namespace varnholt {

/// A list of zones whose copies share what has not been written to: the list as a whole, and each
/// zone by itself. So ten thousand zones are copied in no time, and an edited zone costs one zone.
class SharedZones {
 public:
    using Item = Shared<Zone>;

    class const_iterator {
     public:
        using iterator_category = std::random_access_iterator_tag;
        using value_type = Zone;
        using difference_type = std::ptrdiff_t;
        using pointer = const Zone*;
        using reference = const Zone&;

        const_iterator() = default;
        explicit const_iterator(const Item* item) : item_(item) {}
        reference operator*() const { return **item_; }
        pointer operator->() const { return &**item_; }
        reference operator[](difference_type n) const { return *item_[n]; }
        const_iterator& operator++() { return *this += 1; }
        const_iterator operator++(int) { return const_iterator(item_++); }
        const_iterator& operator--() { return *this += -1; }
        const_iterator operator--(int) { return const_iterator(item_--); }
        const_iterator& operator+=(difference_type n) {
            item_ += n;
            return *this;
        }
        const_iterator& operator-=(difference_type n) { return *this += -n; }
        friend const_iterator operator+(const_iterator it, difference_type n) { return it += n; }
        friend const_iterator operator+(difference_type n, const_iterator it) { return it += n; }
        friend const_iterator operator-(const_iterator it, difference_type n) { return it -= n; }
        friend difference_type operator-(const_iterator a, const_iterator b) {
            return a.item_ - b.item_;
        }
        friend auto operator<=>(const const_iterator&, const const_iterator&) = default;

     private:
        const Item* item_ = nullptr;
    };

    SharedZones() = default;
    SharedZones(const std::vector<Zone>& zones)  // NOLINT(google-explicit-constructor)
        : items_(std::vector<Item>(zones.begin(), zones.end())) {}
    SharedZones(std::initializer_list<Zone> zones)
        : items_(std::vector<Item>(zones.begin(), zones.end())) {}

    std::size_t size() const { return items_->size(); }
    bool empty() const { return items_->empty(); }
    const Zone& operator[](std::size_t i) const { return *(*items_)[i]; }
    /// Throws std::out_of_range.
    const Zone& at(std::size_t i) const { return *items_->at(i); }
    const Zone& front() const { return (*this)[0]; }
    const Zone& back() const { return (*this)[size() - 1]; }
    const_iterator begin() const { return const_iterator(items_->data()); }
    const_iterator end() const { return const_iterator(items_->data() + size()); }

    /// Zone i to write to; see Shared::edit.
    Zone& edit(std::size_t i) { return items_.edit()[i].edit(); }
    void push_back(Zone zone) { items_.edit().emplace_back(std::move(zone)); }
    void erase(std::size_t i) {
        items_.edit().erase(items_.edit().begin() + static_cast<std::ptrdiff_t>(i));
    }
    /// Drops the zones behind the first `count`; does nothing when there are no more.
    void cutTo(std::size_t count) {
        if (count < size()) items_.edit().resize(count);
    }
    void clear() { items_ = {}; }

    /// Whether zone i of both lists is one zone in memory.
    bool sharesZone(std::size_t i, const SharedZones& other) const {
        return (*items_)[i].isSameAs((*other.items_)[i]);
    }
    /// Whether both are one list in memory.
    bool isSameAs(const SharedZones& other) const { return items_.isSameAs(other.items_); }
    friend bool operator==(const SharedZones&, const SharedZones&) = default;

 private:
    Shared<std::vector<Item>> items_;
};

/// Equal in everything but the name, which is only the place in the list.
bool sameLoads(const Zone& a, const Zone& b);
bool sameLoads(const SharedZones& a, const SharedZones& b);

}  // namespace varnholt

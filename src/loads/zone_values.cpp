// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/zone_values.h"

#include <functional>
#include <string>
#include <type_traits>

#include "basis/run_time_error.h"

namespace varnholt {
namespace {

using Indices = Values::Indices;

template <class T>
PublicValue asValue(const T& value) {
    if constexpr (std::is_arithmetic_v<T>)
        return static_cast<double>(value);
    else
        return value;
}

/// Zones among the public values: under what name, behind how many indices, and which one is meant.
struct NamedZones {
    Values& values;
    std::string name;
    std::size_t indices;
    std::function<const Zone&(const Indices&)> find;
};

template <class Member>
void addOfZone(const NamedZones& zones, const std::string& name, Member Zone::*member) {
    zones.values.add(
        zones.name + "." + name, zones.indices,
        [find = zones.find, member](const Indices& i) { return asValue(find(i).*member); });
}

template <class Member>
void addOfPump(const NamedZones& zones, const std::string& name, Member MiniPump::*member) {
    zones.values.add(
        zones.name + ".pump." + name, zones.indices,
        [find = zones.find, member](const Indices& i) { return asValue(find(i).pump.*member); });
}

void addOfPumpByMode(const NamedZones& zones, const std::string& name,
                     ByMode<double> MiniPump::*member) {
    zones.values.add(zones.name + ".pump." + name, zones.indices + 1,
                     [find = zones.find, member](const Indices& i) {
                         return PublicValue(at(find(i).pump.*member, i.back()));
                     });
}

void addLoads(const NamedZones& zones) {
    zones.values.add(zones.name + ".gains", zones.indices + 2,
                     [find = zones.find](const Indices& i) {
                         return PublicValue(at(at(find(i).gains, i[i.size() - 2]), i.back()));
                     });
    zones.values.add(
        zones.name + ".hours", zones.indices + 1,
        [find = zones.find](const Indices& i) { return asValue(at(find(i).hours, i.back())); });
    addOfZone(zones, "days", &Zone::days);
    addOfZone(zones, "name", &Zone::name);
    addOfZone(zones, "title", &Zone::title);
}

void addPump(const NamedZones& zones) {
    addOfPump(zones, "customPump", &MiniPump::customPump);
    addOfPump(zones, "number", &MiniPump::number);
    addOfPump(zones, "nominalFlow", &MiniPump::nominalFlow);
    addOfPump(zones, "pumpType", &MiniPump::pumpType);
    addOfPump(zones, "name", &MiniPump::name);
    addOfPump(zones, "mfgName", &MiniPump::mfgName);
    addOfPump(zones, "seriesName", &MiniPump::seriesName);
    addOfPumpByMode(zones, "efficiency", &MiniPump::efficiency);
    addOfPumpByMode(zones, "watts", &MiniPump::watts);
    addOfPumpByMode(zones, "capacity", &MiniPump::capacity);
    addOfPumpByMode(zones, "flowRate", &MiniPump::flowRate);
    addOfPumpByMode(zones, "plf", &MiniPump::plf);
    addOfPumpByMode(zones, "elt", &MiniPump::elt);
    addOfPumpByMode(zones, "elf", &MiniPump::elf);
}

}  // namespace

void addZoneValues(Values& values, const SharedZones& zones) {
    const NamedZones named{values, "ZoneList", 1, [&zones](const Indices& i) -> const Zone& {
                               return at(zones, i.front());
                           }};
    addLoads(named);
    addPump(named);
}

void addZoneValues(Values& values, const std::string& name, const Zone& zone) {
    const NamedZones named{values, name, 0,
                           [&zone](const Indices&) -> const Zone& { return zone; }};
    addLoads(named);
    addPump(named);
}

}  // namespace varnholt

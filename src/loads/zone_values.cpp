// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/zone_values.h"

#include <string>
#include <type_traits>

#include "basis/run_time_error.h"

namespace varnholt {
namespace {

template <class T>
PublicValue asValue(const T& value) {
    if constexpr (std::is_arithmetic_v<T>)
        return static_cast<double>(value);
    else
        return value;
}

using Zones = SharedZones;

template <class Member>
void addOfZone(Values& values, const Zones& zones, const std::string& name, Member Zone::*member) {
    values.add("ZoneList." + name, 1, [&zones, member](const Values::Indices& i) {
        return asValue(at(zones, i[0]).*member);
    });
}

template <class Member>
void addOfPump(Values& values, const Zones& zones, const std::string& name,
               Member MiniPump::*member) {
    values.add("ZoneList.pump." + name, 1, [&zones, member](const Values::Indices& i) {
        return asValue(at(zones, i[0]).pump.*member);
    });
}

void addOfPumpByMode(Values& values, const Zones& zones, const std::string& name,
                     ByMode<double> MiniPump::*member) {
    values.add("ZoneList.pump." + name, 2, [&zones, member](const Values::Indices& i) {
        return PublicValue(at(at(zones, i[0]).pump.*member, i[1]));
    });
}

void addLoads(Values& values, const Zones& zones) {
    values.add("ZoneList.gains", 3, [&zones](const Values::Indices& i) {
        return PublicValue(at(at(at(zones, i[0]).gains, i[1]), i[2]));
    });
    values.add("ZoneList.hours", 2, [&zones](const Values::Indices& i) {
        return asValue(at(at(zones, i[0]).hours, i[1]));
    });
    addOfZone(values, zones, "days", &Zone::days);
    addOfZone(values, zones, "name", &Zone::name);
    addOfZone(values, zones, "title", &Zone::title);
}

void addPump(Values& values, const Zones& zones) {
    addOfPump(values, zones, "customPump", &MiniPump::customPump);
    addOfPump(values, zones, "number", &MiniPump::number);
    addOfPump(values, zones, "nominalFlow", &MiniPump::nominalFlow);
    addOfPump(values, zones, "pumpType", &MiniPump::pumpType);
    addOfPump(values, zones, "name", &MiniPump::name);
    addOfPump(values, zones, "mfgName", &MiniPump::mfgName);
    addOfPump(values, zones, "seriesName", &MiniPump::seriesName);
    addOfPumpByMode(values, zones, "efficiency", &MiniPump::efficiency);
    addOfPumpByMode(values, zones, "watts", &MiniPump::watts);
    addOfPumpByMode(values, zones, "capacity", &MiniPump::capacity);
    addOfPumpByMode(values, zones, "flowRate", &MiniPump::flowRate);
    addOfPumpByMode(values, zones, "plf", &MiniPump::plf);
    addOfPumpByMode(values, zones, "elt", &MiniPump::elt);
    addOfPumpByMode(values, zones, "elf", &MiniPump::elf);
}

}  // namespace

void addZoneValues(Values& values, const SharedZones& zones) {
    addLoads(values, zones);
    addPump(values, zones);
}

}  // namespace varnholt

// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/zone_values.h"

#include "basis/run_time_error.h"

namespace varnholt {
namespace {

TEST(ZoneValues, ReadAsScriptsWriteThem) {
    std::vector<Zone> list(2);
    list[1].gains[3][heating] = 12.5;
    list[1].hours[cooling] = 900;
    list[1].title = "Gym";
    list[1].pump.plf[heating] = 0.75;
    list[1].pump.number = 3;
    const SharedZones zones = list;
    Values values;
    addZoneValues(values, zones);

    EXPECT_EQ(values.read("ZoneList(1).gains(3,1)"), PublicValue(12.5));
    EXPECT_EQ(values.read("ZoneList(1).hours(0)"), PublicValue(900.0));
    EXPECT_EQ(values.read("ZoneList(1).title"), PublicValue(std::string("Gym")));
    EXPECT_EQ(values.read("ZoneList(1).pump.plf(1)"), PublicValue(0.75));
    EXPECT_EQ(values.read("ZoneList(1).pump.number"), PublicValue(3.0));
    EXPECT_EQ(values.read("ZoneList(0).days"), PublicValue(7.0));
}

TEST(ZoneValues, OutsideTheListAreRunTimeErrorNine) {
    const SharedZones zones = std::vector<Zone>(2);
    Values values;
    addZoneValues(values, zones);
    for (const char* path : {"ZoneList(2).days", "ZoneList(0).gains(4,0)", "ZoneList(0).gains(0,2)",
                             "ZoneList(0).pump.elt(2)"}) {
        SCOPED_TRACE(path);
        try {
            values.read(path);
            ADD_FAILURE() << "no error";
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.number(), 9);
        }
    }
}

}  // namespace
}  // namespace varnholt

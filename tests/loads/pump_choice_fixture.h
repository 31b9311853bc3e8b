// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "loads/loads_fixture.h"

namespace varnholt {

/// A Zone Manager whose catalogue can be given further series.
class PumpChoiceTest : public LoadsTest {
 protected:
    const MiniPump& pumpOf(std::size_t zone) const { return window.ZoneList().at(zone).pump; }
    /// Chooses an entry by its text.
    void choose(const std::string& combo, const std::string& entry) {
        const auto& items = window.control(combo).items();
        const auto found = std::find(items.begin(), items.end(), entry);
        ASSERT_NE(found, items.end()) << entry;
        window.choose(combo, static_cast<int>(found - items.begin()));
    }
    /// Makes another series the active one.
    void makeActive(const std::string& maker, const std::string& series) {
        window.InitializeHeatPumpLists();
        choose("HPManufacturerCombo", maker);
        choose("HPSeriesCombo", series);
    }
    /// Adds a series of these models to the catalogue and makes it the active one.
    void makeActive(const std::string& name, const std::vector<pump>& models) {
        write({{name, "f_" + name, {2025, 1, 2}}, {"Third", "", "", "", ""}, models});
        makeActive("Third", name);
    }

    frmZoneManage& window = manager();
};

}  // namespace varnholt

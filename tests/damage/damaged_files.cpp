// SPDX-License-Identifier: GPL-3.0-or-later
#include "damage/damaged_files.h"

#include <algorithm>
#include <cstdlib>

namespace varnholt {
namespace {

using Attempt = std::function<bool(const std::string&, const std::string&)>;

const std::vector<std::string> openProject{"pick work files/case.vht",
                                           "click Varnmain.mnuFileOpen"};
const std::vector<std::string> openZones{"click Varnmain.mnuZoneManage", "pick zones/case.zon",
                                         "click frmZoneManage.LOOpenCommand"};
// The loads window reads the catalogue, and the editor what is chosen in it.
const std::vector<std::string> openCatalogue{"click Varnmain.mnuZoneManage",
                                             "click Varnmain.EditAdd"};

/// From byte to byte: all of them, or some.
std::size_t stepThrough(std::size_t size, const DamageChosen& chosen) {
    if (chosen.values == 0) return std::max<std::size_t>(1, size / chosen.sampled);
    // A prime, so that no line length hides anything.
    constexpr std::size_t ofLarge = 17;
    return size <= chosen.small ? 1 : ofLarge;
}

/// The values come in the order of what they find: signs of numbers and lines first.
std::string valuesFor(char present, int count) {
    static const std::string first("\0\n\r9-e, \xFF", 9);
    std::string values;
    for (const char value : first)
        if (value != present) values += value;
    for (int value = 0; value < 256 && static_cast<int>(values.size()) < count; ++value) {
        const char each = static_cast<char>(value);
        if (each != present && values.find(each) == std::string::npos) values += each;
    }
    return values.substr(0, static_cast<std::size_t>(count));
}

}  // namespace

const std::vector<FileOfAKind>& filesOfAllKinds() {
    static const std::vector<FileOfAKind> kinds{
        {"Borehole", "tests/files/projects/version_3.0.vht", "work files/case.vht", openProject},
        {"OldBorehole", "tests/files/projects/version_1.0.vht", "work files/case.vht", openProject},
        {"Horizontal", "examples/trench-office.vht", "work files/case.vht", openProject},
        {"SurfaceWater", "tests/files/projects/surface_water_3.0.vht", "work files/case.vht",
         openProject},
        {"Zones", "tests/files/zones_3.0.zon", "zones/case.zon", openZones},
        {"OldZones", "tests/files/zones_1.0.zon", "zones/case.zon", openZones},
        {"Defaults",
         "tests/files/projects/vhtbh_3.0.ini",
         "vhtbh.ini",
         {"click Varnmain.NewBorehole"}},
        {"Index", "resources/pumps/PumpList.vht", "pumps/PumpList.vht", openCatalogue},
        {"Series",
         "resources/pumps/nf_meadow.hpd",
         "pumps/nf_meadow.hpd",
         {"click Varnmain.mnuZoneManage", "click Varnmain.EditAdd", "choose frmHPEdit.MfgCombo #2",
          "choose frmHPEdit.SeriesCombo #1"}},
        {"OldSeries",
         "tests/files/old_brook.hpd",
         "pumps/nf_meadow.hpd",
         {"click Varnmain.mnuZoneManage", "click Varnmain.EditAdd", "choose frmHPEdit.MfgCombo #2",
          "choose frmHPEdit.SeriesCombo #1"}},
    };
    return kinds;
}

DamageChosen damageChosen(bool inWindows) {
    DamageChosen chosen;
    if (const char* values = std::getenv("VARNHOLT_DAMAGE"))
        chosen.values = std::clamp(std::atoi(values), 0, inWindows ? 1 : 255);
    if (inWindows) chosen.sampled = 10;
    return chosen;
}

std::size_t forEachDamage(const std::string& whole, const DamageChosen& chosen,
                          const Attempt& attempt) {
    const std::size_t step = stepThrough(whole.size(), chosen);
    const int values = std::max(chosen.values, 1);
    std::size_t tried = 0;
    for (std::size_t end = 0; end < whole.size(); end += step, ++tried)
        if (!attempt(whole.substr(0, end), "cut at " + std::to_string(end))) return tried;
    for (std::size_t at = 0; at < whole.size(); at += step) {
        std::string changed = whole;
        // A sample goes through the values from byte to byte.
        const std::string all = valuesFor(whole[at], chosen.values == 0 ? 9 : values);
        for (int i = 0; i < values; ++i, ++tried) {
            const std::size_t which = chosen.values == 0 ? at / step : static_cast<std::size_t>(i);
            changed[at] = all[which % all.size()];
            if (!attempt(changed, "byte " + std::to_string(at) + " is " +
                                      std::to_string(static_cast<unsigned char>(changed[at]))))
                return tried;
        }
    }
    return tried;
}

}  // namespace varnholt

// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/frmAvgBlock.h"

#include "basis/raised_flag.h"
#include "forms/text_numbers/loads.h"
#include "frame/varnmain.h"
#include "loads/representative_pump.h"

namespace varnholt {
namespace {

constexpr ZoneWindowKind averageBlock{.formName = "frmAvgBlock",
                                      .windowExists = &Varnmain::frmAvgBlockWindowExists,
                                      .titleText = Text::averageBlockTitle,
                                      .pumpNameText = Text::representativePumpName,
                                      .hoursText = Text::fullLoadHours,
                                      .listsZones = false,
                                      .linkLight = 8,
                                      .firstUnits = "1.0"};

}  // namespace

frmAvgBlock::frmAvgBlock(Varnmain& main) : ZoneWindow(averageBlock, main) {
    control("LOZoneFrame").setCaption(plainTitle());
}

std::string frmAvgBlock::zoneFrameCaption(const Zone&) const { return plainTitle(); }

MiniPump frmAvgBlock::evaluated(const pump& model, std::int16_t units, const Zone& zone) const {
    return representativePump(model, units, zone.gains, zone.pump, evaluationConditions());
}

/// The same model with the same number and load side, under the conditions as they are now.
void frmAvgBlock::LOUpdatePumpsCommand_Click() {
    const Zone* zone = shownZone();
    if (zone == nullptr || zone->pump.customPump == 1) return;
    const ZoneSeries series = loadSeriesOf(zone->pump, activeSlot);
    const auto model = modelNamed(zone->pump.name, activeSlot);
    if (series == ZoneSeries::loaded && model) {
        const RaisedFlag update(updating), same(samePumpUpdated);
        carryLoadSide(zone->pump);
        attempt([&] {
            SetPumpValues(catalogue.PumpList(activeSlot, *model), zone->pump.number,
                          static_cast<std::size_t>(selectedZone()));
        });
    } else if (series != ZoneSeries::unreadable) {
        tellSeriesMissing(*zone);
    }
    restoreActiveSeries(activeSlot);
}

}  // namespace varnholt

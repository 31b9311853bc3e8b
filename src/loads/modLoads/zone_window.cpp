// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/modLoads/zone_window.h"

#include <utility>

#include "basis/file_system.h"
#include "basis/raised_flag.h"
#include "basis/run_time_error.h"
#include "catalogue/catalogue_values.h"
#include "forms/quantity.h"
#include "forms/text_numbers/loads.h"
#include "forms/text_numbers/pictures.h"
#include "forms/text_numbers/screen_reader.h"
#include "frame/varnmain.h"
#include "loads/link_light.h"
#include "loads/links.h"
#include "loads/modLoads/chart_sentences.h"
#include "loads/zone_values.h"

namespace varnholt {

ZoneWindow::ZoneWindow(const ZoneWindowKind& kind, Varnmain& main)
    : LoadsWindow(kind.formName, main), kind_(kind) {
    main.*kind.windowExists = true;
    setCaption(text(kind_.titleText));
    InitializeVariables();
    registerValues();
    setFieldManner();
    addControls();
    hookTexts();
    hookCommands();
    hookPumpCommands();
}

void ZoneWindow::InitializeVariables() {
    document_.file.folder = joinPath(main().MainDirectory, "zones");
    document_.information.currentDate = document_.information.projectStartDate = platform().today();
}

void ZoneWindow::registerValues() {
    Values& values = publicValues();
    addZoneValues(values, document_.data.zones);
    addZoneValues(values, "zoneTemp", zoneTemp);
    registerConditions();
    values.add("designLinkID", 0, [this](const Values::Indices&) {
        return PublicValue(static_cast<double>(links().designLinkID()));
    });
    values.add("zoneCount", &document_.zoneCount);
    values.add("zoneNumber", 0, [this](const Values::Indices&) {
        return PublicValue(static_cast<double>(zoneNumber()));
    });
    values.add("style", &style);
    values.add("workingFileCheck", &document_.file.exists);
    values.add("workingZoneFile", &document_.file.name);
    values.add("workingZoneDirectory", &document_.file.folder);
    values.add("zoneSaveCancelled", &zoneSaveCancelled);
    values.add("settingUnits", &settingUnits);
    values.add("settingItems", &settingItems);
    values.add("beenHere", &beenHere);
    values.add("insideChange", &insideChange);
    values.add("updating", &updating);
    values.add("samePumpUpdated", &samePumpUpdated);
    values.add("returningFromDetails", &returningFromDetails);
    values.add("selectingPump", &selectingPump);
    values.add("LOPrintOption", &LOPrintOption);
    values.add("counter", &counter);
    values.add("FileName", &FileName);
    values.add("directoryName", &directoryName);
    values.add("currentFileCheck", &currentFileCheck);
    addInformationValues(values, document_.information);
}

void ZoneWindow::registerConditions() {
    Values& values = publicValues();
    const DesignConditions& conditions = document_.data.conditions;
    values.add("flowRate", &conditions.flowRate);
    values.addArray("inletTemp", &conditions.inletTemp);
    values.addArray("minflowRate", &minflowRate);
    values.addArray("inletLoadAirTemp", &conditions.inletLoadAirTemp);
    values.addArray("inletLoadWaterTemp", &conditions.inletLoadWaterTemp);
    values.addArray("temporaryInletTemp", &temporaryInletTemp);
    values.addArray("temporaryInletFlow", &temporaryInletFlow);
    addCatalogueValues(values, catalogue);
}

void ZoneWindow::load() {
    startInUnitsOfMenu();
    InitializeHeatPumpLists();
    SetFluidsTabbedPaneSwitchVariables();
    forgetZoneFile();
    showZones(-1);
}

void ZoneWindow::MetricCheck_Click() {
    const RaisedFlag writing(settingUnits);
    main().unitsSwitched(*this);
    switchLinkedUnits();
    SetFluidsTabbedPaneSwitchVariables();
    displayZone();
    rebuildSummary();
}

bool ZoneWindow::queryClose() { return CheckForSave(); }

void ZoneWindow::unloaded() {
    LoadsWindow::unloaded();
    main().*kind_.windowExists = false;
    // The window itself may be there until another one opens.
    openFile_.lock.release();
}

void ZoneWindow::setChanged(bool changed) {
    changed_ = changed;
    control("LOSaveCommand").setEnabled(changed);
}

std::string ZoneWindow::plainTitle() const { return text(kind_.titleText); }

void ZoneWindow::setLight(bool on) {
    element("imgLinkLight", kind_.linkLight).setVisible(on);
    element("imgLinkLight", 6).setVisible(!on);
}

void ZoneWindow::showHoursAndDays(bool shown) {
    for (const char* name : {"LOHoursText(0)", "LOHoursText(1)", "LOLoadsLabel(1)",
                             "LODaysperWeekText", "LODaysperWeekLabel"})
        control(name).setVisible(shown);
}

EvaluationConditions ZoneWindow::evaluationConditions() const {
    return {conditions(),  temporaryInletTemp,   temporaryInletFlow, updating,
            selectingPump, returningFromDetails, samePumpUpdated};
}

void ZoneWindow::attempt(const std::function<void()>& command) {
    try {
        command();
    } catch (const RunTimeError& error) {
        show(MessageIcon::exclamation, error.message());
    }
}

LoadsChart ZoneWindow::loadsChart() const {
    const Zone* zone = shownZone();
    if (zone == nullptr) return {};
    LoadsChart chart = chartOf(zone->gains, units());
    for (const Mode m : modes)
        if (zone->pump.capacity[m] > 0)
            chart.capacity[m] = quantities::load.shown(zone->pump.capacity[m], units());
    return chart;
}

std::string ZoneWindow::descriptionOf(const std::string& image) const {
    if (image == "LOLoadsChart")
        return describe(loadsChart(), loadsCaptions(units(), texts()), texts());
    if (image == "LOPumpChart") return describe(pumpPicture(), texts());
    if (const auto light = linkLightOf(image))
        return text(*light == LinkPartner::none ? Text::notLinked : Text::linkedWithDesign);
    return LoadsWindow::descriptionOf(image);
}

PumpPicture ZoneWindow::pumpPicture() const {
    PumpPicture picture;
    picture.pump = pumpChart();
    for (const Mode mode : modes)
        picture.designWater[mode] =
            quantities::temperature.shown(conditions().inletTemp[mode], units());
    picture.temperatureUnit = text(units() == UnitSystem::metric ? Text::temperatureUnitsMetric
                                                                 : Text::temperatureUnitsEnglish);
    picture.capacityUnit = loadsCaptions(units(), texts()).unit;
    picture.powerUnit = withoutBrackets(text(Text::loadUnitsMetric));
    return picture;
}

PumpChart ZoneWindow::pumpChart() const {
    const int chosen = control("HPPumpList").index();
    const auto models = catalogue.models(activeSlot);
    if (chosen < 0 || static_cast<std::size_t>(chosen) >= models.size()) return {};
    return chartOf(models[static_cast<std::size_t>(chosen)], units());
}

}  // namespace varnholt

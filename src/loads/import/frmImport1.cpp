// SPDX-License-Identifier: GPL-3.0-or-later
// The importer's window: what it holds and shows.
#include "loads/import/frmImport1.h"

#include <utility>

#include "basis/number_text.h"
#include "basis/raised_flag.h"
#include "basis/run_time_error.h"
#include "forms/quantity.h"
#include "forms/text_numbers/calculators.h"
#include "forms/text_numbers/import.h"
#include "forms/text_numbers/loads.h"
#include "frame/varnmain.h"
#include "loads/import/design_day.h"
#include "loads/import/simulation_file.h"
#include "loads/modLoads/chart_sentences.h"

namespace varnholt {
namespace {

/// Colours of a mode: of what is typed, and of what follows from it.
struct ModeColours {
    int values, factors;
};
constexpr ByMode<ModeColours> modeColours{{{colours::coolingCells, colours::coolingFactors},
                                           {colours::heatingCells, colours::heatingFactors}}};

constexpr std::size_t totalsRow = 12;  // index of the last row

double ofMonths(const ImportedLoads& loads, Months MonthlyLoads::*member,
                const Values::Indices& i) {
    return at(at(loads.years, i[1]).*member, i[0]);
}

}  // namespace

frmImport1::frmImport1(Varnmain& main, std::shared_ptr<KeptImport> kept)
    : ChildWindow("frmImport1", main), kept_(std::move(kept)) {
    main.frmImport1Exists = true;
    setCaption(text(Text::importTitle));
    registerValues();
    addControls();
    hookCommands();
    hookTable();
}

void frmImport1::registerValues() {
    Values& values = publicValues();
    const auto months = [&](const char* name, Months MonthlyLoads::*member) {
        values.add(name, 2, [this, member](const Values::Indices& i) {
            return PublicValue(ofMonths(loads_, member, i));
        });
    };
    const auto year = [&](const char* name, double MonthlyLoads::*member) {
        values.add(name, 1, [this, member](const Values::Indices& i) {
            return PublicValue(at(loads_.years, i[0]).*member);
        });
    };
    months("totalLoads", &MonthlyLoads::totalLoads);
    months("peakLoads", &MonthlyLoads::peakLoads);
    year("yearTotal", &MonthlyLoads::yearTotal);
    year("peakMax", &MonthlyLoads::peakMax);
    year("eqvHours", &MonthlyLoads::eqvHours);
    values.add("importfileName", &loads_.importfileName);
    values.add("fileType", &loads_.fileType);
}

void frmImport1::load() {
    startInUnitsOfMenu();
    showCaptions();
    showAll();
}

void frmImport1::unloaded() { main().frmImport1Exists = false; }

void frmImport1::MetricCheck_Click() {
    main().unitsSwitched(*this);
    showCaptions();
    showAll();
}

StatePointer frmImport1::state() const { return std::make_shared<StateOf<ImportedLoads>>(loads_); }

void frmImport1::restore(const DocumentState& earlier) {
    const ImportedLoads& wanted = static_cast<const StateOf<ImportedLoads>&>(earlier).value;
    change([&](ImportedLoads& loads) { loads = wanted; });
}

void frmImport1::actionEnds(const UserAction& action) {
    if (main().isOpen(this)) showTransfer();
    ChildWindow::actionEnds(action);
}

void frmImport1::Import1_Click(const std::string& fileName, std::int16_t fileType) {
    loads_.importfileName = fileName;
    loads_.fileType = fileType;
    showAll();
}

void frmImport1::TransferValuesToImport1(const ByMode<MonthlyLoads>& years) {
    touch();
    change([&](ImportedLoads& loads) {
        loads.years = years;
        loads.peakDays.reset();
    });
}

void frmImport1::change(const std::function<void(ImportedLoads&)>& edit) {
    const ByMode<MonthlyLoads> before = loads_.years;
    edit(loads_);
    for (const Mode m : modes)
        if (!(loads_.years[m] == before[m])) lookedAt_[m] = false;
    showAll();
}

void frmImport1::cmdCoolHeat_Click(Mode mode) {
    mode_ = mode;
    showAll();
}

void frmImport1::showCaptions() {
    const bool metric = units() == UnitSystem::metric;
    element("lblTitle", 5)
        .setCaption(text(metric ? Text::importTotalUnitsMetric : Text::importTotalUnitsEnglish));
    element("lblTitle", 7)
        .setCaption(text(metric ? Text::importPeakUnitsMetric : Text::loadUnitsEnglish));
}

void frmImport1::showAll() {
    showMode();
    showMonths();
    showFactors();
    showField();
    showTransfer();
}

void frmImport1::showMode() {
    const ModeColours& own = modeColours[mode_];
    for (std::size_t i = 0; i <= totalsRow; ++i)
        for (const char* column : {"lblTotal", "lblPeak"})
            control(elementName(column, i)).setBackcolor(own.values);
    for (std::size_t i = 0; i < monthsOfYear; ++i)
        control(elementName("lblPLF", i)).setBackcolor(own.factors);
    control("lblHours").setBackcolor(own.values);
    control("txtImport1").setBackcolor(own.values);
    for (const Mode m : modes) control(elementName("cmdCoolHeat", m)).setChecked(m == mode_);
    const std::string& name = loads_.importfileName;
    element("lblTitle", 9).setCaption(name.empty() ? " " : name);
    const auto type = static_cast<SimulationFileType>(loads_.fileType);
    element("lblTitle", 10)
        .setCaption(type == SimulationFileType::systemAnalyzer ? text(Text::systemAnalyzer)
                    : type == SimulationFileType::trane700     ? text(Text::trane700)
                                                               : " ");
}

std::string frmImport1::shownTotal(double total) const {
    return formatNumber(quantities::load.shown(total, units()), "###0.0");
}

std::string frmImport1::shownPeak(double peak) const {
    return formatNumber(quantities::load.shown(peak, units()) / btuPerMBtu, "###0.0");
}

void frmImport1::showMonths() {
    const MonthlyLoads& year = shownYear();
    for (std::size_t month = 0; month < monthsOfYear; ++month) {
        control(elementName("lblTotal", month)).setCaption(shownTotal(year.totalLoads[month]));
        control(elementName("lblPeak", month)).setCaption(shownPeak(year.peakLoads[month]));
    }
    control(elementName("lblTotal", totalsRow)).setCaption(shownTotal(year.yearTotal));
    control(elementName("lblPeak", totalsRow)).setCaption(shownPeak(year.peakMax));
}

/// The load factors of the mode on screen; that of its peak month is what a transfer takes.
void frmImport1::showFactors() {
    const MonthlyLoads& year = shownYear();
    const std::optional<std::size_t> peak = year.peakMonth();
    control("lblHours").setCaption(formatNumber(year.eqvHours, "###0"));
    for (std::size_t month = 0; month < monthsOfYear; ++month) {
        control(elementName("lblPeak", month)).setBold(peak == month);
        control(elementName("lblPLF", month))
            .setBold(peak == month)
            .setCaption(formatNumber(year.factorOf(month), "###0.00"));
    }
    main().import1TransferPLFm[mode_] = year.peakMonthFactor();
    lookedAt_[mode_] = true;
}

/// The field shows its cell, unless the user is writing in it.
void frmImport1::showField() {
    if (typing_) return;
    const bool total = cell_.column == Column::total;
    control("txtImport1")
        .setText(control(elementName(total ? "lblTotal" : "lblPeak", cell_.month)).caption())
        .unitsIn(total ? "lblTitle(5)" : "lblTitle(7)")
        .setAccessibleName(control(elementName("lblEqvHours", cell_.month)).caption() + ", " +
                           element("lblTitle", total ? 1 : 2).caption());
}

std::string frmImport1::descriptionOf(const std::string& image) const {
    if (image == "imgMonths") return describe(monthsChart(), texts());
    if (image == "imgDesignDay")
        return describe(dayChart(), loadsCaptions(units(), texts()), texts());
    return {};
}

MonthsChart frmImport1::monthsChart() const {
    MonthsChart chart;
    chart.mode = mode_;
    const MonthlyLoads& year = shownYear();
    for (std::size_t month = 0; month < monthsOfYear; ++month) {
        chart.energies[month] = quantities::load.shown(year.totalLoads[month], units());
        chart.peaks[month] = quantities::load.shown(year.peakLoads[month], units()) / btuPerMBtu;
        chart.names[month] = control(elementName("lblEqvHours", month)).caption();
    }
    if (year.peakMax > 0) chart.peakMonth = year.peakMonth();
    chart.energyUnit = control("lblTitle(5)").caption();
    chart.peakUnit = control("lblTitle(7)").caption();
    return chart;
}

LoadsChart frmImport1::dayChart() const {
    std::array<ByMode<double>, timeBlocks> gains{};
    for (const Mode m : modes) {
        const DayLoads day = dayOf(m);
        for (std::size_t block = 0; block < timeBlocks; ++block) gains[block][m] = day[block];
    }
    return chartOf(gains, units());
}

}  // namespace varnholt

// SPDX-License-Identifier: GPL-3.0-or-later
// The reports of a borehole design: what the window shows, and what they add to it.
#include <gtest/gtest.h>

#include <algorithm>

#include "basis/number_text.h"
#include "design/borehole_window.h"
#include "loads/link_fixture.h"
#include "persistence/temporary_folder.h"
#include "reports/install.h"
#include "reports/report_shelf.h"

namespace varnholt {
namespace {

class ProjectReports : public BoreholeWindow {
 protected:
    ProjectReports() {
        shelf.dayIsGiven = true;
        installReports(main, shelf);
    }

    const Report& print(int option) {
        platform.onModal = [option](Form& form) {
            form.click(elementName("PrintOption", static_cast<std::size_t>(option)));
            form.click("cmdOK");
        };
        main.activate(*design);
        main.click("mnuFilePrint");
        return *shelf.last();
    }
    const Report& detailed() { return print(0); }
    const Report& concise() { return print(1); }

    static std::vector<std::string> textsOf(const Report& report, const std::string& control) {
        std::vector<std::string> texts;
        for (const ReportEntry& entry : entriesOf(report))
            if (entry.control == control) texts.push_back(entry.text);
        return texts;
    }
    static std::string textOf(const Report& report, const std::string& control) {
        const std::vector<std::string> texts = textsOf(report, control);
        return texts.size() == 1 ? texts.front() : "printed " + std::to_string(texts.size());
    }
    static bool prints(const Report& report, const std::string& control) {
        return !textsOf(report, control).empty();
    }

    TemporaryFolder folder;
    ReportShelf shelf{folder / "Data/vht.db"};
};

TEST_F(ProjectReports, AreAskedForInTwoForms) {
    platform.onModal = [](Form& form) {
        EXPECT_EQ(form.formName(), "frmPROptions");
        EXPECT_EQ(form.caption(), "[9321]");
        EXPECT_EQ(form.control("ProjectReportSelectionFrame").caption(), "[9322]");
        EXPECT_EQ(form.control("PrintOption(0)").caption(), "[9323]");
        EXPECT_EQ(form.control("PrintOption(1)").caption(), "[9324]");
        EXPECT_TRUE(form.control("PrintOption(0)").checked());
        form.click("cmdCancel");
    };
    main.click("tbrMain(5)");
    EXPECT_FALSE(shelf.hasReport());
    EXPECT_EQ(concise().object, "rptBHShort");
    EXPECT_EQ(main.PrintOption, 1);
    EXPECT_EQ(detailed().object, "rptBH");
    EXPECT_EQ(main.PrintOption, 0);
}

TEST_F(ProjectReports, AreCalledAfterTheKindOfDesign) {
    texts.known[2001] = "Borehole Design Project";
    texts.known[9101] = "Report";
    for (const int option : {0, 1}) {
        EXPECT_EQ(print(option).caption, "Borehole Design Project Report");
        EXPECT_EQ(textOf(print(option), "TitleLabel"), "Borehole Design Project Report");
    }
}

TEST_F(ProjectReports, ShowTheResultsAsTheWindowDoes) {
    takeZones(handCheckZones());
    calculate();
    const std::pair<const char*, const char*> rows[] = {
        {"TotalLength", "CATotalLengthLabel"},
        {"BoreholeNumber", "CABoreholeNumberLabel"},
        {"BoreholeLength", "CABoreholeLengthLabel"},
        {"UnitInlet", "CAUnitInletLabel"},
        {"UnitOutlet", "CAUnitOutletLabel"},
        {"TotalCapacity", "CATotalCapacityLabel"},
        {"PeakLoad", "CAPeakLoadLabel"},
        {"PeakDemand", "CAPeakDemandLabel"},
        {"PumpCOP", "CAPumpCOPLabel"},
        {"SystemCOP", "CASystemCOPLabel"},
        {"SystemFlowRate", "CAFlowRateLabel"},
        {"GroundTemperatureChange", "CASoilTempChangeLabel"}};
    for (const bool metric : {false, true}) {
        design->switchUnits(metric ? UnitSystem::metric : UnitSystem::english);
        for (const int option : {0, 1}) {
            const Report& report = print(option);
            for (const auto& [stem, label] : rows) {
                SCOPED_TRACE(stem);
                const std::string name = stem;
                EXPECT_EQ(textOf(report, name + "CoolingTextLabel"),
                          captionOf(std::string(label) + "(0)"));
                EXPECT_EQ(textOf(report, name + "HeatingTextLabel"),
                          captionOf(std::string(label) + "(1)"));
                if (name.find("COP") == std::string::npos) {
                    EXPECT_EQ(textOf(report, name + "Label"),
                              captionOf(std::string(label) + "(2)"));
                }
            }
            EXPECT_EQ(textOf(report, "PumpCOPLabel"), metric ? "[2116]" : "[9102]");
            EXPECT_EQ(textOf(report, "SystemCOPLabel"), metric ? "[2118]" : "[9103]");
            EXPECT_EQ(textOf(report, "CalculationResultsLabel"), "[9104]");
            EXPECT_EQ(textOf(report, "CoolingLabel"), "[2102]");
        }
    }
}

TEST_F(ProjectReports, TellTheGroundAtTheEndOfThePredictionTime) {
    takeZones(handCheckZones());
    calculate();
    // The undisturbed ground and the penalty, which is the change on show with its sign turned.
    const auto longTerm = [this](int mode, bool metric) {
        const double ground = 62 + value("GetTemperaturePenalty(" + std::to_string(mode) + ")");
        return formatNumber(metric ? (ground - 32) * 5 / 9 : ground, "###0.0");
    };
    ASSERT_NE(value("GetTemperaturePenalty(0)"), 0);
    const Report english = detailed();
    EXPECT_EQ(textOf(english, "LongTermSoilTemperaturesLabel"), "[9317]");
    EXPECT_EQ(textOf(english, "LongTermSoilTemperaturesCoolingTextLabel"),
              longTerm(0, false) + " [2305]");
    inMetric();
    EXPECT_EQ(textOf(concise(), "LongTermSoilTemperaturesHeatingTextLabel"),
              longTerm(1, true) + " [2304]");
}

TEST_F(ProjectReports, PrintTheInputsWithTheirUnits) {
    type("SOGroundTempText", "55");
    type("INCommentsRichTextBox", "Drill in spring.");
    design->choose("FLFluidTypeCombo", 3);
    typeAndLeave("FLPercentAntifreezeText", "20");
    const std::pair<const char*, const char*> expected[] = {
        {"FlowRatePerTonLabel", "[3213]"},
        {"FlowRatePerTonTextLabel", "3.0 [2210]"},
        {"FluidTypeLabel", "[2003]"},
        {"FluidTypeTextLabel", "20% Methanol"},
        {"SpecificHeatTextLabel", "1.00 [2218]"},
        {"DensityTextLabel", "62.4 [2221]"},
        {"GroundTempTextLabel", "55 [2305]"},
        {"ThermalConductivityTextLabel", "1.30 [2447]"},
        {"ThermalConductivityLabel", "[2445]"},
        {"ThermalDiffusivityTextLabel", "0.75 [2309]"},
        {"ThermalDiffusivityLabel", "[5139]"},
        {"ArrangementTextLabel", "6 x 4"},
        {"BoreholeSeparationTextLabel", "20.0 [2512]"},
        {"BoresPerCircuitTextLabel", "2"},
        {"TimeTextLabel", "10.0 [2513]"},
        {"CirculationPumpPowerTextLabel", "0.0 [2611]"},
        {"AdditionalPowerTextLabel", "0.0 [2611]"},
        {"AdditionalPowerLabel", "[2604]"},
        {"CommentsTextLabel", "Drill in spring."},
        {"SoilLabel", "[2004]"},
        {"PipingLabel", "[3002]"},
        {"ExtrakWLabel", "[2007]"},
        {"PatternLabel", "[2006]"},
        {"PredictionTimeLabel", "[2509]"},
        {"LoadsFileLabel", "[9107]"},
        {"LoadsFilenameLabel", ""}};
    for (const int option : {0, 1})
        for (const auto& [control, text] : expected)
            EXPECT_EQ(textOf(print(option), control), text) << control;
    EXPECT_EQ(textOf(detailed(), "FlowTypeTextLabel"),
              BoreholeWindow::textOf("PIPipeResistanceCombo(0)") + " - " +
                  BoreholeWindow::textOf("PIPipeResistanceCombo(1)"));
    EXPECT_EQ(textOf(detailed(), "PipeSizeTextLabel"),
              BoreholeWindow::textOf("PIPipeDiameterCombo"));
    EXPECT_EQ(textOf(detailed(), "ConfigurationTextLabel"), "[2430]");
}

TEST_F(ProjectReports, KeepTheProjectBlockAndTheSecondHeadingForTheDetailedForm) {
    type("INProjectNameText", "School");
    texts.known[9105] = "Input Parameters";
    texts.known[9111] = " (Cont.)";
    EXPECT_EQ(textOf(detailed(), "ProjectNameTextLabel"), "School");
    EXPECT_EQ(textOf(detailed(), "InputParametersContLabel"), "Input Parameters (Cont.)");
    EXPECT_EQ(textOf(detailed(), "PageNumberLabel"), "1 / 1");
    EXPECT_FALSE(prints(concise(), "ProjectNameTextLabel"));
    EXPECT_FALSE(prints(concise(), "InputParametersContLabel"));
    EXPECT_FALSE(prints(concise(), "PageNumberLabel"));
    EXPECT_TRUE(prints(concise(), "InputParametersLabel"));
}

TEST_F(ProjectReports, LeaveTheHeatPumpBlockEmptyWithoutALink) {
    for (const char* control :
         {"ManufacturerTextLabel", "SeriesTextLabel", "WALoadTempCoolLabel", "WALoadTempHeatLabel",
          "WWLoadTempCoolLabel", "WWLoadTempHeatLabel"})
        EXPECT_EQ(textOf(detailed(), control), "") << control;
    EXPECT_EQ(textOf(detailed(), "HeatPumpLabel"), "[2008]");
    EXPECT_EQ(textOf(detailed(), "WaterToAirLabel"), "[2862]:");
    EXPECT_EQ(textOf(detailed(), "WaterToWaterLabel"), "[2863]:");
}

TEST_F(ProjectReports, TakeTheLoadTemperaturesOfTheLinkedLoads) {
    auto window = std::make_unique<PlainLoads>("frmZoneManage", main);
    PlainLoads& loads = *window;
    main.open(std::move(window));
    loads.data().activeSeries = "MakerSeries";
    loads.edit().file.name = "school.zon";
    design->joinLoads(loads);
    design->TransferLoadsVariablesIn();
    EXPECT_EQ(textOf(detailed(), "WALoadTempCoolLabel"), "67.0 [2880]");
    EXPECT_EQ(textOf(detailed(), "WWLoadTempHeatLabel"), "100.0 [2880]");
    // The catalogue at hand lists no series: the name stands as it is.
    EXPECT_EQ(textOf(detailed(), "SeriesTextLabel"), "MakerSeries");
    loads.switchUnits(UnitSystem::metric);
    inMetric();
    EXPECT_EQ(textOf(concise(), "WALoadTempHeatLabel"), "21.1 [2879]");  // 38 x 5 / 9
    EXPECT_EQ(textOf(concise(), "WWLoadTempCoolLabel"), "12.8 [2879]");  // 23 x 5 / 9
}

TEST_F(ProjectReports, PrintTheTowerWhileItTakesAShare) {
    EXPECT_FALSE(prints(detailed(), "OptionalCoolingTowerLabel"));
    std::vector<Zone> zones = handCheckZones();
    for (Zone& zone : zones) zone.hours[heating] = 100;
    takeZones(zones);
    calculate();
    EXPECT_FALSE(prints(detailed(), "LoadBalanceTextLabel"));
    slide(30);
    ASSERT_EQ(value("hybridPercent"), 30);
    for (const int option : {0, 1}) {
        const Report& report = print(option);
        EXPECT_EQ(textOf(report, "OptionalCoolingTowerLabel"), "[2142]");
        EXPECT_EQ(textOf(report, "LoadBalanceLabel"), "[2141]");
        EXPECT_EQ(textOf(report, "LoadBalanceTextLabel"), "30 %");
        EXPECT_EQ(textOf(report, "CondenserCapacityTextLabel"),
                  captionOf("CACondenserCapacityLabel(0)"));
        EXPECT_EQ(textOf(report, "CoolingTowerHoursTextLabel"),
                  captionOf("CACoolingTowerHoursLabel(0)"));
        EXPECT_EQ(textOf(report, "CoolingTowerPumpLabel"), "[2622]");
        EXPECT_EQ(textOf(report, "CoolingTowerFanTextLabel"), "0.0 [2611]");
    }
    calculate();
    EXPECT_FALSE(prints(detailed(), "LoadBalanceTextLabel"));
}

TEST_F(ProjectReports, PrintResultsThatAreOutOfDateAndSaySo) {
    takeZones(handCheckZones());
    calculate();
    EXPECT_FALSE(prints(detailed(), "NoticeLabel"));
    const std::string length = captionOf("CATotalLengthLabel(0)");
    type("SOGroundTempText", "58");
    EXPECT_EQ(textOf(detailed(), "TotalLengthCoolingTextLabel"), length);
    EXPECT_EQ(textOf(detailed(), "NoticeLabel"), "[9130]");
    EXPECT_EQ(textOf(concise(), "NoticeLabel"), "[9130]");
    calculate();
    EXPECT_FALSE(prints(detailed(), "NoticeLabel"));
}

TEST_F(ProjectReports, ChangeNothingInTheWindow) {
    takeZones(handCheckZones());
    calculate();
    type("SOGroundTempText", "58");
    const auto shown = [this] {
        std::vector<std::string> all;
        for (const auto& control : design->controls())
            all.push_back(control->name() + control->text() + control->caption());
        return all;
    };
    const std::vector<std::string> before = shown();
    const bool changed = design->isChanged();
    detailed();
    concise();
    EXPECT_EQ(shown(), before);
    EXPECT_EQ(design->isChanged(), changed);
    EXPECT_TRUE(design->isStale());
}

TEST_F(ProjectReports, DrawTheBoreTheFieldAndTheDayInTheDetailedForm) {
    EXPECT_EQ(detailed().drawings.size(), 2U);  // no loads, no day
    takeZones(handCheckZones());
    EXPECT_EQ(detailed().drawings.size(), 3U);
    EXPECT_TRUE(concise().drawings.empty());
}

TEST_F(ProjectReports, EmphasiseTheModeThatGoverns) {
    takeZones(handCheckZones());
    calculate();
    const bool coolingGoverns = value("GetL(0)") > value("GetL(1)");
    for (const ReportBand& band : detailed().bands)
        for (const ReportRow& row : band.rows)
            for (const ReportItem& item : row.items) {
                if (item.control == "TotalLengthCoolingTextLabel") {
                    EXPECT_EQ(item.strong, coolingGoverns);
                }
                if (item.control == "TotalLengthHeatingTextLabel") {
                    EXPECT_EQ(item.strong, !coolingGoverns);
                }
            }
}

}  // namespace
}  // namespace varnholt

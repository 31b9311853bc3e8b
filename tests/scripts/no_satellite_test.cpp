// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "scripts/script_run.h"

namespace varnholt {
namespace {

/// varnholt-script under a locale number for which there is no satellite.
std::string transcriptWithoutSatellite(const std::string& script) {
    const TemporaryFolder folder;
    std::filesystem::copy(VARNHOLT_SOURCE_DIR "/resources/pumps", folder / "pumps");
    std::ofstream(folder / "a.vscript") << script;
    const std::string command = "cd '" + folder.path() +
                                "' && " VARNHOLT_BIN_DIR
                                "/varnholt-script --locale 9999 --program-folder . a.vscript >out";
    EXPECT_EQ(std::system(command.c_str()), 0);
    return wholeFile(folder / "out");
}

TEST(WithoutASatellite, EveryCaptionIsTheLiteral) {
    for (const char* control :
         {"Varnmain.NewBorehole", "Varnmain.mnuEqvHours", "Varnmain.tbrMain(4).tooltip",
          "frmBHDesign.CATopLabel(0)", "frmBHDesign.CATotalLengthLabel(2)",
          "frmBHDesign.INCityLabel", "frmZoneManage.LOAutoSelectCommand"}) {
        const std::string transcript = transcriptWithoutSatellite(
            "click Varnmain.NewBorehole\nclick Varnmain.mnuZoneManage\n"
            "click frmZoneManage.LONewCommand\nprint " +
            std::string(control) + "\n");
        EXPECT_TRUE(transcript.ends_with(" = \"Error : No Local Data\"\n")) << transcript;
    }
}

TEST(WithoutASatellite, TheLiteralIsTakenForAFontSoThatMetricStandsChecked) {
    EXPECT_EQ(transcriptWithoutSatellite("print Varnmain.Metric.checked\n"),
              "Varnmain.Metric.checked = true\n");
}

TEST(WithoutASatellite, NothingFailsOnTheWholeRoad) {
    const std::string transcript = transcriptWithoutSatellite(
        "click Varnmain.NewBorehole\n"
        "click Varnmain.mnuZoneManage\n"
        "click frmZoneManage.LONewCommand\n"
        "type frmZoneManage.LOGainsText(1) 30\n"
        "type frmZoneManage.LOGainsText(4) 20\n"
        "type frmZoneManage.LOHoursText(0) 900\n"
        "type frmZoneManage.LOHoursText(1) 700\n"
        "click frmZoneManage.LOAutoSelectCommand\n"
        "activate frmBHDesign\n"
        "click Varnmain.mnuLink\n"
        "click frmBHDesign.CACalculateCommand\n"
        "value frmBHDesign.boreLength(0)\n");
    EXPECT_EQ(transcript.find("message"), std::string::npos) << transcript;
    const std::string value = "value frmBHDesign#1.boreLength(0) = ";
    const std::size_t at = transcript.find(value);
    ASSERT_NE(at, std::string::npos) << transcript;
    EXPECT_GT(std::stod(transcript.substr(at + value.size())), 0);
}

}  // namespace
}  // namespace varnholt

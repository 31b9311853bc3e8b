// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <sstream>

#include "basis/run_time_error.h"
#include "persistence/project_fixture.h"
#include "persistence/sample_site.h"

namespace varnholt {
namespace {

class ProjectFile : public ProjectTest {
 protected:
    /// Reads a sample by its bytes alone: no link is looked for.
    frmBHDesign& read(const std::string& name) {
        frmBHDesign& into = newDesign();
        readProjectText(bytesOf(sampleProject(name)), into);
        return into;
    }

    /// What every version holds, as it was written into the samples by hand.
    void expectCommon(const frmBHDesign& d) {
        const ProjectInformation& about = d.information();
        EXPECT_EQ(about.projectName, "Müller School");
        EXPECT_EQ(about.designerName, "A. Designer");
        EXPECT_EQ(about.currentDate, (Date{2024, 3, 5}));
        EXPECT_EQ(about.projectStartDate, (Date{2024, 9, 1}));
        EXPECT_EQ(about.clientName, "Town of Überlingen");
        EXPECT_EQ(about.addressLine1, "1 Main Street");
        EXPECT_EQ(about.addressLine2, "Annexe");
        EXPECT_EQ(about.city, "Stillwater");
        EXPECT_EQ(about.state, "OK");
        EXPECT_EQ(about.zip, "74074");
        EXPECT_EQ(about.country, "");
        EXPECT_EQ(about.phone, "555-1234");
        EXPECT_EQ(about.fax, "555-4321");
        EXPECT_EQ(about.email, "office@example.org");
        EXPECT_EQ(about.comments, "First line\r\n\r\nthird line, with a comma");
        expectSampleSite(d);
        EXPECT_EQ(d.project().remainder.inputFlag, (ByMode<std::int16_t>{1, 7}));
        EXPECT_EQ(d.project().remainder.inputDouble, (ByMode<double>{0, 0.25}));
        EXPECT_EQ(d.project().remainder.numbers, (std::array<double, 3>{1.9, 100, 0}));
        EXPECT_EQ(d.loads().activeSeries, "AcmeSeries A");
        EXPECT_EQ(d.loads().file.name, "school.zon");
        EXPECT_EQ(d.loads().file.folder, "/home/designer/zones");
        EXPECT_EQ(d.loads().zoneNumber, 12);
        EXPECT_EQ(d.results().annualGroundLoad, 3.125);
        EXPECT_EQ(d.results().loads.peakLoad, (ByMode<double>{120.5, 88.25}));
        EXPECT_EQ(d.results().demand.peakDemand, (ByMode<double>{9.75, 8.5}));
        EXPECT_EQ(d.results().cop.heatPumpCOP, (ByMode<double>{4.25, 3.5}));
        EXPECT_EQ(d.results().cop.systemCOP, (ByMode<double>{3.75, 3.25}));
        EXPECT_EQ(d.results().outlet.systemFlow, (ByMode<double>{30.125, 22.0625}));
        EXPECT_EQ(d.results().lengths.boreLength, (ByMode<double>{4321.5, 3876.25}));
        EXPECT_EQ(d.project().remainder.resultFlag, (ByMode<double>{1, 2}));
    }
    void expectNoTower(const frmBHDesign& d) {
        EXPECT_EQ(d.project().tower.hybridPercent, 0);
        EXPECT_EQ(d.project().tower.tower.capacity, 0);
        EXPECT_EQ(d.project().tower.tower.capacityMax, 0);
        EXPECT_EQ(d.project().tower.tower.flow, 0);
        EXPECT_EQ(d.project().tower.tower.hours, 0);
        EXPECT_EQ(d.project().tower.tower.range, 96.25 - 86.5);
        EXPECT_FALSE(d.hybridOn);
        EXPECT_EQ(d.project().extraPower.extraPower, (modCalculations::ExtraPower{}));
        EXPECT_EQ(d.project().extraPower.motorEfficiency, (std::array<double, 3>{85, 85, 85}));
        EXPECT_EQ(d.results().lengths.temperaturePenalty, (ByMode<double>{0, 0}));
    }
    void expectTower(const frmBHDesign& d) {
        EXPECT_EQ(d.project().tower.hybridPercent, 35);
        EXPECT_EQ(d.project().tower.tower.capacity, 64.5);
        EXPECT_EQ(d.project().tower.tower.capacityMax, 66.75);
        EXPECT_EQ(d.project().tower.tower.flow, 13.125);
        EXPECT_EQ(d.project().tower.tower.range, 9.5);
        EXPECT_EQ(d.project().tower.tower.hours, 812.5);
        EXPECT_EQ(d.project().extraPower.motorEfficiency, (std::array<double, 3>{80, 88, 87}));
        EXPECT_EQ(d.results().lengths.temperaturePenalty, (ByMode<double>{2.5, -1.25}));
        EXPECT_EQ(d.project().extraPower.extraPower,
                  (modCalculations::ExtraPower{1.5, 1.25, 0.75, 0.3, 0.25, 0.6, 0.5}));
    }
};

TEST_F(ProjectFile, OfVersionOneOpensWithoutLinkAndWithTowerValuesAtTheirDefaults) {
    for (const char* name : {"version_1.0.vht", "version_1.2.vht"}) {
        SCOPED_TRACE(name);
        const frmBHDesign& d = read(name);
        expectCommon(d);
        EXPECT_EQ(d.loads().linkType, "");
        expectNoTower(d);
    }
}

TEST_F(ProjectFile, OfVersionTwoHasALinkAndNoTower) {
    const frmBHDesign& d = read("version_2.0.vht");
    expectCommon(d);
    EXPECT_EQ(d.loads().linkType, "frmZoneManage");
    expectNoTower(d);
}

TEST_F(ProjectFile, FromVersionTwoPointOneHoldsEverything) {
    for (const char* name : {"version_2.1.vht", "version_3.0.vht"}) {
        SCOPED_TRACE(name);
        const frmBHDesign& d = read(name);
        expectCommon(d);
        EXPECT_EQ(d.loads().linkType, "frmZoneManage");
        expectTower(d);
    }
}

TEST_F(ProjectFile, OfANewerVersionIsReadByTheCurrentOrder) {
    std::string bytes = bytesOf(sampleProject("version_3.0.vht"));
    bytes.replace(bytes.find("3.0"), 3, "9.7");
    frmBHDesign& d = newDesign();
    readProjectText(bytes, d);
    expectCommon(d);
    expectTower(d);
}

TEST_F(ProjectFile, IsWrittenInTheNewestVersion) {
    EXPECT_EQ(projectText(read("version_3.0.vht")), bytesOf(sampleProject("version_3.0.vht")));
    // The older ones differ in encoding, version and what they lack.
    EXPECT_EQ(projectText(read("version_2.1.vht")), bytesOf(sampleProject("version_3.0.vht")));
}

TEST_F(ProjectFile, OfAnyVersionSavedAndReadAgainIsTheSame) {
    for (const char* name : {"version_1.0.vht", "version_1.2.vht", "version_2.0.vht",
                             "version_2.1.vht", "version_3.0.vht"}) {
        SCOPED_TRACE(name);
        const std::string saved = projectText(read(name));
        frmBHDesign& again = newDesign();
        readProjectText(saved, again);
        EXPECT_EQ(projectText(again), saved);
    }
}

TEST_F(ProjectFile, VersionIsTheLastThreeCharactersOfTheFirstLine) {
    // "3.00" would be ".00", a version below 2.0.
    std::string bytes = bytesOf(sampleProject("version_3.0.vht"));
    bytes.replace(bytes.find("3.0"), 3, "3.00");
    frmBHDesign& d = newDesign();
    readProjectText(bytes, d);
    EXPECT_EQ(d.loads().linkType, "");
    expectNoTower(d);
}

TEST_F(ProjectFile, HoldsACommentWithoutALineFeedAsOneLine) {
    frmBHDesign& d = newDesign();
    change(d, [&](BoreholeProject& of) { of.information.comments = "one line"; });
    EXPECT_NE(projectText(d).find("\r\n1\r\none line\r\n85\r\n"), std::string::npos);
}

TEST_F(ProjectFile, HoldsAnEmptyCommentAsOneEmptyLine) {
    frmBHDesign& d = newDesign();
    // Behind the empty address lines and e-mail: the count, the empty line, the inlet temperature.
    EXPECT_NE(projectText(d).find("\r\n\r\n1\r\n\r\n85\r\n"), std::string::npos);
    readProjectText(projectText(d), d);
    EXPECT_EQ(d.information().comments, "");
}

TEST_F(ProjectFile, HoldsTheCommentsLinesAsTheyAre) {
    for (const char* comments :
         {"\r\n", "a\r\n", "\r\nb", "a\r\n\r\n\r\nb", "3\r\n#2026-01-01#", " blanks  "}) {
        frmBHDesign& d = newDesign();
        change(d, [&](BoreholeProject& of) { of.information.comments = comments; });
        const std::string saved = projectText(d);
        frmBHDesign& again = newDesign();
        readProjectText(saved, again);
        EXPECT_EQ(again.information().comments, comments);
    }
}

TEST_F(ProjectFile, HoldsACommentOfTenThousandLines) {
    std::string comments;
    for (int i = 0; i < 9999; ++i) comments += "line " + std::to_string(i) + "\r\n";
    frmBHDesign& d = newDesign();
    change(d, [&](BoreholeProject& of) { of.information.comments = comments; });
    const std::string saved = projectText(d);
    EXPECT_NE(saved.find("\r\n10000\r\nline 0\r\n"), std::string::npos);
    frmBHDesign& again = newDesign();
    readProjectText(saved, again);
    EXPECT_EQ(again.information().comments, comments);
    EXPECT_EQ(projectText(again), saved);
}

TEST_F(ProjectFile, IsReadWithEitherKindOfLineEnd) {
    std::string bytes = bytesOf(sampleProject("version_3.0.vht"));
    std::string feeds = bytes;
    feeds.erase(std::remove(feeds.begin(), feeds.end(), '\r'), feeds.end());
    frmBHDesign& d = newDesign();
    readProjectText(feeds, d);
    EXPECT_EQ(projectText(d), bytes);
}

TEST_F(ProjectFile, TakesAnEmptyOrUnreadableNumberAsZero) {
    std::string bytes = bytesOf(sampleProject("version_3.0.vht"));
    bytes.replace(bytes.find("\r\n86.5\r\n"), 8, "\r\n\r\n");
    bytes.replace(bytes.find("\r\n96.25\r\n"), 9, "\r\nwarm\r\n");
    bytes.replace(bytes.find("\r\n66\r\n"), 6, "\r\n66 degrees\r\n");
    frmBHDesign& d = newDesign();
    readProjectText(bytes, d);
    EXPECT_EQ(d.conditions().inletTemp[cooling], 0);
    EXPECT_EQ(d.results().outlet.outletTemp[cooling], 0);
    EXPECT_EQ(d.conditions().inletLoadAirTemp[cooling], 66);
}

TEST_F(ProjectFile, KeepsValuesThatTheFieldsWouldRefuse) {
    std::string bytes = bytesOf(sampleProject("version_3.0.vht"));
    bytes.replace(bytes.find("\r\n86.5\r\n"), 8, "\r\n-500000\r\n");
    frmBHDesign& d = newDesign();
    readProjectText(bytes, d);
    EXPECT_EQ(d.conditions().inletTemp[cooling], -500000);
}

TEST_F(ProjectFile, KeepsNumbersToTheLastDigit) {
    frmBHDesign& d = newDesign();
    change(d, [&](BoreholeProject& of) { of.soil.groundTemp = 0.1 + 0.2; });
    change(d, [&](BoreholeProject& of) { of.results.edit().lengths.boreLength = {1e300, 5e-324}; });
    frmBHDesign& again = newDesign();
    readProjectText(projectText(d), again);
    EXPECT_EQ(again.project().soil.groundTemp, 0.1 + 0.2);
    EXPECT_EQ(again.results().lengths.boreLength, (ByMode<double>{1e300, 5e-324}));
}

TEST_F(ProjectFile, CutAtAnyByteKeepsTheValuesReadSoFarAndTellsTheEnd) {
    const std::string whole = bytesOf(sampleProject("version_3.0.vht"));
    const auto all = std::count(whole.begin(), whole.end(), '\n');
    frmBHDesign& d = newDesign();
    const std::string before = projectText(d);
    for (std::size_t length = 0; length < whole.size(); ++length) {
        SCOPED_TRACE(length);
        readProjectText(before, d);
        const std::string cut = whole.substr(0, length);
        const auto complete = std::count(cut.begin(), cut.end(), '\n');
        // A last line that is cut short is a line too.
        const auto lines = complete + (cut.empty() || cut.back() == '\n' ? 0 : 1);
        int error = 0;
        try {
            readProjectText(cut, d);
        } catch (const RunTimeError& caught) {
            error = caught.number();
        }
        EXPECT_EQ(error, lines < all ? 62 : 0);
        // In the sample line 4 is the designer, 21 the inlet temperature, 88 the bore length.
        if (complete >= 4) {
            EXPECT_EQ(d.information().designerName, "A. Designer");
        }
        if (complete >= 21) {
            EXPECT_EQ(d.conditions().inletTemp[cooling], 86.5);
        }
        if (lines < 21) {
            EXPECT_EQ(d.conditions().inletTemp[cooling], 85);
        }
        if (lines < 88) {
            EXPECT_EQ(d.results().lengths.boreLength[heating], 0);
        }
        if (complete >= 88) {
            EXPECT_EQ(d.results().lengths.boreLength[heating], 3876.25);
        }
    }
}

TEST_F(ProjectFile, WithAnyByteChangedIsReadOrEndsInAnErrorAndNeverInACrash) {
    const std::string whole = bytesOf(sampleProject("version_3.0.vht"));
    frmBHDesign& d = newDesign();
    int errors = 0;
    for (std::size_t at = 0; at < whole.size(); ++at)
        for (const char byte : {'\0', '\n', '\r', '9', '-', 'e', '.', '#', '\xff', '\x80'}) {
            std::string changed = whole;
            changed[at] = byte;
            try {
                readProjectText(changed, d);
            } catch (const RunTimeError& error) {
                EXPECT_TRUE(error.number() == 62 || error.number() == 6) << error.what();
                ++errors;
            }
        }
    EXPECT_GT(errors, 0);
}

TEST_F(ProjectFile, WithAWholeNumberBeyondSixteenBitsIsAnOverflow) {
    std::string bytes = bytesOf(sampleProject("version_3.0.vht"));
    bytes.replace(bytes.find("\r\n12\r\n3.125"), 4, "\r\n40000");
    frmBHDesign& d = newDesign();
    try {
        readProjectText(bytes, d);
        FAIL() << "no error";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.number(), 6);
    }
    EXPECT_EQ(d.loads().file.name, "school.zon");
    EXPECT_EQ(d.results().annualGroundLoad, 0);
}

TEST_F(ProjectFile, WithAFalseCountOfCommentLinesEndsAtTheEndOfTheFile) {
    for (const char* count : {"30000", "1e300", "99999999999999999999"}) {
        SCOPED_TRACE(count);
        std::string bytes = bytesOf(sampleProject("version_3.0.vht"));
        bytes.replace(bytes.find("\r\n3\r\nFirst"), 3, std::string("\r\n") + count);
        frmBHDesign& d = newDesign();
        EXPECT_THROW(readProjectText(bytes, d), RunTimeError);
        EXPECT_EQ(d.information().email, "office@example.org");
    }
    std::string bytes = bytesOf(sampleProject("version_3.0.vht"));
    bytes.replace(bytes.find("\r\n3\r\nFirst"), 3, "\r\n-1");
    frmBHDesign& d = newDesign();
    EXPECT_NO_THROW(readProjectText(bytes, d));
    EXPECT_EQ(d.information().comments, "");
}

}  // namespace
}  // namespace varnholt

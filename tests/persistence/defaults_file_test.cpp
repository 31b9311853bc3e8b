// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/project_fixture.h"
#include "persistence/sample_site.h"

namespace varnholt {
namespace {

class DefaultsFile : public ProjectTest {
 protected:
    std::string ini() const { return folder / "vhtbh.ini"; }
    void useSample() { writeBytes(ini(), bytesOf(sampleProject("vhtbh_3.0.ini"))); }
};

TEST_F(DefaultsFile, OverlaysTheBuiltInValuesOfANewDesign) {
    useSample();
    const frmBHDesign& d = newDesign();
    EXPECT_EQ(messages(), 0u);
    expectSampleSite(d);
    EXPECT_EQ(d.project().extraPower.motorEfficiency, (std::array<double, 3>{80, 85, 85}));
    EXPECT_EQ(d.loads().activeSeries, "BestSeries B");
    // What the defaults do not hold is as built in.
    EXPECT_EQ(d.project().extraPower.extraPower, (modCalculations::ExtraPower{}));
    EXPECT_EQ(d.information().projectName, "");
    EXPECT_EQ(d.information().currentDate, platform.day);
    EXPECT_EQ(d.loads().linkType, "");
    EXPECT_TRUE(d.isStale());
    EXPECT_EQ(d.control("FLInletTempText(0)").text(), "86.5");
}

TEST_F(DefaultsFile, SetsTheCoolingRangeFromTheTemperatures) {
    useSample();
    EXPECT_EQ(newDesign().project().tower.tower.range, 96.25 - 86.5);
}

TEST_F(DefaultsFile, IsNoErrorWhenItIsAbsent) {
    const frmBHDesign& d = newDesign();
    EXPECT_EQ(messages(), 0u);
    EXPECT_EQ(d.conditions().inletTemp, (ByMode<double>{85, 50}));
}

TEST_F(DefaultsFile, IsRewrittenByEverySaveOfAProject) {
    frmBHDesign& first = newDesign();
    first.type("SOGroundTempText", "55");
    saveAs(first, "work files/first.vht");
    EXPECT_EQ(newDesign().project().soil.groundTemp, 55);
    main.activate(first);
    first.type("SOGroundTempText", "51");
    main.click("mnuFileSave");
    EXPECT_EQ(newDesign().project().soil.groundTemp, 51);
}

TEST_F(DefaultsFile, BringsTheBuiltInValuesBackWhenItIsDeleted) {
    frmBHDesign& first = newDesign();
    first.type("SOGroundTempText", "55");
    saveAs(first, "work files/first.vht");
    ASSERT_TRUE(std::filesystem::remove(ini()));
    EXPECT_EQ(newDesign().project().soil.groundTemp, 62);
}

TEST_F(DefaultsFile, CarriesACustomFluidToTheNextNewDesign) {
    frmBHDesign& first = newDesign();
    first.type("FLFluidTypeCombo", "My brine");
    first.leave("FLFluidTypeCombo");
    saveAs(first, "work files/first.vht");
    EXPECT_NE(bytesOf(ini()).find("\r\nMy brine\r\n"), std::string::npos);
    const frmBHDesign& next = newDesign();
    EXPECT_EQ(next.project().fluid.fluidName, "My brine");
    EXPECT_EQ(next.control("FLFluidTypeCombo").text(), "My brine");
}

TEST_F(DefaultsFile, IsWrittenInItsOrder) {
    useSample();
    saveINIFile(newDesign());
    EXPECT_EQ(bytesOf(ini()), bytesOf(sampleProject("vhtbh_3.0.ini")));
}

TEST_F(DefaultsFile, OfAnyVersionIsReadByTheCurrentOrder) {
    std::string bytes = bytesOf(sampleProject("vhtbh_3.0.ini"));
    bytes.replace(bytes.find("3.0"), 3, "0.1");
    writeBytes(ini(), bytes);
    EXPECT_EQ(newDesign().loads().activeSeries, "BestSeries B");
}

TEST_F(DefaultsFile, CutAtAnyLineKeepsTheValuesReadAndTellsTheEnd) {
    const std::string whole = bytesOf(sampleProject("vhtbh_3.0.ini"));
    for (std::size_t end = whole.find('\n'); end + 1 < whole.size();
         end = whole.find('\n', end + 1)) {
        SCOPED_TRACE(end);
        writeBytes(ini(), whole.substr(0, end + 1));
        platform.messages.clear();
        frmBHDesign& d = newDesign();
        ASSERT_EQ(messages(), 1u);
        EXPECT_EQ(platform.messages[0].icon, MessageIcon::exclamation);
        EXPECT_EQ(platform.messages[0].title, "Varnholt");
        EXPECT_EQ(lastMessage(), "Varnholt - Input past end of file");
        EXPECT_EQ(d.loads().activeSeries, "");
        answer(Answer::no);
        main.close(d);
    }
}

TEST_F(DefaultsFile, ThatCannotBeWrittenIsToldAndTheProjectSavedAllTheSame) {
    std::filesystem::create_directory(ini());
    frmBHDesign& d = newDesign();
    saveAs(d, "work files/first.vht");
    EXPECT_EQ(messages(), 1u);
    EXPECT_TRUE(fileExists(folder / "work files/first.vht"));
    EXPECT_TRUE(d.currentFileCheck);
    EXPECT_FALSE(main.saveCancelled);
}

}  // namespace
}  // namespace varnholt

// SPDX-License-Identifier: GPL-3.0-or-later
// Reports as web pages, tables and the update of a PDF.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "basis/run_time_error.h"
#include "persistence/temporary_folder.h"
#include "reports/csv_report.h"
#include "reports/html_report.h"
#include "reports/pdf_supplement.h"
#include "reports/report_shelf.h"
#include "script/script_fault.h"

namespace varnholt {
namespace {

constexpr double reportColumns[] = {90, 90};

/// A report of one value with a name and one zone's row.
Report reportOf(const std::string& words) {
    Report report;
    report.object = "rptBH";
    report.caption = words;
    report.designer = words;
    report.bands.push_back({ReportSection::ProjectID_Header,
                            reportColumns,
                            {{{{.control = "ALabel", .text = words, .style = ItemStyle::caption},
                               {.control = "ATextLabel", .text = words, .first = 1}}}},
                            0});
    return report;
}

Report zonesOf(const std::string& title) {
    Report report;
    report.object = "rptZoneNM";
    report.zones = {"Zone 1"};
    report.fields = {"txtTitle", "txtName"};
    report.bands.push_back({ReportSection::Zones_Header,
                            reportColumns,
                            {{{{.control = "txtTitle", .text = title}}}},
                            1});
    report.bands.push_back(
        {ReportSection::Pumps_Detail,
         reportColumns,
         {{{{.control = "PumpLabel", .text = "Pump", .style = ItemStyle::caption},
            {.control = "txtName", .text = "AB-036", .first = 1}}}},
         1});
    return report;
}

TEST(CsvField, IsQuotedWhereItMustBe) {
    EXPECT_EQ(csvField("plain"), "plain");
    EXPECT_EQ(csvField("a,b"), "\"a,b\"");
    EXPECT_EQ(csvField("say \"so\""), "\"say \"\"so\"\"\"");
    EXPECT_EQ(csvField("two\nlines"), "\"two\nlines\"");
    EXPECT_EQ(csvField(""), "");
}

TEST(CsvField, IsNoFormula) {
    EXPECT_EQ(csvField("=1+1"), "'=1+1");
    EXPECT_EQ(csvField("@sum"), "'@sum");
    EXPECT_EQ(csvField("-x"), "'-x");
    EXPECT_EQ(csvField("+49 89"), "'+49 89");
    // The whole of it is a number.
    EXPECT_EQ(csvField("-1.5"), "-1.5");
    EXPECT_EQ(csvField("+2.0"), "+2.0");
    EXPECT_EQ(csvField("=\"a\",b"), "\"'=\"\"a\"\",b\"");
}

TEST(CsvReport, HasOneRowALabelOfAProject) {
    EXPECT_EQ(csvOf(reportOf("42")),
              "Section,Label,Text\r\nProjectID_Header,ALabel,42\r\n"
              "ProjectID_Header,ATextLabel,42\r\n");
}

TEST(CsvReport, HasOneRowAPumpOfZones) {
    EXPECT_EQ(csvOf(zonesOf("North, upper")), "txtTitle,txtName\r\n\"North, upper\",AB-036\r\n");
}

TEST(CsvReport, HasARowForAZoneWithoutAPump) {
    Report report = zonesOf("Only");
    report.bands.pop_back();
    EXPECT_EQ(csvOf(report), "txtTitle,txtName\r\nOnly,\r\n");
}

TEST(HtmlText, IsNoMarkup) {
    EXPECT_EQ(htmlText("<b>\"A\" & 'B'</b>"), "&lt;b&gt;&quot;A&quot; &amp; &#39;B&#39;&lt;/b&gt;");
    EXPECT_EQ(htmlText(std::string("a\x01\x1b\x7f") + "b\n\tc"), "ab\n\tc");
    EXPECT_EQ(htmlText("Östra 東京"), "Östra 東京");
}

TEST(HtmlReport, HoldsNoMarkupOfAName) {
    const std::string page = htmlOf(reportOf("<script>alert('x')</script>"));
    EXPECT_EQ(page.find("<script"), std::string::npos);
    EXPECT_NE(page.find("&lt;script&gt;"), std::string::npos);
}

TEST(HtmlReport, IsSetInTheFontOfTheLanguage) {
    Report report = reportOf("42");
    EXPECT_EQ(htmlOf(report).find("body{font-family"), std::string::npos);
    report.font = "Noto Serif";
    EXPECT_NE(htmlOf(report).find("body{font-family:\"Noto Serif\","), std::string::npos);
    report.font = "a\"}</style><script>";
    EXPECT_NE(htmlOf(report).find("body{font-family:\"a/stylescript\","), std::string::npos);
}

TEST(HtmlReport, NeedsNothingBesideItself) {
    const std::string page = htmlOf(reportOf("42"));
    EXPECT_TRUE(page.starts_with("<!DOCTYPE html>\n<html lang="));
    EXPECT_NE(page.find("<meta charset=\"utf-8\">"), std::string::npos);
    for (const char* outside : {"src=", "href=", "url(", "@import", "http://", "https://"})
        EXPECT_EQ(page.find(outside), std::string::npos) << outside;
    EXPECT_NE(page.find("scope=\"row\""), std::string::npos);
}

TEST(HtmlReport, DrawsADrawingWithItsDescription) {
    Report report = reportOf("42");
    BoreDrawing bore;
    bore.boreDiameter = 5;
    bore.pipes = {{1, 0, 1, 0.8}, {-1, 0, 1, 0.8}};
    report.drawings.push_back({bore, "Section of the bore"});
    report.bands.push_back({ReportSection::ProjectID_Header,
                            reportColumns,
                            {{{{.control = "imgDrawing",
                                .text = "Section of the bore",
                                .style = ItemStyle::drawing}}}},
                            0});
    const std::string page = htmlOf(report);
    EXPECT_NE(page.find("role=\"img\" aria-label=\"Section of the bore\""), std::string::npos);
    // The bore, and wall and bore of each leg.
    std::size_t circles = 0;
    for (std::size_t at = page.find("<circle"); at != std::string::npos;
         at = page.find("<circle", at + 1))
        ++circles;
    EXPECT_EQ(circles, 5U);
}

/// The smallest file with a page that a reader takes.
std::string smallPdf() {
    const std::vector<std::string> objects{
        "<<\n/Title (x)\n>>", "<<\n/Type /Catalog\n/Pages 3 0 R\n>>",
        "<<\n/Type /Pages\n/Kids [ 4 0 R ]\n/Count 1\n>>",
        "<<\n/Type /Page\n/Parent 3 0 R\n/MediaBox [0 0 100 100]\n>>"};
    std::string pdf = "%PDF-1.4\n", table = "xref\n0 5\n0000000000 65535 f \n";
    for (std::size_t i = 0; i < objects.size(); ++i) {
        std::string at = std::to_string(pdf.size());
        table += std::string(10 - at.size(), '0') + at + " 00000 n \n";
        pdf += std::to_string(i + 1) + " 0 obj\n" + objects[i] + "\nendobj\n";
    }
    const std::string start = std::to_string(pdf.size());
    return pdf + table + "trailer\n<<\n/Size 5\n/Info 1 0 R\n/Root 2 0 R\n>>\nstartxref\n" + start +
           "\n%%EOF\n";
}

TEST(PdfSupplement, LeavesEveryByteInPlaceAndAddsWhatIsMissing) {
    const std::string before = smallPdf();
    const std::string after = withAuthorAndOutline(before, "Åsa", {{"Zone 1", 0, 90}});
    EXPECT_TRUE(after.starts_with(before));
    EXPECT_NE(after.find("/Author <FEFF00C500730061>"), std::string::npos);  // U+00C5, s, a
    EXPECT_NE(after.find("/Outlines 5 0 R"), std::string::npos);
    EXPECT_NE(after.find("/Dest [4 0 R /XYZ null 90.0 null]"), std::string::npos);
    EXPECT_NE(after.find("/Size 7"), std::string::npos);
    EXPECT_NE(after.find("/Title (x)\n/Author"), std::string::npos);
}

TEST(PdfSupplement, PointsWithItsTableAtItsObjects) {
    const std::string after = withAuthorAndOutline(smallPdf(), "A", {{"One", 0, 9}, {"Two", 0, 5}});
    const std::size_t start = std::stoul(after.substr(after.rfind("startxref\n") + 10));
    EXPECT_EQ(after.substr(start, 5), "xref\n");
    for (const std::string number : {"1", "2", "5", "6", "7"}) {
        const std::size_t line = after.find("\n" + number + " 1\n", start);
        ASSERT_NE(line, std::string::npos) << number;
        const std::size_t at = std::stoul(after.substr(line + number.size() + 4, 10));
        EXPECT_TRUE(after.substr(at).starts_with(number + " 0 obj")) << number;
    }
}

TEST(PdfSupplement, TellsSurrogatesOfRareCharacters) {
    // U+1F600 is D83D DE00 in UTF-16.
    EXPECT_NE(withAuthorAndOutline(smallPdf(), "\xF0\x9F\x98\x80", {}).find("<FEFFD83DDE00>"),
              std::string::npos);
}

TEST(PdfSupplement, RefusesWhatIsNoSuchFile) {
    EXPECT_THROW(withAuthorAndOutline("no file", "A", {}), std::invalid_argument);
    EXPECT_THROW(withAuthorAndOutline(smallPdf(), "A", {{"Beyond", 3, 0}}), std::invalid_argument);
}

TEST(SavingAReport, GoesByTheExtension) {
    const TemporaryFolder folder;
    const Report report = reportOf("42");
    EXPECT_TRUE(saveReport(report, folder / "a.csv", {}));
    EXPECT_EQ(bytesOf(folder / "a.csv"), csvOf(report));
    EXPECT_TRUE(saveReport(report, folder / "a.html", {}));
    EXPECT_EQ(bytesOf(folder / "a.html"), htmlOf(report));
    EXPECT_FALSE(saveReport(report, folder / "a.txt", {}));
    EXPECT_THROW(saveReport(report, folder / "a.pdf", {}), ScriptFault);
}

TEST(SavingAReport, LeavesNothingBehindWhereItCannotBe) {
    const TemporaryFolder folder;
    EXPECT_THROW(saveReport(reportOf("42"), folder / "missing/a.csv", {}), RunTimeError);
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

}  // namespace
}  // namespace varnholt

// SPDX-License-Identifier: GPL-3.0-or-later
#include "started_program.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>

#include <QTest>

namespace varnholt {
namespace {

/// Brings the curves of a heat pump into sight.
const std::string showCurves = R"(click Varnmain.mnuZoneManage
click frmZoneManage.LONewCommand
choose frmZoneManage.tabLoads #1
choose frmZoneManage.HPManufacturerCombo #0
choose frmZoneManage.HPSeriesCombo #0
choose frmZoneManage.HPPumpList #0)";

TEST(StartedProgram, LoadsTheChartEngineWithTheFirstChart) {
    StartedProgram program(programWithWindows);
    program.run("click Varnmain.NewBorehole\nclick Varnmain.mnuZoneManage");
    const std::string before = program.filesInMemory();
    EXPECT_NE(before.find("libQt6Widgets"), std::string::npos);
    for (const char* library : {"varnholt_charts", "libQt6Charts", "libQt6OpenGL"})
        EXPECT_EQ(before.find(library), std::string::npos) << library;
    program.run(showCurves);
    EXPECT_NE(program.filesInMemory().find("varnholt_charts"), std::string::npos);
    EXPECT_EQ(program.end(), 0);
}

TEST(StartedProgram, DoesWithoutTheChartsWhereTheyAreMissing) {
    const TemporaryFolder elsewhere;
    const std::filesystem::path copy = elsewhere / "bin/varnholt";
    std::filesystem::create_directories(copy.parent_path());
    std::filesystem::copy_file(programWithWindows, copy);
    // Beside it, as an installation has it, what the program shows; but not its modules.
    std::filesystem::create_directory(elsewhere / "share");
    std::filesystem::create_directory_symlink(VARNHOLT_RESOURCE_DIR, elsewhere / "share/varnholt");
    StartedProgram program(copy.string());
    const std::filesystem::path picture = elsewhere / "curves.png";
    program.run(showCurves + "\nshot frmZoneManage " + picture.string());
    EXPECT_EQ(program.filesInMemory().find("varnholt_charts"), std::string::npos);
    EXPECT_TRUE(std::filesystem::exists(picture));
    EXPECT_EQ(program.end(), 0);
}

TEST(StartedProgram, WaitsForNobodyWhoReadsItsPictureFromAPipe) {
    const TemporaryFolder folder;
    const std::string pipe = folder / "window.png", script = folder / "shot.vscript";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    std::ofstream(script) << "shot Varnmain " << pipe << "\n";
    const std::string faults = folder / "faults";
    const int status =
        std::system(("QT_QPA_PLATFORM=offscreen timeout 60 " + programWithWindows +
                     " --program-folder " + folder.path() + " --script " + script + " 2>" + faults)
                        .c_str());
    EXPECT_EQ(WEXITSTATUS(status), 2);
    EXPECT_EQ(wholeFile(faults), script + ":1: " + pipe + " cannot be written\n");
}

TEST(StartedProgram, LoadsTheHelpWithItsFirstPage) {
    StartedProgram program(programWithWindows);
    program.run("click Varnmain.NewBorehole");
    const std::string before = program.filesInMemory();
    for (const char* library : {"varnholt_help", "libQt6Help", "libQt6Sql", "libQt6PrintSupport"})
        EXPECT_EQ(before.find(library), std::string::npos) << library;
    program.run("click Varnmain.mnuHelp");
    EXPECT_NE(program.filesInMemory().find("varnholt_help"), std::string::npos);
    EXPECT_EQ(program.end(), 0);
}

TEST(StartedProgram, LoadsNoWebEngineForPagesOfTheTextBrowser) {
    StartedProgram program(programWithWindows);
    program.run("click Varnmain.FluidProperties");
    for (const char* library : {"varnholt_web", "libQt6WebEngine"})
        EXPECT_EQ(program.filesInMemory().find(library), std::string::npos) << library;
    EXPECT_EQ(program.end(), 0);
}

TEST(StartedProgram, ShowsPagesAndHelpWhereTheModulesAreMissing) {
    const TemporaryFolder elsewhere;
    const std::filesystem::path copy = elsewhere / "bin/varnholt";
    std::filesystem::create_directories(copy.parent_path());
    std::filesystem::copy_file(programWithWindows, copy);
    // Beside it, as an installation has it, what the program shows; but not its modules.
    std::filesystem::create_directory(elsewhere / "share");
    std::filesystem::create_directory_symlink(VARNHOLT_RESOURCE_DIR, elsewhere / "share/varnholt");
    StartedProgram program(copy.string(), {QStringLiteral("--browser"), QStringLiteral("web")});
    program.run("click Varnmain.FluidProperties");
    EXPECT_EQ(program.run("forms"),
              "Varnmain \"Varnholt\"\nfrmBrowser#1 \"Fluid properties\" active\n");
    program.run(
        "type frmBrowser.cboAddress http://varnholt.example/\nkey frmBrowser.cboAddress Enter");
    EXPECT_NE(program.run("print frmBrowser.NoticeLabel").find("system's browser"),
              std::string::npos);
    // The help's page opens in the browser window instead.
    program.run("click Varnmain.mnuHelp");
    EXPECT_NE(program.run("forms").find("frmBrowser#2 \"Varnholt help\" active"),
              std::string::npos);
    EXPECT_EQ(program.end(), 0);
}

/// What three rounds may leave behind in torn pages, MB; the address sanitizer's red zones tear
/// more of them, and it tells by itself what has been lost.
#ifdef __SANITIZE_ADDRESS__
constexpr double mostGrowth = 30;
#else
constexpr double mostGrowth = 8;
#endif

/// Opens so many designs and closes them again.
std::string openAndClose(int designs) {
    std::string script = "click Varnmain.NewBorehole";
    for (int i = 1; i < designs; ++i) script += "\nclick Varnmain.NewBorehole";
    for (int i = 0; i < designs; ++i) script += "\nanswer no\nclose frmBHDesign";
    return script;
}

TEST(StartedProgram, KeepsNothingOfTheWindowsThatAScriptHasClosed) {
    StartedProgram program(programWithWindows);
    program.run(openAndClose(50));
    const double before = program.megabytes();
    for (int round = 0; round < 3; ++round) program.run(openAndClose(50));
    EXPECT_GT(before, 20);
    // A window takes about half a megabyte: three rounds that kept theirs would take 75.
    EXPECT_LT(program.megabytes() - before, mostGrowth);
    EXPECT_EQ(program.end(), 0);
}

std::size_t filesBelow(const std::filesystem::path& folder, const std::string& part) {
    std::size_t files = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
        files += entry.path().filename().string().find(part) != std::string::npos ? 1 : 0;
    return files;
}

const std::string lockMark = ".varnholt-lock";

TEST(StartedProgram, LeavesItsWorkAndNoMarkBehindWhenASignalEndsIt) {
    for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
        SCOPED_TRACE(signal);
        StartedProgram program(programWithWindows, {QStringLiteral("--recovery")});
        program.run(
            "click Varnmain.NewBorehole\npick school.vht\nclick Varnmain.mnuFileSaveAs\n"
            "type frmBHDesign.INProjectNameText Unsaved");
        EXPECT_EQ(filesBelow(program.folder(), lockMark), 1U);
        EXPECT_TRUE(program.endBy(signal));
        EXPECT_EQ(filesBelow(program.folder(), lockMark), 0U);
        EXPECT_EQ(filesBelow(program.folder(), ".unsaved"), 1U);
    }
}

TEST(StartedProgram, OfAPersonTakesItsMarkAlongWhenASignalEndsIt) {
    const TemporaryFolder temporary;
    const std::filesystem::path folder = temporary.path("program");
    std::filesystem::create_directories(folder / "work files");
    const std::filesystem::path project = folder / "work files" / "school.vht";
    std::filesystem::copy_file(VARNHOLT_SOURCE_DIR "/examples/school-south.vht", project);
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("HOME"), QString::fromStdString(temporary.path()));
    process.setProcessEnvironment(environment);
    process.start(QString::fromStdString(programWithWindows),
                  {QStringLiteral("--program-folder"), QString::fromStdString(folder.string()),
                   QString::fromStdString(project.string())});
    const auto marks = [&] { return filesBelow(temporary.path(), lockMark); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return marks() == 1; }, 20'000));
    ::kill(static_cast<pid_t>(process.processId()), SIGTERM);
    EXPECT_TRUE(process.waitForFinished(20'000));
    EXPECT_EQ(process.exitStatus(), QProcess::CrashExit);
    EXPECT_EQ(marks(), 0U);
}

TEST(StartedProgram, TakesPicturesOfTheMainWindowWithTheFiguresThatAreFoundLate) {
    StartedProgram program(programWithWindows);
    for (const char* name : {"school-south.vht", "school-south.zon"})
        std::filesystem::copy_file(
            std::filesystem::path(VARNHOLT_SOURCE_DIR "/examples") / name,
            program.folder() / (std::string(name).ends_with("zon") ? "zones" : "work files") /
                name);
    program.run(
        "pick work files/school-south.vht\nclick Varnmain.mnuFileOpen\n"
        "click frmBHDesign.CACalculateCommand");
    const std::filesystem::path first = program.folder() / "first.png";
    const std::filesystem::path second = program.folder() / "second.png";
    program.run("shot Varnmain " + first.string());
    // What is read from now on has been found for certain.
    const std::string read = program.run("print frmBHDesign.CASecondLengthLabel(0)");
    EXPECT_EQ(read.find("\"-\""), std::string::npos) << read;
    program.run("shot Varnmain " + second.string());
    EXPECT_FALSE(wholeFile(first).empty());
    EXPECT_EQ(wholeFile(first), wholeFile(second));
    EXPECT_EQ(program.end(), 0);
}

}  // namespace
}  // namespace varnholt

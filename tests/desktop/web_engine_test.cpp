// SPDX-License-Identifier: GPL-3.0-or-later
// The web engine in its module: the same pages and the same history as in the text browser, what it
// keeps pages from, and a server that never answers.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QSemaphore>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslServer>
#include <QTcpServer>
#include <QThread>
#include <filesystem>
#include <fstream>

#include "started_program.h"

namespace varnholt {
namespace {

/// A server that only says who it is, by a certificate that nobody vouches for. It has a thread of
/// its own, since the test waits for the program meanwhile.
class UnknownServer : public QThread {
 public:
    UnknownServer() {
        start();
        ready_.acquire();
    }
    ~UnknownServer() override {
        quit();
        wait();
    }
    int port() const { return port_; }

 protected:
    void run() override {
        QFile file(QStringLiteral(VARNHOLT_SOURCE_DIR "/tests/files/unknown_server.pem"));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray pem = file.readAll();
        QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
        configuration.setLocalCertificate(QSslCertificate(pem));
        configuration.setPrivateKey(QSslKey(pem, QSsl::Ec));
        QSslServer server;
        server.setSslConfiguration(configuration);
        EXPECT_TRUE(server.listen(QHostAddress::LocalHost));
        port_ = server.serverPort();
        ready_.release();
        exec();
    }

 private:
    QSemaphore ready_;
    int port_ = 0;
};

class WebEngine : public testing::Test {
 protected:
    const std::string notice = "print frmBrowser.NoticeLabel";
    static QStringList engine(const char* name) {
        return {QStringLiteral("--browser"), QString::fromLatin1(name)};
    }
    /// Writes a page into the program's folder.
    static void write(const StartedProgram& program, const std::string& name,
                      const std::string& html) {
        std::ofstream(program.folder() / name) << html;
    }
    /// A page that follows its only link by itself, as soon as it stands.
    static std::string pageThatClicks(const std::string& link) {
        return "<title>From</title><a href=\"" + link +
               "\">link</a><script>onload = () => setTimeout(() => document.links[0].click(), 0)"
               "</script>";
    }
    /// Expects that these lines tell this, as soon as the page has done what it does by itself.
    static void expectTold(StartedProgram& program, const std::string& lines,
                           const std::string& told) {
        const std::string transcript = program.runUntil(lines, told);
        EXPECT_NE(transcript.find(told), std::string::npos) << transcript;
    }
    static std::string go(const std::string& address) {
        return "type frmBrowser.cboAddress " + address + "\nkey frmBrowser.cboAddress Enter\n";
    }
};

TEST_F(WebEngine, GivesTheTranscriptOfTheTextBrowser) {
    const std::string script = R"(click Varnmain.FluidProperties
forms
click Varnmain.Metric
click Varnmain.SoilProperties
click Varnmain.PipeProperties
click Varnmain.Conversions
forms
print frmBrowser#2.cboAddress
print frmBrowser#2.cboAddress.items
click frmBrowser#2.tbToolBar(0)
click frmBrowser#2.tbToolBar(3)
click frmBrowser#2.tbToolBar(4)
forms
print frmBrowser#2.cboAddress.items
click frmBrowser#2.tbToolBar(0)
forms
click frmBrowser#2.tbToolBar(0)
forms
click frmBrowser#2.tbToolBar(1)
print frmBrowser#2.cboAddress
click frmBrowser#2.tbToolBar(2)
forms
type frmBrowser#2.cboAddress #units
key frmBrowser#2.cboAddress Enter
forms
print frmBrowser#2.cboAddress.items
click frmBrowser#2.tbToolBar(0)
forms
print frmBrowser#2.cboAddress
type frmBrowser#2.cboAddress two words
key frmBrowser#2.cboAddress Enter
print frmBrowser#2.NoticeLabel
type frmBrowser#2.cboAddress javascript:alert(1)
key frmBrowser#2.cboAddress Enter
print frmBrowser#2.NoticeLabel
type frmBrowser#2.cboAddress data:text/html,<title>data</title>
key frmBrowser#2.cboAddress Enter
print frmBrowser#2.NoticeLabel
type frmBrowser#2.cboAddress file://elsewhere/page.html
key frmBrowser#2.cboAddress Enter
print frmBrowser#2.NoticeLabel
type frmBrowser#2.cboAddress file:
key frmBrowser#2.cboAddress Enter
print frmBrowser#2.NoticeLabel
type frmBrowser#2.cboAddress https://
key frmBrowser#2.cboAddress Enter
print frmBrowser#2.NoticeLabel
forms
click Varnmain.FluidProperties
click Varnmain.English
click Varnmain.SoilProperties
click Varnmain.PipeProperties
forms
value Varnmain.browserCount)";
    StartedProgram text(programWithWindows, engine("text")), web(programWithWindows, engine("web"));
    EXPECT_EQ(web.run(script), text.run(script));
    EXPECT_NE(web.filesInMemory().find("libQt6WebEngineCore"), std::string::npos);
    EXPECT_EQ(web.end(), 0);
    EXPECT_EQ(text.end(), 0);
}

TEST_F(WebEngine, GoesToPlacesInThePageOnShowWithoutWaiting) {
    StartedProgram program(programWithWindows, engine("web"));
    const std::string page = program.folder().string() + "/tables/english/SoilTables.html";
    program.run("click Varnmain.SoilProperties\n" + go(page + "#swing"));
    const std::string after = program.run("forms\nvalue frmBrowser.timTimer.Enabled");
    EXPECT_NE(after.find("frmBrowser#1 \"Soil properties\""), std::string::npos) << after;
    EXPECT_NE(after.find("timTimer.Enabled = false"), std::string::npos) << after;
    EXPECT_EQ(program.run("print frmBrowser.cboAddress.items"),
              "frmBrowser#1.cboAddress.items = [\"PROGRAM/tables/english/SoilTables.html#swing\", "
              "\"PROGRAM/tables/english/SoilTables.html\"]\n");
    program.run("click frmBrowser.tbToolBar(0)");
    EXPECT_EQ(program.run("forms").find("Working..."), std::string::npos);
    EXPECT_EQ(program.end(), 0);
}

TEST_F(WebEngine, FollowsALinkFromPageToPageOfThisComputer) {
    StartedProgram program(programWithWindows, engine("web"));
    write(program, "to.html", "<title>To</title>");
    write(program, "from.html", pageThatClicks("to.html"));
    program.run("click Varnmain.FluidProperties\n" + go(program.folder().string() + "/from.html"));
    expectTold(program, "forms", "frmBrowser#1 \"To\"");
    EXPECT_EQ(program.run("print frmBrowser.cboAddress"),
              "frmBrowser#1.cboAddress = \"PROGRAM/to.html\"\n");
    EXPECT_EQ(program.end(), 0);
}

TEST_F(WebEngine, OpensAnExampleFromAPageOfTheHelpAlone) {
    StartedProgram program(programWithWindows, engine("web"));
    std::filesystem::copy(VARNHOLT_SOURCE_DIR "/examples/house.zon",
                          program.folder() / "zones/house.zon");
    for (const char* page : {"try.html", "OnlineHelp/try.html"})
        write(program, page, pageThatClicks("example:house.zon"));
    program.run("click Varnmain.FluidProperties\n" + go(program.folder().string() + "/try.html"));
    expectTold(program, notice, "neither a page");
    EXPECT_EQ(program.run("forms").find("frmZoneManage"), std::string::npos);
    program.run(go(program.folder().string() + "/OnlineHelp/try.html"));
    expectTold(program, "forms", "frmZoneManage#1");
    EXPECT_EQ(program.end(), 0);
}

TEST_F(WebEngine, ListsNoFolder) {
    StartedProgram program(programWithWindows, engine("web"));
    program.run("click Varnmain.FluidProperties");
    for (const char* folder : {"/etc", "/etc/", "file:///"}) {
        EXPECT_EQ(program.run(go(folder)).find("message"), std::string::npos);
        const std::string after = program.run("forms");
        EXPECT_EQ(after.find("Index of"), std::string::npos) << after;
        EXPECT_EQ(after.find("Working..."), std::string::npos) << after;
    }
    EXPECT_EQ(program.end(), 0);
}

TEST_F(WebEngine, OpensAPathWithBlanks) {
    StartedProgram program(programWithWindows, engine("web"));
    write(program, "my page.html", "<title>Blank</title>");
    program.run("click Varnmain.FluidProperties\n" +
                go(program.folder().string() + "/my page.html"));
    EXPECT_NE(program.run("forms").find("frmBrowser#1 \"Blank\""), std::string::npos);
    EXPECT_EQ(program.run("print frmBrowser.cboAddress"),
              "frmBrowser#1.cboAddress = \"PROGRAM/my page.html\"\n");
}

TEST_F(WebEngine, KeepsAPageOfThisComputerFromItsFilesAndFromTheNetwork) {
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    int asked = 0;
    QObject::connect(&server, &QTcpServer::newConnection, &server, [&] { ++asked; });
    const std::string port = std::to_string(server.serverPort());
    StartedProgram program(programWithWindows, engine("web"));
    write(program, "secret.js", "document.title = 'read a file';");
    write(program, "spy.html",
          "<title>Spy</title><script src=\"secret.js\"></script><script src=\"http://127.0.0.1:" +
              port + "/x.js\"></script><img src=\"http://127.0.0.1:" + port +
              "/x.png\"><script>fetch('file:///etc/passwd').then(() => document.title = 'fetched')"
              "</script>");
    program.run("click Varnmain.FluidProperties\n" + go(program.folder().string() + "/spy.html"));
    EXPECT_NE(program.run("forms").find("frmBrowser#1 \"Spy\""), std::string::npos);
    QCoreApplication::processEvents();
    EXPECT_EQ(asked, 0);
}

TEST_F(WebEngine, RefusesWindowsDownloadsAndOtherSchemesWithALine) {
    StartedProgram program(programWithWindows, engine("web"));
    write(program, "open.html", "<title>Open</title><script>window.open('about:blank')</script>");
    write(program, "file.zip", "PK");
    program.run("click Varnmain.FluidProperties\n" + go(program.folder().string() + "/open.html"));
    expectTold(program, notice, "another window");
    program.run(go(program.folder().string() + "/file.zip"));
    expectTold(program, notice, "save a file");
    for (const char* address : {"mailto:a@b", "ftp://127.0.0.1/x", "data:text/html,x"}) {
        program.run(go(address));
        EXPECT_NE(program.run("print frmBrowser.NoticeLabel").find("neither a page"),
                  std::string::npos)
            << address;
    }
    // Nor does a page lead there by itself.
    write(program, "mail.html", "<title>Mail</title><script>location.href = 'mailto:a@b'</script>");
    program.run(go(program.folder().string() + "/mail.html"));
    expectTold(program, notice, "neither a page");
    EXPECT_EQ(program.run("forms").find("frmBrowser#2"), std::string::npos);
}

TEST_F(WebEngine, OfAServerThatNeverAnswersIsStopped) {
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    StartedProgram program(programWithWindows, engine("web"));
    program.run("click Varnmain.FluidProperties\n" +
                go("http://127.0.0.1:" + std::to_string(server.serverPort()) + "/"));
    // The line ends after five seconds, and the page is still being waited for.
    EXPECT_NE(program.run("forms").find("frmBrowser#1 \"Working...\""), std::string::npos);
    program.run("click frmBrowser.tbToolBar(5)");
    EXPECT_EQ(program.run("forms").find("Working..."), std::string::npos);
    EXPECT_EQ(program.run("value frmBrowser.timTimer.Enabled"),
              "value frmBrowser#1.timTimer.Enabled = false\n");
    EXPECT_EQ(program.end(), 0);
}

TEST_F(WebEngine, RefusesAServerThatDoesNotProveWhoItIs) {
    const UnknownServer server;
    ASSERT_GT(server.port(), 0);
    StartedProgram program(programWithWindows, engine("web"));
    program.run("click Varnmain.FluidProperties\n" +
                go("https://127.0.0.1:" + std::to_string(server.port()) + "/"));
    expectTold(program, notice, "cannot prove");
    EXPECT_EQ(program.run("forms").find("Working..."), std::string::npos);
    EXPECT_EQ(program.end(), 0);
}

TEST_F(WebEngine, RefusesAPageOfAHundredMegabytes) {
    StartedProgram program(programWithWindows, engine("web"));
    write(program, "long.html", "<title>Long</title>");
    std::filesystem::resize_file(program.folder() / "long.html", 100 << 20);
    program.run("click Varnmain.FluidProperties\n" + go(program.folder().string() + "/long.html"));
    expectTold(program, notice, "too large");
    EXPECT_NE(program.run("forms").find("frmBrowser#1 \"Fluid properties\""), std::string::npos);
    // Nor by a link.
    write(program, "link.html", "<title>Link</title><script>location.href = 'long.html'</script>");
    program.run(go(program.folder().string() + "/link.html"));
    expectTold(program, notice, "too large");
    EXPECT_LT(program.megabytes(), 400);
    EXPECT_EQ(program.end(), 0);
}

TEST_F(WebEngine, OfAMissingPageShowsItsOwnErrorWithoutAMessage) {
    StartedProgram program(programWithWindows, engine("web"));
    program.run("click Varnmain.FluidProperties");
    const std::string told = program.run(go("/nowhere/page.html"));
    EXPECT_EQ(told.find("message"), std::string::npos);
    EXPECT_EQ(program.run("print frmBrowser.cboAddress"),
              "frmBrowser#1.cboAddress = \"/nowhere/page.html\"\n");
    EXPECT_EQ(program.end(), 0);
}

}  // namespace
}  // namespace varnholt

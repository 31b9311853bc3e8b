// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/HTMLHelp.h"

#include <gtest/gtest.h>

#include "forms/fake_platform.h"
#include "tools/scratch_folder.h"

namespace varnholt {
namespace {

/// A help engine that notes what it is asked.
class NotingHelp : public HelpEngine {
 public:
    bool isHelpFile(const std::string& path) const override { return path.ends_with(".qch"); }
    long display(const HelpRequest& request) override {
        asked = request;
        ++displays;
        return shows ? 42 : 0;
    }
    void displayPopup(const HelpPopup& wanted) override { popup = wanted; }
    void invokeWhatsThis() override { whatsThis = true; }
    void close() override { closed = true; }
    void deleteJumpEntry(long window) override { jumpEntryOf = window; }
    HelpComponent helpComponent() const override { return help; }
    HelpComponent browserComponent() const override { return browser; }
    void registerComponent(const std::string& path) override { registered = path; }
    void unregisterComponent(const std::string& name) override { unregistered = name; }

    HelpRequest asked;
    HelpPopup popup;
    HelpComponent help, browser;
    std::string registered, unregistered;
    long jumpEntryOf = 0;
    int displays = 0;
    bool shows = true, whatsThis = false, closed = false;
};

class HTMLHelpTest : public testing::Test {
 protected:
    HTMLHelpTest() {
        scratch.write("vht.qch", "help");
        help.CHMFile = scratch.path("vht.qch");
    }
    /// Text of the only message, which goes with it.
    std::string told(const std::string& title = "HTML Help Class") {
        EXPECT_EQ(platform.messages.size(), 1u);
        if (platform.messages.empty()) return {};
        const FakePlatform::Message message = platform.messages.front();
        platform.messages.clear();
        EXPECT_EQ(message.title, title);
        EXPECT_EQ(message.icon, MessageIcon::exclamation);
        return message.text;
    }

    ScratchFolder scratch;
    FakePlatform platform;
    NotingHelp engine;
    HTMLHelp help{platform, engine};
};

TEST_F(HTMLHelpTest, DisplaysWhatEachOperationIsNamedFor) {
    using Kind = HelpRequest::Kind;
    help.HHKeyword = "grout";
    help.HHALink = "bore";
    help.HHTopicID = 7;
    const std::pair<void (HTMLHelp::*)(), Kind> operations[] = {
        {&HTMLHelp::HHDisplayContents, Kind::contents},
        {&HTMLHelp::HHDisplayIndex, Kind::index},
        {&HTMLHelp::HHDisplaySearch, Kind::search},
        {&HTMLHelp::HHDisplayTopicURL, Kind::topic},
        {&HTMLHelp::HHDisplayTopicID, Kind::topicId},
        {&HTMLHelp::HHDisplayKeyword, Kind::keyword},
        {&HTMLHelp::HHDisplayALink, Kind::aLink}};
    for (const auto& [operation, kind] : operations) {
        (help.*operation)();
        EXPECT_EQ(engine.asked.kind, kind);
        EXPECT_EQ(engine.asked.file, help.CHMFile);
    }
    EXPECT_EQ(engine.asked.keyword, "bore");
    help.HHDisplayKeyword();
    EXPECT_EQ(engine.asked.keyword, "grout");
    help.HHDisplayTopicID();
    EXPECT_EQ(engine.asked.topicId, 7);
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(HTMLHelpTest, AddressesATopicBehindTheFile) {
    help.HHTopicURL = "borehole.html#soil";
    help.HHWindow = "main";
    help.HHShowOnTop = true;
    help.HHDisplayTopicURL();
    EXPECT_EQ(engine.asked.topic, help.CHMFile + "::/borehole.html#soil");
    EXPECT_EQ(engine.asked.window, "main");
    EXPECT_TRUE(engine.asked.onTop);
    help.HHTopicURL.clear();
    help.HHDisplayTopicURL();
    EXPECT_EQ(engine.asked.topic, help.CHMFile);
}

TEST_F(HTMLHelpTest, OfAMissingFileSaysSoInTwoLines) {
    help.CHMFile = scratch.path("none.qch");
    help.HHDisplayContents();
    EXPECT_EQ(told(), scratch.path("none.qch") +
                          " does not exist.\n"
                          "Please make sure the correct path and file name have been specified.");
    EXPECT_EQ(engine.displays, 0) << "the operation does nothing more";
}

TEST_F(HTMLHelpTest, ShowsItsMessagesUnderTheGivenTitle) {
    help.HHMsgTitle = "Other";
    help.CHMFile = scratch.path("none.qch");
    help.HHDisplaySearch();
    EXPECT_EQ(told("Other"), help.HHMsgText);
}

TEST_F(HTMLHelpTest, OfADamagedFileSaysSo) {
    scratch.write("damaged.txt", "no help");
    help.CHMFile = scratch.path("damaged.txt");
    engine.shows = false;
    help.HHDisplayContents();
    EXPECT_EQ(told(), help.CHMFile + " is not a valid HTML Help file.");
}

TEST_F(HTMLHelpTest, TakesOnlyAHelpFile) {
    scratch.write("other.qch", "help");
    scratch.write("page.txt", "text");
    EXPECT_TRUE(help.HHSetHelpFile(scratch.path("other.qch")));
    EXPECT_EQ(help.CHMFile, scratch.path("other.qch"));
    EXPECT_FALSE(help.HHSetHelpFile(scratch.path("page.txt")));
    EXPECT_EQ(told(), scratch.path("page.txt") + " is not a valid HTML Help file.");
    EXPECT_FALSE(help.HHSetHelpFile(scratch.path("none.qch")));
    EXPECT_NE(told().find(" does not exist."), std::string::npos);
    EXPECT_EQ(help.CHMFile, scratch.path("other.qch"));
}

TEST_F(HTMLHelpTest, VerifiesThatTheEngineIsRegisteredAndThere) {
    EXPECT_FALSE(help.HHVerifyMinConfig());
    EXPECT_EQ(told(), "Hhctrl.ocx is not registered.  Please install HTML Help.");
    engine.help.path = scratch.path("gone");
    EXPECT_FALSE(help.HHVerifyMinConfig());
    EXPECT_EQ(told(), "Hhctrl.ocx is not in its registered location.  Please reinstall HTML Help.");
    engine.help.path = scratch.path("vht.qch");
    EXPECT_FALSE(help.HHVerifyMinConfig());
    EXPECT_EQ(told(), "Shdocvw.dll is not registered.  Please install Internet Explorer.");
    engine.browser.path = scratch.path("gone");
    EXPECT_FALSE(help.HHVerifyMinConfig());
    EXPECT_EQ(told(),
              "Internet Explorer is not in its registered location.  "
              "Please reinstall Internet Explorer.");
    engine.browser.path = scratch.path("vht.qch");
    EXPECT_TRUE(help.HHVerifyMinConfig());
    // One that is too old has no text.
    engine.help.version = "4.72.7290.0";
    engine.browser.version = "4.70.1154.0";
    EXPECT_FALSE(help.HHVerifyMinConfig());
    engine.browser.version = "4.70.1155.0";
    EXPECT_TRUE(help.HHVerifyMinConfig());
    EXPECT_TRUE(platform.messages.empty());
}

TEST_F(HTMLHelpTest, KnowsTheEngineByItsFacts) {
    EXPECT_EQ(help.HHRegFileName(), "hhctrl.ocx");
    EXPECT_EQ(help.HHRegFilePath(), "");
    EXPECT_FALSE(help.HHRegFileExists());
    EXPECT_FALSE(help.HHInstalled());
    engine.help = {scratch.path("vht.qch"), "4.73.8561.0"};
    engine.browser.version = "4.70.1155.0";
    EXPECT_EQ(help.HHRegFilePath(), scratch.path("vht.qch"));
    EXPECT_TRUE(help.HHRegFileExists());
    EXPECT_TRUE(help.HHInstalled());
    EXPECT_EQ(help.HHVersion(), "4.73.8561.0");
    EXPECT_EQ(help.IEVersion(), "4.70.1155.0");
}

TEST_F(HTMLHelpTest, CallsVersionsByTheNamesOfTheirMakers) {
    const auto name = [&](const std::string& version) {
        engine.help.version = version;
        return help.HHFriendlyName();
    };
    EXPECT_EQ(name("4.72.7290.0"), "1.0");
    EXPECT_EQ(name("4.73.8561.0"), "1.3");
    EXPECT_EQ(name("4.73.8600.0"), "1.3") << "the newest name that is not newer";
    EXPECT_EQ(name("1.2.3"), "1.2.3") << "older than any name";
    EXPECT_EQ(name(""), "");
    engine.browser.version = "4.70.1155.0";
    EXPECT_EQ(help.IEFriendlyName(), "3.0");
}

TEST_F(HTMLHelpTest, RegistersOnlyWhatIsNotAndHasAPath) {
    const std::string title = "HTML Help Class: HHRegister Error";
    help.HHRegister("hhctrl.ocx", "");
    EXPECT_EQ(told(title), "Cannot register hhctrl.ocx without having a supplied path.");
    help.HHRegister("hhctrl.ocx", scratch.path("vht.qch"));
    EXPECT_EQ(engine.registered, scratch.path("vht.qch"));
    engine.help.path = scratch.path("vht.qch");
    EXPECT_TRUE(help.HHCheckRegistry("hhctrl.ocx"));
    engine.registered.clear();
    help.HHRegister("hhctrl.ocx", scratch.path("vht.qch"));
    EXPECT_EQ(told(title),
              "hhctrl.ocx is already registered.  "
              "HHRegister will not be run as no action need be taken.");
    EXPECT_EQ(engine.registered, "");
    help.HHUnRegister("hhctrl.ocx");
    EXPECT_EQ(engine.unregistered, "hhctrl.ocx");
}

TEST_F(HTMLHelpTest, UnregistersNothingThatIsNotRegistered) {
    EXPECT_FALSE(help.HHCheckRegistry("shdocvw.dll"));
    help.HHUnRegister("shdocvw.dll");
    EXPECT_EQ(told(),
              "shdocvw.dll is not registered.  "
              "HHUnRegister will not be run as no action need be taken.");
    EXPECT_EQ(engine.unregistered, "");
}

TEST_F(HTMLHelpTest, FormsThePopupsFontAsOneParameter) {
    EXPECT_EQ(help.HHPopupTextFont, "Arial");
    EXPECT_EQ(help.popupFont(), "Arial,10,,");
    help.HHPopupTextFont.clear();
    EXPECT_EQ(help.popupFont(), "Arial,10,,");
    help.HHPopupTextFont = "Inter";
    help.HHPopupTextSize = 8;
    help.HHPopupTextBold = true;
    help.HHPopupTextItalic = true;
    EXPECT_EQ(help.popupFont(), "Inter,8,,Bold Italic ");
    help.HHPopupText = "A few words";
    help.HHPopupTextColor = 255;
    help.HHDisplayPopup();
    EXPECT_EQ(engine.popup.font, "Inter,8,,Bold Italic ");
    EXPECT_EQ(engine.popup.text, "A few words");
    EXPECT_EQ(engine.popup.textColor, 255);
    help.HHPopupCustomColors = true;
    help.HHPopupCustomTextColor = 0x00FF00;
    help.HHDisplayPopup();
    EXPECT_EQ(engine.popup.textColor, 0x00FF00);
}

TEST_F(HTMLHelpTest, TakesPopupTextsFromATextFileOnly) {
    help.HHPopupType = HTMLHelp::PopupType::file;
    help.HHPopupFile = "vht.qch::/page.html";
    help.HHDisplayPopup();
    EXPECT_EQ(told(),
              "The file specified as the text popup source, 'vht.qch::/page.html', is not a valid "
              "popup file.");
    help.HHPopupFile = "vht.qch::/popups.txt";
    help.HHPopupID = 5;
    help.HHDisplayPopup();
    EXPECT_EQ(engine.popup.file, "vht.qch::/popups.txt");
    EXPECT_EQ(engine.popup.id, 5);
}

TEST_F(HTMLHelpTest, HasAWindowOnceItHasShownOne) {
    EXPECT_EQ(help.HHWndHandle(), 0);
    EXPECT_EQ(told(), "No HTML Help window handle to retrieve.");
    help.HHDisplayContents();
    EXPECT_EQ(help.HHWndHandle(), 42);
    help.HHDeleteJumpURLSysMenu();
    EXPECT_EQ(engine.jumpEntryOf, 42);
    help.HHClose();
    EXPECT_TRUE(engine.closed);
    EXPECT_EQ(help.HHWndHandle(), 0);
    told();
}

TEST_F(HTMLHelpTest, InvokesWhatsThis) {
    help.HHInvokeWhatsThisHelp();
    EXPECT_TRUE(engine.whatsThis);
}

TEST(UnseenHelp, KnowsAHelpFileByItsBegin) {
    const ScratchFolder scratch;
    scratch.write("good.qch", std::string("SQLite format 3\0and more", 24));
    scratch.write("bad.qch", "<html>");
    UnseenHelp engine;
    EXPECT_TRUE(engine.isHelpFile(scratch.path("good.qch")));
    EXPECT_FALSE(engine.isHelpFile(scratch.path("bad.qch")));
    EXPECT_FALSE(engine.isHelpFile(scratch.path("none.qch")));
    HelpRequest request;
    request.file = scratch.path("bad.qch");
    EXPECT_EQ(engine.display(request), 0);
}

}  // namespace
}  // namespace varnholt

// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/HTMLHelp.h"

#include <span>
#include <utility>
#include <vector>

#include "basis/file_system.h"

namespace varnholt {
namespace {

constexpr const char* helpFileName = "hhctrl.ocx";
constexpr const char* browserFileName = "shdocvw.dll";
constexpr const char* messageTitle = "HTML Help Class";

struct VersionName {
    const char* version;
    const char* name;
};

// A version of a file, and what its makers called it: from that version up to the next.
constexpr VersionName helpVersions[] = {
    {"4.72.7290", "1.0"},  {"4.72.7323", "1.1"},  {"4.72.7325", "1.1a"}, {"4.72.8164", "1.1b"},
    {"4.73.8252", "1.2"},  {"4.73.8412", "1.21"}, {"4.73.8474", "1.22"}, {"4.73.8561", "1.3"},
    {"4.74.8702", "1.31"}, {"4.74.8875", "1.32"},
};
constexpr VersionName browserVersions[] = {
    {"4.70.1155", "3.0"},      {"4.70.1158", "3.0"},      {"4.70.1215", "3.01"},
    {"4.70.1300", "3.02"},     {"4.71.1712", "4.0"},      {"4.72.2106", "4.01"},
    {"4.72.3110", "4.01 SP1"}, {"4.72.3612", "4.01 SP2"}, {"5.0.2014", "5.0"},
    {"5.0.2919", "5.01"},      {"5.50.4134", "5.5"},      {"6.0.2600", "6.0"},
};

/// The numbers of "4.74.8702.0".
std::vector<int> numbersOf(const std::string& version) {
    std::vector<int> numbers;
    bool inNumber = false;
    for (const char c : version) {
        if (c < '0' || c > '9') {
            inNumber = false;
            continue;
        }
        if (!inNumber) numbers.push_back(0);
        inNumber = true;
        if (numbers.back() < 100000) numbers.back() = numbers.back() * 10 + (c - '0');
    }
    return numbers;
}

/// The name of the newest version that is not newer; the version itself before the first.
std::string friendlyName(const std::string& version, std::span<const VersionName> table) {
    std::string name = version;
    for (const VersionName& row : table)
        if (numbersOf(row.version) <= numbersOf(version)) name = row.name;
    return name;
}

/// Whether a component is no older than the oldest version with a name. What does not know its
/// version is as it should be.
bool isNewEnough(const HelpComponent& component, std::span<const VersionName> table) {
    return component.version.empty() ||
           numbersOf(component.version) >= numbersOf(table.front().version);
}

bool isThere(const HelpComponent& component) {
    return component.path && fileExists(*component.path);
}

}  // namespace

HTMLHelp::HTMLHelp(Platform& platform, HelpEngine& engine)
    : HHMsgTitle(messageTitle), HHDefaultURL("index.html"), platform_(platform), engine_(engine) {}

void HTMLHelp::message(const std::string& text, const std::string& title) {
    HHMsgText = text;
    platform_.message(MessageIcon::exclamation, title, text);
}

std::string HTMLHelp::HHRegFileName() const { return helpFileName; }

std::string HTMLHelp::HHRegFilePath() const {
    return engine_.helpComponent().path.value_or(std::string());
}

bool HTMLHelp::HHRegFileExists() const { return isThere(engine_.helpComponent()); }
bool HTMLHelp::HHInstalled() const { return HHRegFileExists(); }
std::string HTMLHelp::HHVersion() const { return engine_.helpComponent().version; }
std::string HTMLHelp::IEVersion() const { return engine_.browserComponent().version; }

std::string HTMLHelp::HHFriendlyName() const { return friendlyName(HHVersion(), helpVersions); }
std::string HTMLHelp::IEFriendlyName() const { return friendlyName(IEVersion(), browserVersions); }

long HTMLHelp::HHWndHandle() {
    if (window_ == 0) message("No HTML Help window handle to retrieve.");
    return window_;
}

/// A topic inside a file: the file's name, "::/" and the topic.
std::string HTMLHelp::topicAddress(const std::string& topic) const {
    return topic.empty() ? CHMFile : CHMFile + "::/" + topic;
}

HelpRequest HTMLHelp::request(HelpRequest::Kind kind) const {
    HelpRequest asked;
    asked.kind = kind;
    asked.file = CHMFile;
    asked.window = HHWindow;
    asked.topic = topicAddress(HHDefaultURL);
    asked.onTop = HHShowOnTop;
    return asked;
}

void HTMLHelp::display(HelpRequest asked) {
    if (!EnsureFileExists(CHMFile)) return;
    if (const long window = engine_.display(asked); window != 0)
        window_ = window;
    else
        message(CHMFile + " is not a valid HTML Help file.");
}

void HTMLHelp::HHDisplayContents() { display(request(HelpRequest::Kind::contents)); }
void HTMLHelp::HHDisplayIndex() { display(request(HelpRequest::Kind::index)); }
void HTMLHelp::HHDisplaySearch() { display(request(HelpRequest::Kind::search)); }

void HTMLHelp::HHDisplayTopicURL() {
    HelpRequest asked = request(HelpRequest::Kind::topic);
    asked.topic = topicAddress(HHTopicURL);
    display(std::move(asked));
}

void HTMLHelp::HHDisplayTopicID() {
    HelpRequest asked = request(HelpRequest::Kind::topicId);
    asked.topicId = HHTopicID;
    display(std::move(asked));
}

void HTMLHelp::HHDisplayKeyword() {
    HelpRequest asked = request(HelpRequest::Kind::keyword);
    asked.keyword = HHKeyword;
    display(std::move(asked));
}

void HTMLHelp::HHDisplayALink() {
    HelpRequest asked = request(HelpRequest::Kind::aLink);
    asked.keyword = HHALink;
    display(std::move(asked));
}

std::string HTMLHelp::popupFont() const {
    std::string font = (HHPopupTextFont.empty() ? "Arial" : HHPopupTextFont) + "," +
                       std::to_string(HHPopupTextSize) + ",,";
    if (HHPopupTextBold) font += "Bold ";
    if (HHPopupTextItalic) font += "Italic ";
    if (HHPopupTextUnderline) font += "Underline";
    return font;
}

void HTMLHelp::HHDisplayPopup() {
    HelpPopup popup;
    popup.font = popupFont();
    popup.textColor = HHPopupCustomColors ? HHPopupCustomTextColor : HHPopupTextColor;
    popup.backColor = HHPopupCustomColors ? HHPopupCustomBackColor : HHPopupBackColor;
    if (HHPopupType == PopupType::file) {
        if (!HHPopupFile.ends_with(".txt")) {
            message("The file specified as the text popup source, '" + HHPopupFile +
                    "', is not a valid popup file.");
            return;
        }
        popup.file = HHPopupFile;
        popup.id = HHPopupID;
    } else {
        popup.text = HHPopupText;
    }
    engine_.displayPopup(popup);
}

void HTMLHelp::HHInvokeWhatsThisHelp() { engine_.invokeWhatsThis(); }

void HTMLHelp::HHClose() {
    engine_.close();
    window_ = 0;
}

bool HTMLHelp::HHCheckRegistry(const std::string& name) const {
    if (name == helpFileName) return engine_.helpComponent().path.has_value();
    return name == browserFileName && engine_.browserComponent().path.has_value();
}

void HTMLHelp::HHRegister(const std::string& name, const std::string& path) {
    const std::string title = std::string(messageTitle) + ": HHRegister Error";
    if (HHCheckRegistry(name))
        message(name + " is already registered.  " +
                    "HHRegister will not be run as no action need be taken.",
                title);
    else if (path.empty())
        message("Cannot register " + name + " without having a supplied path.", title);
    else if (EnsureFileExists(path))
        engine_.registerComponent(path);
}

void HTMLHelp::HHUnRegister(const std::string& name) {
    if (HHCheckRegistry(name))
        engine_.unregisterComponent(name);
    else
        message(name + " is not registered.  " +
                "HHUnRegister will not be run as no action need be taken.");
}

bool HTMLHelp::HHVerifyMinConfig() {
    const HelpComponent help = engine_.helpComponent(), browser = engine_.browserComponent();
    if (!help.path)
        message("Hhctrl.ocx is not registered.  Please install HTML Help.");
    else if (!isThere(help))
        message("Hhctrl.ocx is not in its registered location.  Please reinstall HTML Help.");
    else if (!browser.path)
        message("Shdocvw.dll is not registered.  Please install Internet Explorer.");
    else if (!isThere(browser))
        message(
            "Internet Explorer is not in its registered location.  "
            "Please reinstall Internet Explorer.");
    else
        return isNewEnough(help, helpVersions) && isNewEnough(browser, browserVersions);
    return false;
}

bool HTMLHelp::EnsureFileExists(const std::string& path) {
    if (fileExists(path)) return true;
    message(path + " does not exist.\n" +
            "Please make sure the correct path and file name have been specified.");
    return false;
}

bool HTMLHelp::HHSetHelpFile(const std::string& path) {
    if (!EnsureFileExists(path)) return false;
    if (!engine_.isHelpFile(path)) {
        message(path + " is not a valid HTML Help file.");
        return false;
    }
    CHMFile = path;
    return true;
}

void HTMLHelp::HHDeleteJumpURLSysMenu() {
    if (const long window = HHWndHandle(); window != 0) engine_.deleteJumpEntry(window);
}

}  // namespace varnholt

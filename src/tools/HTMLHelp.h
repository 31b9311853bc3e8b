// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "forms/platform.h"
#include "tools/help_engine.h"

namespace varnholt {

/// The program's compiled help, whatever engine the platform has for it: state by name, and
/// operations that work on that state.
///
/// The class says its few messages itself, since it must be able to speak where everything else is
/// missing. Each has the title `HHMsgTitle`, and the operation then does nothing more.
class HTMLHelp {
 public:
    HTMLHelp(Platform& platform, HelpEngine& engine);

    std::string CHMFile;       ///< the help file
    std::string HHWindow;      ///< kind of window to show it in
    std::string HHTopicURL;    ///< "borehole.html#soil"
    long HHTopicID = 0;        ///< number of a topic
    std::string HHMsgTitle;    ///< of the messages of this class
    std::string HHMsgText;     ///< the message shown last
    std::string HHKeyword;     ///< to look up
    std::string HHDefaultURL;  ///< the topic beside contents, index and search
    std::string HHALink;       ///< name of an associative link
    bool HHShowOnTop = false;  ///< above the program's windows
    std::string HHPopupFile;   ///< texts for popups
    long HHPopupID = 0;        ///< of a text in that file
    std::string HHPopupText;   ///< the text itself
    enum class PopupType { text, file } HHPopupType = PopupType::text;
    long HHPopupTextColor = -1;  ///< one of the engine's colours, -1 for the system's
    long HHPopupBackColor = -1;
    long HHPopupCustomTextColor = 0;  ///< taken with HHPopupCustomColors
    long HHPopupCustomBackColor = 0xFFFFFF;
    bool HHPopupCustomColors = false;
    std::string HHPopupTextFont = "Arial";  ///< its default also stands for an empty one
    int HHPopupTextSize = 10;               ///< points
    bool HHPopupTextBold = false;
    bool HHPopupTextItalic = false;
    bool HHPopupTextUnderline = false;

    // Facts about the machine.
    std::string HHRegFileName() const;  ///< of the help engine, "hhctrl.ocx"
    std::string HHRegFilePath() const;  ///< empty when it is not registered
    bool HHRegFileExists() const;
    bool HHInstalled() const;  ///< registered and there
    std::string HHVersion() const;
    std::string IEVersion() const;
    std::string HHFriendlyName() const;  ///< the version as its makers called it
    std::string IEFriendlyName() const;
    /// The window of the engine; 0 with a message when there is none.
    long HHWndHandle();

    void HHDisplayTopicURL();
    void HHDisplayTopicID();
    void HHDisplaySearch();
    void HHDisplayKeyword();
    void HHDisplayIndex();
    void HHDisplayContents();
    void HHDisplayALink();
    void HHDisplayPopup();
    void HHInvokeWhatsThisHelp();
    void HHClose();
    /// Makes a file of the engine known to the machine.
    /// @param path  with its folder; without one it cannot be registered
    void HHRegister(const std::string& name, const std::string& path);
    void HHUnRegister(const std::string& name);
    bool HHCheckRegistry(const std::string& name) const;
    /// Whether the engine is complete and no older than the first version of its kind; a message
    /// says what is missing.
    bool HHVerifyMinConfig();
    /// Whether the file is there; a message says when it is not.
    bool EnsureFileExists(const std::string& path);
    /// Makes a file the help file, if it is one.
    bool HHSetHelpFile(const std::string& path);
    void HHDeleteJumpURLSysMenu();

    /// The parameter of a popup's font: face, size and the words of its style.
    std::string popupFont() const;

 private:
    void message(const std::string& text) { message(text, HHMsgTitle); }
    void message(const std::string& text, const std::string& title);
    void display(HelpRequest request);
    HelpRequest request(HelpRequest::Kind kind) const;
    std::string topicAddress(const std::string& topic) const;

    Platform& platform_;
    HelpEngine& engine_;
    long window_ = 0;
};

}  // namespace varnholt

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

namespace varnholt {

/// What a help engine is asked to show.
struct HelpRequest {
    enum class Kind { contents, index, search, topic, topicId, keyword, aLink };

    Kind kind = Kind::contents;
    std::string file;     ///< the help file
    std::string window;   ///< name of the kind of window; may be empty
    std::string topic;    ///< file, "::/" and topic; of the contents the page beside them
    long topicId = 0;     ///< number of a topic
    std::string keyword;  ///< to look up in the index, or the name of an associative link
    bool onTop = false;   ///< the window stays above the program's others
};

/// A small window with a few sentences.
struct HelpPopup {
    std::string file;  ///< with topic texts; empty where the text itself is given
    long id = 0;       ///< of a text in the file
    std::string text;
    std::string font;  ///< face, size and style as one parameter: "Arial,10,,Bold "
    long textColor = -1, backColor = -1;  ///< blue-green-red; -1 for the system's
};

/// A component that the engine is made of, as the machine knows it.
struct HelpComponent {
    std::optional<std::string> path;  ///< where it is registered; nothing when it is not
    std::string version;              ///< of its file, "4.74.8702.0"
};

/// The platform's engine for help.
class HelpEngine {
 public:
    virtual ~HelpEngine() = default;

    /// Whether the file is one that the engine can open.
    virtual bool isHelpFile(const std::string& path) const = 0;
    /// Shows it. The handle of the engine's window; 0 when nothing could be shown.
    virtual long display(const HelpRequest& request) = 0;
    virtual void displayPopup(const HelpPopup& popup) = 0;
    /// The next click on a control explains it.
    virtual void invokeWhatsThis() = 0;
    virtual void close() = 0;
    /// Takes the entry that jumps to any address out of the system menu of the engine's window.
    virtual void deleteJumpEntry(long /*window*/) {}

    virtual HelpComponent helpComponent() const = 0;
    virtual HelpComponent browserComponent() const = 0;
    /// Makes a component known to the machine, or unknown.
    virtual void registerComponent(const std::string& /*path*/) {}
    virtual void unregisterComponent(const std::string& /*name*/) {}
};

/// The engine of a program without windows: it takes every request, and shows nothing.
class UnseenHelp : public HelpEngine {
 public:
    bool isHelpFile(const std::string& path) const override;
    long display(const HelpRequest& request) override;
    void displayPopup(const HelpPopup&) override {}
    void invokeWhatsThis() override {}
    void close() override {}
    HelpComponent helpComponent() const override { return {}; }
    HelpComponent browserComponent() const override { return {}; }
};

}  // namespace varnholt

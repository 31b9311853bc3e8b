// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QtPlugin>
#include <functional>
#include <string>

#include "desktop/reading/page_display.h"
#include "forms/texts.h"
#include "tools/help_engine.h"

class QWidget;

namespace varnholt {

/// What a help window knows of the program.
struct HelpPlaces {
    const Texts* texts = nullptr;
    std::function<PageDisplay*(QWidget* parent)> newDisplay;
    std::function<QIcon(const QString& name)> icon;
    /// Where the collection and the index of the search are kept; both can be made again.
    std::string cacheFolder;
    /// Opens an example that a page offers, by the name of its file.
    std::function<void(const std::string& file)> openExample;
    /// Shows a page of the help's folder where the module is missing.
    std::function<void(const std::string& path)> showPage;
};

/// The window that shows the help. It ends itself with the program.
class HelpWindow {
 public:
    virtual ~HelpWindow() = default;
    virtual QWidget* window() = 0;
    /// False when the file cannot be opened as help.
    virtual bool display(const HelpRequest& request) = 0;
    virtual void close() = 0;
    /// Address of the page on show: "borehole.html#soil".
    virtual std::string page() const = 0;
};

/// The part of the program that shows the help, with contents, index and search. It stands in a
/// library of its own, which is loaded with the first page.
class HelpModule {
 public:
    virtual ~HelpModule() = default;
    virtual HelpWindow* newWindow(const HelpPlaces& places) = 0;
};

}  // namespace varnholt

Q_DECLARE_INTERFACE(varnholt::HelpModule, "varnholt.HelpModule/1")

// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/frmBrowser.h"

#include <algorithm>
#include <array>

#include "basis/file_system.h"
#include "forms/text_numbers/browser.h"
#include "forms/text_numbers/help.h"
#include "frame/varnmain.h"

namespace varnholt {
namespace {

enum Button { back, forward, refresh, home, search, stop };

constexpr std::array<int, 6> buttonTexts{Text::browserBack,    Text::browserForward,
                                         Text::browserRefresh, Text::browserHome,
                                         Text::browserSearch,  Text::browserStop};

int textOf(PageRefusal why) {
    switch (why) {
        case PageRefusal::address:
            return Text::browserAddressRefused;
        case PageRefusal::outside:
            return Text::browserOpenedOutside;
        case PageRefusal::tooLarge:
            return Text::browserPageTooLarge;
        case PageRefusal::download:
            return Text::browserDownloadRefused;
        case PageRefusal::otherWindow:
            return Text::browserWindowRefused;
        case PageRefusal::certificate:
            break;
    }
    return Text::browserCertificateRefused;
}

}  // namespace

frmBrowser::frmBrowser(Varnmain& main, PageSource& pages) : ChildWindow("frmBrowser", main) {
    setCaption(text(Text::browserTitle));
    addControls();
    const std::string help = joinPath(main.MainDirectory, "OnlineHelp");
    engine_ =
        pages.newEngine(*this, {joinPath(help, "index.html"), joinPath(help, "search.html"), help,
                                text(Text::browserErrorTitle), text(Text::browserErrorText)});
    Values& values = publicValues();
    values.add("StartingAddress", &StartingAddress);
    values.add("browserLoading", &browserLoading_);
    values.add("timTimer.Enabled", &timTimer_);
}

void frmBrowser::addControls() {
    add("tbToolBar", ControlKind::frame);
    for (std::size_t i = 0; i < buttonTexts.size(); ++i) {
        const std::string name = elementName("tbToolBar", i);
        add(name, ControlKind::button, buttonTexts[i])
            .setTooltip(text(buttonTexts[i]))
            .in("tbToolBar");
        onClick(name, [this, i] { tbToolBar_ButtonClick(static_cast<int>(i)); });
    }
    add("picAddress", ControlKind::frame);
    add("lblAddress", ControlKind::label, Text::browserAddress).in("picAddress");
    add("cboAddress", ControlKind::combo).editableText().captionedBy("lblAddress").in("picAddress");
    onClick("cboAddress", [this] { cboAddress_Click(); });
    onKey("cboAddress", [this](const std::string& key) {
        if (key == "Enter") cboAddress_Click();
        if (key == "Ctrl+V") type("cboAddress", platform().clipboard());
    });
    addNotice();
    add("brwWebBrowser", ControlKind::image);
}

/// Form_Load.
void frmBrowser::load() {
    ++main().browserCount;
    if (StartingAddress.empty()) return;
    browserLoading_ = true;
    control("cboAddress").setText(StartingAddress);
    go(StartingAddress);
    // What is refused ends the first navigation too.
    if (!engine_->busy()) browserLoading_ = false;
}

void frmBrowser::unloaded() {
    --main().browserCount;
    startTimer(false);
    engine_->stop();
}

void frmBrowser::startTimer(bool on) {
    timTimer_ = on;
    engine_->runTimer(on);
}

void frmBrowser::go(const std::string& address) {
    refusal_.clear();
    startTimer(true);
    engine_->navigate(address);
}

void frmBrowser::cboAddress_Click() {
    // The list may show another address before the page has come.
    const std::string address = control("cboAddress").text();
    if (!browserLoading_) go(address);
}

void frmBrowser::tbToolBar_ButtonClick(int button) {
    refusal_.clear();
    startTimer(true);
    switch (button) {
        // Going past the end of the history is a failure that nobody needs to hear of.
        case back:
            engine_->goBack();
            break;
        case forward:
            engine_->goForward();
            break;
        case refresh:
            engine_->refresh();
            break;
        case home:
            engine_->goHome();
            break;
        case search:
            engine_->goSearch();
            break;
        default:
            stopLoading();
    }
}

void frmBrowser::stopLoading() {
    startTimer(false);
    engine_->stop();
    browserLoading_ = false;
    showTitle();
}

void frmBrowser::timTimer_Timer() {
    if (engine_->busy()) return setCaption(text(Text::browserWorking));
    startTimer(false);
    showTitle();
}

void frmBrowser::showTitle() {
    const std::string title = engine_->title();
    setCaption(title.empty() ? text(Text::browserTitle) : title);
}

void frmBrowser::navigateComplete(const std::string& address) {
    browserLoading_ = false;
    Control& list = control("cboAddress");
    std::vector<std::string> items = list.items();
    const bool listed = std::find(items.begin(), items.end(), address) != items.end();
    // The first page may be refused before there is any address.
    if (listed || address.empty()) return;
    items.insert(items.begin(), address);
    list.setItems(items).setText(address);
}

void frmBrowser::downloadComplete() {
    showTitle();
    refreshNotice();
}

void frmBrowser::refused(PageRefusal why, const std::string& address) {
    refusal_ = filledIn(text(textOf(why)), {address});
    if (why == PageRefusal::outside) platform().openOutside(address);
    refreshNotice();
}

std::vector<Notice> frmBrowser::notices() {
    if (refusal_.empty()) return {};
    return {{refusal_}};
}

}  // namespace varnholt

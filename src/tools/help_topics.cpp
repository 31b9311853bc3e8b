// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/help_topics.h"

#include <algorithm>
#include <iterator>
#include <span>
#include <string_view>

#include "forms/control.h"
#include "frame/menu_table.h"
#include "tools/page_address.h"

namespace varnholt {
namespace {

/// Windows and the beginnings of names in them; a row without one is the window's own.
struct TopicRow {
    const char* form;
    const char* names;
    const char* topic;
};

// clang-format off
constexpr TopicRow topics[] = {
    {"frmBHDesign", "", "borehole"},
    {"frmBHDesign", "CA", "borehole#results"},
    {"frmBHDesign", "CASecond", "second_opinion#row"},
    {"frmBHDesign", "CAWhatIf", "what_if"},
    {"frmBHDesign", "CAHybrid", "tower"},
    {"frmBHDesign", "CAPercentHybrid", "tower"},
    {"frmBHDesign", "CACondenser", "tower"},
    {"frmBHDesign", "CACooling", "tower"},
    {"frmBHDesign", "EKW", "borehole#power"},
    {"frmBHDesign", "PA", "borehole#pattern"},
    {"frmBHDesign", "FL", "borehole#fluid"},
    {"frmBHDesign", "SO", "borehole#soil"},
    {"frmBHDesign", "PI", "borehole#piping"},
    {"frmBHDesign", "IN", "borehole#information"},
    {"frmSecondOpinion", "", "second_opinion#window"},
    {"frmSecondOpinion", "img", "second_opinion#pictures"},
    {"frmSecondOpinion", "SETable", "second_opinion#pictures"},
    {"frmSecondOpinion", "SEDepth", "second_opinion#pictures"},
    {"frmSecondOpinion", "SEYearFrame", "second_opinion#year"},
    {"frmSecondOpinion", "SEInputs", "second_opinion#inputs"},
    {"frmSecondOpinion", "SENote", "second_opinion#limits"},
    {"frmWhatIf", "", "what_if#window"},
    {"frmWhatIf", "WINote", "what_if#limits"},
    {"frmWhatIf", "WIMeasure", "what_if#method"},
    {"frmWhatIf", "WINeed", "what_if#method"},
    {"frmWhatIf", "WIGround", "what_if#decides"},
    {"frmWhatIf", "WISpread", "what_if#decides"},
    {"frmWhatIf", "WITie", "what_if#decides"},
    {"frmWhatIf", "imgTornado", "what_if#decides"},
    {"frmWhatIf", "WIDrawn", "what_if#sure"},
    {"frmWhatIf", "WIDepths", "what_if#sure"},
    {"frmWhatIf", "imgSure", "what_if#sure"},
    {"frmWhatIf", "WL", "what_if#layout"},
    {"frmWhatIf", "WLLand", "what_if#land"},
    {"frmWhatIf", "imgLand", "what_if#land"},
    {"frmWhatIf", "imgFields", "what_if#layout"},
    {"frmWhatIf", "WC", "what_if#cost"},
    {"frmWhatIf", "imgCost", "what_if#cost"},
    {"frmWhatIf", "WV", "what_if#alternatives"},
    {"frmWhatIf", "WT", "what_if#tower"},
    {"frmWhatIf", "imgTower", "what_if#tower"},
    {"frmHZDesign", "", "horizontal"},
    {"frmHZDesign", "CA", "horizontal#results"},
    {"frmHZDesign", "CAHybrid", "tower"},
    {"frmHZDesign", "CAPercentHybrid", "tower"},
    {"frmHZDesign", "CACondenser", "tower"},
    {"frmHZDesign", "CACooling", "tower"},
    {"frmHZDesign", "EKW", "horizontal#power"},
    {"frmHZDesign", "PA", "horizontal#configuration"},
    {"frmHZDesign", "FL", "horizontal#fluid"},
    {"frmHZDesign", "SO", "horizontal#soil"},
    {"frmHZDesign", "PI", "horizontal#pipe"},
    {"frmHZDesign", "IN", "horizontal#information"},
    {"frmSWDesign", "", "surface_water"},
    {"frmSWDesign", "CA", "surface_water#results"},
    {"frmSWDesign", "EKW", "surface_water#power"},
    {"frmSWDesign", "FL", "surface_water#fluid"},
    {"frmSWDesign", "SO", "surface_water#soil"},
    {"frmSWDesign", "PI", "surface_water#loops"},
    {"frmSWDesign", "PIHeader", "surface_water#headers"},
    {"frmSWDesign", "PIPrimaryHeader", "surface_water#headers"},
    {"frmSWDesign", "PIBranchHeader", "surface_water#headers"},
    {"frmSWDesign", "WA", "surface_water#water"},
    {"frmSWDesign", "IN", "surface_water#information"},
    {"frmZoneManage", "", "loads"},
    {"frmAvgBlock", "", "average_block"},
    {"frmLinkOptions", "", "linking"},
    {"frmHPEdit", "", "pump_editor"},
    {"frmBrowser", "", "browser"},
    {"frmBrowser", "cboAddress", "browser#address"},
    {"frmBrowser", "lblAddress", "browser#address"},
    {"frmBrowser", "tbToolBar", "browser#window"},
    {"frmBrowser", "tbToolBar(0)", "browser#back"},
    {"frmBrowser", "tbToolBar(1)", "browser#back"},
    {"frmBrowser", "tbToolBar(2)", "browser#refresh"},
    {"frmBrowser", "tbToolBar(3)", "browser#home"},
    {"frmBrowser", "tbToolBar(4)", "browser#search"},
    {"frmBrowser", "tbToolBar(5)", "browser#stop"},
    {"frmDiffusivityCalc", "", "calculators#diffusivity"},
    {"frmPumpPowerCalc", "", "calculators#pump-power"},
    {"frmEqvHoursCalc", "", "calculators#hours"},
    {"frmImport1", "", "importing#months"},
    {"frmImport1", "cmdImport(2)", "importing#files"},
    {"frmImport1", "cmdImport(4)", "importing#transfer"},
    {"frmImport1", "cmdImport(5)", "importing#tables"},
    {"frmImport1", "fraTransfer", "importing#transfer"},
    {"frmImport1", "lblTransferTarget", "importing#transfer"},
    {"frmImport1", "lblNotLookedAt", "importing#transfer"},
    {"frmImport1", "optDesignDay", "importing#design-day"},
    {"frmImport1", "imgDesignDay", "importing#design-day"},
    {"frmImportTable", "", "importing#tables"},
    {"frmTransferOptions", "", "calculators#hours"},
    {"frmPROptions", "", "reports#projects"},
    {"frmZNOptions", "", "reports#zones"},
    {"Varnmain", "", "index"},
    {"Varnmain", "NewBorehole", "borehole"},
    {"Varnmain", "NewHorizontal", "horizontal"},
    {"Varnmain", "NewSurfaceWater", "surface_water"},
    {"Varnmain", "mnuFile", "files"},
    {"Varnmain", "OpenProject", "files"},
    {"Varnmain", "SaveProject", "files"},
    {"Varnmain", "mnuFilePrint", "reports"},
    {"Varnmain", "mnuFilePrintSetup", "reports#preview"},
    {"Varnmain", "mnuUndo", "index#undo"},
    {"Varnmain", "mnuRedo", "index#undo"},
    {"Varnmain", "mnuAvgBlock", "average_block"},
    {"Varnmain", "mnuZoneManage", "loads"},
    {"Varnmain", "mnuLink", "linking"},
    {"Varnmain", "mnuUnlink", "linking"},
    {"Varnmain", "mnuMonthlyLoadsImport", "importing"},
    {"Varnmain", "EditAdd", "pump_editor"},
    {"Varnmain", "mnuDiffCalc", "calculators#diffusivity"},
    {"Varnmain", "mnuEqvHours", "calculators#hours"},
    {"Varnmain", "mnuPumpPowerCalc", "calculators#pump-power"},
    {"Varnmain", "Metric", "index#units"},
    {"Varnmain", "English", "index#units"},
    {"Varnmain", "Tables", "browser"},
    {"Varnmain", "FluidProperties", "browser"},
    {"Varnmain", "SoilProperties", "browser"},
    {"Varnmain", "PipeProperties", "browser"},
    {"Varnmain", "Conversions", "browser"},
    {"Varnmain", "mnuHelp", "keys#help-keys"},
    {"Varnmain", "mnuWhatsThis", "keys#help-keys"},
};
// clang-format on

/// The command that a button of the main window's tool bar runs; any other name as it is.
std::string commandOf(const Form& form, const std::string& control) {
    const std::span<const ToolRow> tools = toolTable();
    for (std::size_t i = 0; form.formName() == "Varnmain" && i < tools.size(); ++i)
        if (control == elementName("tbrMain", i)) return tools[i].command;
    return control;
}

/// The window's row with the longest beginning of the name; null for a window without rows.
const TopicRow* rowFor(const std::string& form, const std::string& control) {
    const TopicRow* best = nullptr;
    for (const TopicRow& row : topics)
        if (form == row.form && control.starts_with(row.names) &&
            (best == nullptr ||
             std::string_view(row.names).size() > std::string_view(best->names).size()))
            best = &row;
    return best;
}

std::string pageNameOf(const std::string& topic) { return topic.substr(0, topic.find('#')); }

/// Whether a topic stands on the page of another kind of window: that of a tab that several kinds
/// share.
bool isOfAnotherWindow(const std::string& form, const std::string& topic) {
    const TopicRow* own = rowFor(form, {});
    if (own == nullptr || pageNameOf(own->topic) == pageNameOf(topic)) return false;
    return std::any_of(std::begin(topics), std::end(topics), [&](const TopicRow& row) {
        return *row.names == '\0' && row.topic == pageNameOf(topic);
    });
}

/// "borehole.html#soil" of "borehole#soil".
std::string pageOf(const std::string& topic) {
    const std::size_t hash = topic.find('#');
    return topic.substr(0, hash) + ".html" +
           (hash == std::string::npos ? std::string() : topic.substr(hash));
}

std::string topicOf(const Form& form, const std::string& name) {
    const TopicRow* row = rowFor(form.formName(), commandOf(form, name));
    std::string around = name;
    while (!around.empty() && form.has(around)) {
        const Control& control = form.control(around);
        const std::string& topic = control.helpTopic();
        const bool told =
            row != nullptr && *row->names != '\0' && isOfAnotherWindow(form.formName(), topic);
        if (!topic.empty() && !told) return topic;
        around = control.container();
    }
    return row == nullptr ? "index" : row->topic;
}

}  // namespace

std::string helpPageOf(const Form& form, const std::string& control) {
    return pageOf(topicOf(form, control));
}

namespace {

/// What a tag stands for between the words around it: nothing within a sentence, a colon behind
/// the caption of a table's row.
const char* textOf(std::string_view tag) {
    constexpr std::string_view inSentence[] = {"a", "b", "i", "em", "code", "sub", "sup", "span"};
    std::string_view name = tag.substr(0, tag.find_first_of(" \n"));
    if (name == "/th") return ": ";
    if (name.starts_with("/")) name.remove_prefix(1);
    const bool within =
        std::find(std::begin(inSentence), std::end(inSentence), name) != std::end(inSentence);
    return within ? "" : " ";
}

/// The text between tags, its blanks joined.
std::string withoutTags(const std::string& html) {
    std::string text;
    for (std::size_t at = 0; at < html.size();) {
        const std::size_t open = std::min(html.find('<', at), html.size());
        text.append(html, at, open - at);
        if (open == html.size()) break;
        const std::size_t close = std::min(html.find('>', open), html.size());
        text += textOf(std::string_view(html).substr(open + 1, close - open - 1));
        at = close + 1;
    }
    return plainTextOf(text);
}

/// From the tag that begins at `open` up to its end tag.
std::string elementAt(const std::string& page, std::size_t open) {
    const std::size_t nameEnd = page.find_first_of(" >", open);
    if (nameEnd == std::string::npos) return {};
    const std::string name = page.substr(open + 1, nameEnd - open - 1);
    const std::size_t end = page.find("</" + name, nameEnd);
    return page.substr(open, end == std::string::npos ? end : end - open);
}

/// The first paragraph from a place on, and the next one as well where it ends in a colon; none
/// where a heading comes before it.
std::string paragraphAfter(const std::string& page, std::size_t place) {
    const std::size_t first = page.find("<p", place);
    if (first == std::string::npos || page.find("<h", place + 1) < first) return {};
    const std::string text = withoutTags(elementAt(page, first));
    if (!text.ends_with(':')) return text;
    return text + " " + paragraphAfter(page, first + 1);
}

}  // namespace

std::string sectionText(const std::string& page, const std::string& section) {
    const std::size_t main = std::min(page.find("<main"), page.size());
    if (section.empty()) {
        const std::size_t first = page.find("<p", main);
        return first == std::string::npos ? std::string() : withoutTags(elementAt(page, first));
    }
    const std::size_t mark = page.find("id=\"" + section + "\"");
    if (mark == std::string::npos) return {};
    const std::size_t open = page.rfind('<', mark);
    std::string text = withoutTags(elementAt(page, open));
    // A heading says little without what follows it.
    if (page.compare(open, 2, "<h") == 0)
        if (const std::string next = paragraphAfter(page, mark); !next.empty()) text += ". " + next;
    return text;
}

}  // namespace varnholt

// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/help_topics.h"

#include <algorithm>
#include <cctype>
#include <span>

#include "tools/page_address.h"

namespace varnholt {
namespace {

/// Windows and the kinds of names in them; a row without a prefix is the window's own.
struct TopicRow {
    const char* form;
    const char* prefix;
    const char* topic;
};

// clang-format off
constexpr TopicRow topics[] = {
    {"frmBHDesign", "CA", "borehole#results"},
    {"frmBHDesign", "EKW", "borehole#power"},
    {"frmBHDesign", "PA", "borehole#pattern"},
    {"frmBHDesign", "FL", "borehole#fluid"},
    {"frmBHDesign", "SO", "borehole#soil"},
    {"frmBHDesign", "PI", "borehole#piping"},
    {"frmBHDesign", "IN", "borehole#information"},
    {"frmBHDesign", "", "borehole"},
    {"frmHZDesign", "", "horizontal"},
    {"frmSWDesign", "", "surface_water"},
    {"frmZoneManage", "", "loads"},
    {"frmAvgBlock", "", "average_block"},
    {"frmLinkOptions", "", "linking"},
    {"frmHPEdit", "", "pump_editor"},
    {"frmBrowser", "", "browser"},
    {"frmDiffusivityCalc", "", "calculators#diffusivity"},
    {"frmPumpPowerCalc", "", "calculators#pump-power"},
    {"frmEqvHoursCalc", "", "calculators#hours"},
    {"frmImport1", "", "importing"},
    {"frmImportTable", "", "importing#tables"},
    {"frmTransferOptions", "", "importing"},
    {"frmPROptions", "", "reports"},
    {"frmZNOptions", "", "reports"},
};
// clang-format on

/// "SO" of "SOSoilCommand": the capitals before the last one, which begins the name.
std::string prefixOf(const std::string& control) {
    std::size_t capitals = 0;
    while (capitals < control.size() &&
           std::isupper(static_cast<unsigned char>(control[capitals])) != 0)
        ++capitals;
    return capitals < 2 ? std::string() : control.substr(0, capitals - 1);
}

/// The window's row for the prefix; null for none.
const char* topicFor(const std::string& form, const std::string& prefix) {
    for (const TopicRow& row : topics)
        if (form == row.form && prefix == row.prefix) return row.topic;
    return nullptr;
}

/// "borehole.html#soil" of "borehole#soil".
std::string pageOf(const std::string& topic) {
    const std::size_t hash = topic.find('#');
    return topic.substr(0, hash) + ".html" +
           (hash == std::string::npos ? std::string() : topic.substr(hash));
}

std::string topicOf(const Form& form, const std::string& name) {
    std::string around = name;
    while (!around.empty() && form.has(around)) {
        const Control& control = form.control(around);
        if (!control.helpTopic().empty()) return control.helpTopic();
        around = control.container();
    }
    if (const char* topic = topicFor(form.formName(), prefixOf(name))) return topic;
    if (const char* topic = topicFor(form.formName(), "")) return topic;
    return "index";
}

}  // namespace

std::string helpPageOf(const Form& form, const std::string& control) {
    return pageOf(topicOf(form, control));
}

namespace {

/// The text between tags, its blanks joined.
std::string withoutTags(const std::string& html) {
    std::string text;
    bool inTag = false;
    for (const char c : html) {
        if (c == '<') {
            inTag = true;
            text += ' ';
        } else if (c == '>') {
            inTag = false;
        } else if (!inTag) {
            text += c;
        }
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
    if (page.compare(open, 2, "<h") == 0) {
        const std::size_t next = page.find("<p", mark);
        if (next != std::string::npos) text += ". " + withoutTags(elementAt(page, next));
    }
    return text;
}

}  // namespace varnholt

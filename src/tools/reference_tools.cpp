// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/reference_tools.h"

#include <utility>

#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "forms/text_numbers/language.h"
#include "tools/frmBrowser.h"
#include "tools/help_topics.h"

namespace varnholt {
namespace {

struct TableRow {
    const char* command;
    const char* baseName;
    bool hasMetric;
};

constexpr TableRow tables[] = {
    {"FluidProperties", "FluidTables", true},
    {"PipeProperties", "PipeTables", true},
    {"SoilProperties", "SoilTables", true},
    {"Conversions", "ConversionTable", false},
};

}  // namespace

ReferenceTools::ReferenceTools(Varnmain& main, PageSource& pages, HelpEngine& help)
    : main_(main), pages_(pages), help_(main.platform(), help) {
    installTables();
    main_.setCommand("mnuHelp", CommandNeeds::nothing, [this] { mnuHelp_Click(); });
    main_.setCommand("mnuWhatsThis", CommandNeeds::nothing,
                     [this] { help_.HHInvokeWhatsThisHelp(); });
    main_.explainBy(*this);
}

void ReferenceTools::installTables() {
    for (const TableRow& row : tables)
        main_.setCommand(row.command, CommandNeeds::nothing,
                         [this, row] { openTable(row.baseName, row.hasMetric); });
}

void ReferenceTools::openTable(const char* baseName, bool hasMetric) {
    const bool metric = hasMetric && main_.control("Metric").checked();
    browse(main_.MainDirectory + main_.text(Text::tablesFolder) +
           main_.text(Text::tablesLanguageFolder) + baseName + (metric ? "Metric" : "") + ".html");
}

void ReferenceTools::browse(const std::string& address) {
    auto browser = std::make_unique<frmBrowser>(main_, pages_);
    browser->StartingAddress = address;
    main_.open(std::move(browser));
}

void ReferenceTools::mnuHelp_Click() {
    help_.CHMFile = main_.helpFile;
    main_.HHTopicURL = help_.HHTopicURL = help_.HHDefaultURL;
    help_.HHDisplayContents();
}

void ReferenceTools::explain(const Form& form, const std::string& control) {
    help_.CHMFile = main_.helpFile;
    main_.HHTopicURL = help_.HHTopicURL = helpPageOf(form, control);
    help_.HHDisplayTopicURL();
}

std::string ReferenceTools::whatsThis(const Form& form, const std::string& control) const {
    const std::string topic = helpPageOf(form, control);
    const std::size_t hash = topic.find('#');
    const std::string section = hash == std::string::npos ? std::string() : topic.substr(hash + 1);
    try {
        const std::string page =
            readWholeFile(joinPath(folderOf(main_.helpFile), topic.substr(0, hash)));
        return sectionText(page, section);
    } catch (const RunTimeError&) {
        return {};
    }
}

}  // namespace varnholt

// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/printing_facts.h"

#include "basis/file_system.h"
#include "forms/text_numbers/language.h"
#include "forms/text_numbers/main.h"
#include "forms/text_numbers/program.h"
#include "forms/text_numbers/reports.h"
#include "frame/program_version.h"
#include "reports/shared_bands.h"

namespace varnholt {

std::string printedAt(const PrintingFacts& facts) {
    return facts.time.empty() ? isoText(facts.today) : isoText(facts.today) + " " + facts.time;
}

std::string shownFile(const std::string& folder, const std::string& name,
                      const PrintingFacts& facts) {
    return facts.withFolder && !name.empty() ? joinPath(folder, name) : name;
}

void takeFromLanguage(Report& report, FillContext& context) {
    const Texts& texts = context.window.texts();
    report.font = texts.text(Text::reportFont);
    report.pageOfPages = texts.text(Text::pageOfPages);
    context.version = texts.text(Text::programTitle) + " " + programVersion;
    const std::string maker = texts.text(Text::makerAddress);
    if (!isMakersAddress(maker)) return;
    context.maker = maker;
    report.logo = texts.picture(Text::makersLogo);
}

}  // namespace varnholt

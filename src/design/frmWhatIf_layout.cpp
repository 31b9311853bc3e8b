// SPDX-License-Identifier: GPL-3.0-or-later
// The page that looks for fields of bores on the land.
#include "basis/number_text.h"
#include "design/frmBHDesign.h"
#include "design/frmWhatIf.h"
#include "design/land_lines.h"
#include "design/shared_texts.h"
#include "design/whatIf/what_if_values.h"
#include "forms/text_numbers/what_if_window.h"

namespace varnholt {
namespace {

constexpr const char* searchFrame = "WLSearchFrame";
constexpr const char* fieldsFrame = "WLFieldsFrame";
constexpr const char* layoutHelp = "layout";

/// What of the second opinion's window the size of a field comes from: not what that window shows,
/// nor the months of a shape that is not chosen.
SecondOpinionInputs sizingInputs(SecondOpinionInputs window) {
    const SecondOpinionInputs builtIn;
    window.yearsShown = builtIn.yearsShown;
    window.depthChoice = builtIn.depthChoice;
    window.typedDepth = builtIn.typedDepth;
    if (window.shape == typedYear) return window;
    window.monthEnergy = builtIn.monthEnergy;
    window.monthTop = builtIn.monthTop;
    return window;
}

}  // namespace

void frmWhatIf::addLayout() {
    addLand();
    addSearch();
    add(fieldsFrame, ControlKind::frame, Text::whatIfFields);
    addOutput("WLStateLabel", fieldsFrame);
    add("WLList", ControlKind::list).in(fieldsFrame).helpedBy("what_if#layout").foundLate();
    onClick("WLList", [this] { showLayoutCommands(); });
    add("WLTakeCommand", ControlKind::button, Text::whatIfTakeOver)
        .in(fieldsFrame)
        .helpedBy("what_if#layout");
    add("WLCopyCommand", ControlKind::button, Text::whatIfCopyCoordinates)
        .in(fieldsFrame)
        .helpedBy("what_if#layout");
    onClick("WLTakeCommand", [this] { WLTakeCommand_Click(); });
    onClick("WLCopyCommand", [this] { WLCopyCommand_Click(); });
    add("imgLand", ControlKind::image, Text::whatIfLandPicture).foundLate();
    add("imgFields", ControlKind::image, Text::whatIfFieldsPicture).foundLate();
}

void frmWhatIf::addSearch() {
    add(searchFrame, ControlKind::frame, Text::whatIfSearchFor);
    const auto length = [this](const char* control, const char* stored, int caption) {
        addNumber({control,
                   stored,
                   searchFrame,
                   {caption, caption},
                   "###0.0",
                   &quantities::length,
                   lengthUnit},
                  layoutHelp);
    };
    length("WLFromText", "spacingFrom", Text::whatIfSpacingFrom);
    length("WLToText", "spacingTo", Text::whatIfSpacingTo);
    length("WLStepText", "spacingStep", Text::whatIfSpacingStep);
    length("WLLeastDepthText", "leastDepth", Text::whatIfLeastDepth);
    length("WLMostDepthText", "mostDepth", Text::whatIfMostDepth);
    addNumber({"WLMostText",
               "mostBores",
               searchFrame,
               {Text::whatIfMostBores, Text::whatIfMostBores},
               "###0"},
              layoutHelp);
    addNumber(
        {"WLMarginText", "margin", searchFrame, {Text::whatIfMargin, Text::whatIfMargin}, "##0.0"},
        layoutHelp);
    addOption("WLKindOption", wholeRectangles, Text::whatIfWhole, searchFrame, layoutHelp);
    addOption("WLKindOption", rowsCutToLand, Text::whatIfCut, searchFrame, layoutHelp);
    for (const LayoutKind kind : {wholeRectangles, rowsCutToLand})
        onClick(elementName("WLKindOption", static_cast<std::size_t>(kind)),
                [this, kind] { inputs().layout.layoutKind = kind; });
    add("WLSearchCommand", ControlKind::button, Text::whatIfSearch)
        .in(searchFrame)
        .helpedBy("what_if#layout");
    onClick("WLSearchCommand", [this] { WLSearchCommand_Click(); });
    addOutput("WLMessageLabel");
}

/// What the search would start from now, and nothing else: neither the design's own field nor what
/// other pages ask matter to it.
WhatIfCase frmWhatIf::layoutQuestion() const {
    SecondOpinionCase now = design().presentCase();
    now.design.arrangement.patternRows = ArrangementValues{}.patternRows;
    now.design.arrangement.boreSeparation = ArrangementValues{}.boreSeparation;
    WhatIfInputs asked;
    asked.measure = inputs().measure;
    asked.land = inputs().land;
    asked.layout = inputs().layout;
    asked.prices = inputs().prices;
    if (now.window.shape != importedYear) now.imported.reset();
    return {{},
            std::move(now.design),
            std::move(asked),
            sizingInputs(now.window),
            std::move(now.imported),
            {}};
}

/// Where nobody goes on with the work between two actions, the search ends with its own.
void frmWhatIf::WLSearchCommand_Click() {
    if (finder_.isRunning()) {
        finder_.stop();
    } else {
        shownList_ = -1;
        finder_.start(layoutQuestion());
        if (!hasIdleTime()) finder_.advance(true);
    }
    showLayout();
}

std::optional<std::size_t> frmWhatIf::chosenField() const {
    const int chosen = control("WLList").index();
    const std::size_t count = std::min(finder_.result().fields.size(), listedFields);
    if (chosen < 0 || static_cast<std::size_t>(chosen) >= count) return std::nullopt;
    return static_cast<std::size_t>(chosen);
}

void frmWhatIf::pointAtField(std::size_t field) {
    if (field >= std::min(finder_.result().fields.size(), listedFields)) return;
    control("WLList").setIndex(static_cast<int>(field));
    showLayoutCommands();
}

void frmWhatIf::showLayout() {
    const bool running = finder_.isRunning();
    write("WLSearchCommand", text(running ? Text::whatIfStop : Text::whatIfSearch));
    showList();
    std::string state;
    if (running)
        state = text(Text::whatIfSearching);
    else if (finder_.hasSearched() && !finder_.answers(layoutQuestion()))
        state = text(Text::whatIfInputsChanged);
    write("WLStateLabel", state);
    write("WLMessageLabel", layoutMessageNow());
    showLayoutCommands();
}

std::string frmWhatIf::layoutMessageNow() const {
    if (!pasteFault_.empty()) return pasteFault_;
    // A corner that is moved may make sides cross long before anybody searches.
    const Reason reason = reasonAgainst(landOf(withinLimits(inputs()).land));
    if (reason.holds()) return teller().reason(reason);
    return layoutMessage(teller(), finder_.result());
}

/// The cheapest is chosen as soon as the list stands; a field that has been chosen stays so by its
/// place.
void frmWhatIf::showList() {
    const auto& found = finder_.result().fields;
    std::vector<std::string> lines;
    for (std::size_t n = 0; n < std::min(found.size(), listedFields); ++n)
        lines.push_back(layoutLine(teller(), found[n]));
    const bool fresh = shownList_ < 0 && (finder_.isListed() || !finder_.isRunning());
    showLines("WLList", std::move(lines));
    if (!fresh) return;
    shownList_ = finder_.revision();
    if (Control& list = control("WLList"); !list.items().empty()) list.setIndex(0);
}

void frmWhatIf::showLayoutCommands() {
    const std::optional<std::size_t> chosen = chosenField();
    const bool whole = chosen && finder_.result().fields[*chosen].field.isWhole();
    control("WLTakeCommand")
        .setEnabled(whole)
        .setTooltip(text(chosen && !whole ? Text::whatIfFullRowsAlone : Text::whatIfTakeOverTip));
    control("WLCopyCommand").setEnabled(chosen.has_value());
}

void frmWhatIf::WLTakeCommand_Click() {
    const std::optional<std::size_t> chosen = chosenField();
    if (!chosen) return;
    const LatticeField& field = finder_.result().fields[*chosen].field;
    design().takeField(static_cast<double>(field.rows), static_cast<double>(field.columns),
                       field.separation);
}

void frmWhatIf::WLCopyCommand_Click() {
    const std::optional<std::size_t> chosen = chosenField();
    if (!chosen || finder_.land() == nullptr) return;
    platform().setClipboard(
        landLines(boresOf(*finder_.land(), finder_.result().fields[*chosen].field), units()));
}

const Layouts& frmWhatIf::layouts() { return finder_.result(); }

}  // namespace varnholt

// SPDX-License-Identifier: GPL-3.0-or-later
// The controls around the pages, in their reading order.
#include "catalogue/editor/editor_names.h"
#include "catalogue/editor/frmHPEdit.h"
#include "forms/text_numbers/editor_messages.h"
#include "forms/text_numbers/heat_pump_editor.h"
#include "forms/text_numbers/loads.h"
#include "frame/varnmain.h"

namespace varnholt {
namespace {

struct CommandRow {
    const char* name;
    int captionText, tipText;
};

constexpr CommandRow commandColumn[] = {
    {"NewCommand", Text::newPump, Text::newPumpTip},
    {"CopyCommand", Text::copyPump, Text::copyPumpTip},
    {"RemoveCommand", Text::removePump, Text::removePumpTip},
    {"ReorderCommand", Text::reorderPumps, Text::reorderPumpsTip},
    {"ClearCommand", Text::clearPumps, Text::clearPumpsTip},
    {"SummaryCommand", Text::pumpSummary, Text::pumpSummary},
    {"SaveCommand", Text::savePumps, Text::savePumpsTip},
    {"EditSeriesCommand", Text::editSeries, Text::editSeriesTip},
    {"DeleteSeriesCommand", Text::deleteSeries, Text::deleteSeriesTip},
};

constexpr int addressTexts[] = {Text::manufacturerName, Text::street, Text::cityStateZip,
                                Text::manufacturerCountry, Text::manufacturerPhone};
constexpr int seriesTexts[] = {Text::seriesName, Text::seriesFileName};

}  // namespace

void frmHPEdit::addControls() {
    const std::string lists = "pump_editor#lists";
    add("MfgLabel", ControlKind::label, Text::manufacturer);
    add("MfgCombo", ControlKind::combo).captionedBy("MfgLabel").helpedBy(lists);
    add("SeriesLabel", ControlKind::label, Text::series);
    add("SeriesCombo", ControlKind::combo).captionedBy("SeriesLabel").helpedBy(lists);
    add("MetricCheck", ControlKind::check, Text::loadsMetricSwitch);
    addCommands();
    addNotice();
    add("NoInfoPicture", ControlKind::frame);
    add("NoPumpInfoLabel", ControlKind::label, Text::noPumpInformation).in("NoInfoPicture");
    addInformationPanel();
    add("PumpDataPicture", ControlKind::frame).setVisible(false);
    add("PumpNamesLabel", ControlKind::label, Text::pumpsInSeries).in("PumpDataPicture");
    add("PumpNamesList", ControlKind::list)
        .captionedBy("PumpNamesLabel")
        .in("PumpDataPicture")
        .helpedBy("pump_editor#pumps");
    add("PumpDataTabs", ControlKind::tabs)
        .in("PumpDataPicture")
        .setItems({text(Text::pumpDetailsPage), text(Text::cooling), text(Text::heating),
                   text(Text::loadTemperaturePage), text(Text::loadFlow), text(Text::testPage)})
        .setIndex(0);
    addDetailsPage();
    for (const Mode mode : modes) addRatingPage(mode);
    for (const CorrectionKind kind : {byTemperature, byFlow}) addCorrectionPage(kind);
    addTestPage();
}

void frmHPEdit::addCommands() {
    for (const CommandRow& row : commandColumn)
        add(row.name, ControlKind::button, row.captionText)
            .setTooltip(text(row.tipText))
            .setEnabled(false)
            .helpedBy("pump_editor#commands");
    add("ExitCommand", ControlKind::button, Text::exitEditor)
        .setTooltip(text(Text::exitEditorTip))
        .helpedBy("pump_editor#commands");
}

void frmHPEdit::addInformationPanel() {
    const std::string panel = "PumpInfoPicture", inside = "InsidePumpInfoPicture";
    const std::string help = "pump_editor#information";
    add(panel, ControlKind::frame, Text::pumpInformation).setVisible(false);
    add("SelectMfgLabel", ControlKind::label, Text::addSeriesTo).in(panel);
    add("SelectMfgCombo", ControlKind::combo)
        .captionedBy("SelectMfgLabel")
        .in(panel)
        .helpedBy(help);
    add(inside, ControlKind::frame).in(panel).setVisible(false);
    const auto addText = [&](const char* stem, std::size_t i, int captionText) {
        const std::string label = elementName(stem + std::string("Label"), i);
        add(label, ControlKind::label, captionText).in(inside);
        add(elementName(stem + std::string("Text"), i), ControlKind::text)
            .captionedBy(label)
            .in(inside)
            .helpedBy(help);
    };
    for (std::size_t i = 0; i < std::size(addressTexts); ++i)
        addText("ManufacturerAddress", i, addressTexts[i]);
    for (std::size_t i = 0; i < std::size(seriesTexts); ++i)
        addText("SeriesInfo", i, seriesTexts[i]);
    add("SeriesInfoDTLabel", ControlKind::label, Text::seriesDate).in(inside);
    add("SeriesInfoDTPicker", ControlKind::date)
        .captionedBy("SeriesInfoDTLabel")
        .in(inside)
        .helpedBy(help)
        .setDate(platform().today());
    add("ProceedCommand", ControlKind::button, Text::proceedWithInformation).in(inside);
    add("CancelCommand", ControlKind::button, Text::cancelSelection).in(panel);
}

void frmHPEdit::addDetailsPage() {
    const std::string frame = pageFrames[0], help = "pump_editor#pumps";
    add(frame, ControlKind::frame, Text::pumpDetailsPage).in("PumpDataPicture");
    add("PumpModelLabel", ControlKind::label, Text::model).in(frame);
    add("PumpModelText", ControlKind::text).captionedBy("PumpModelLabel").in(frame).helpedBy(help);
    add("PumpTypeLabel", ControlKind::label, Text::pumpType).in(frame);
    constexpr int types[] = {Text::waterToAir, Text::waterToWater};
    for (std::size_t type = 0; type < 2; ++type)
        add(elementName("PumpTypeOption", type), ControlKind::option, types[type])
            .grouped("PumpTypeOption")
            .in(frame)
            .helpedBy(help)
            .setChecked(type == 0);
    add("PumpChart", ControlKind::image, Text::ratingChart).in(frame);
}

/// What can be done with a page's table as a whole.
void frmHPEdit::addTableCommands(std::size_t page, const std::string& frame) {
    add(elementName("CopyTableCommand", page), ControlKind::button, Text::copyTable)
        .setTooltip(text(Text::copyTableTip))
        .in(frame)
        .helpedBy("pump_editor#tables");
}

void frmHPEdit::hookCommands() {
    onClick("MfgCombo", [this] { MfgCombo_Click(); });
    onClick("SeriesCombo", [this] { SeriesCombo_Click(); });
    onClick("MetricCheck", [this] { MetricCheck_Click(); });
    onClick("NewCommand", [this] { NewCommand_Click(); });
    onClick("CopyCommand", [this] { CopyCommand_Click(); });
    onClick("RemoveCommand", [this] { RemoveCommand_Click(); });
    onClick("ReorderCommand", [this] { ReorderCommand_Click(); });
    onClick("ClearCommand", [this] { ClearCommand_Click(); });
    onClick("SummaryCommand", [this] { platform().tell(text(Text::noPumpSummary)); });
    onClick("SaveCommand", [this] { SaveCommand_Click(); });
    onClick("EditSeriesCommand", [this] { EditSeriesCommand_Click(); });
    onClick("DeleteSeriesCommand", [this] { DeleteSeriesCommand_Click(); });
    onClick("ExitCommand", [this] { main().close(*this); });
    onClick("SelectMfgCombo", [this] { SelectMfgCombo_Click(); });
    onLeave("SeriesInfoText(1)", [this] { finishFileName(); });
    onClick("ProceedCommand", [this] { ProceedCommand_Click(); });
    onClick("CancelCommand", [this] { CancelCommand_Click(); });
    onClick("PumpNamesList", [this] { showPump(); });
    onChange("PumpModelText", [this] { PumpModelText_Change(); });
    for (const std::int16_t type : {std::int16_t{0}, std::int16_t{1}})
        onClick(elementName("PumpTypeOption", static_cast<std::size_t>(type)),
                [this, type] { PumpTypeOption_Click(type); });
    for (std::size_t i = 0; i < zeroButtons; ++i)
        onClick(elementName("cmdZeroZap", i), [this, i] { cmdZeroZap_Click(i); });
    for (const Mode mode : modes)
        onClick(elementName("CalculateCoefficientsCommand", mode),
                [this, mode] { CalculateCoefficientsCommand_Click(mode); });
    for (const CorrectionKind kind : {byTemperature, byFlow})
        onClick(elementName("CoefficientsCalculateCommand", kind),
                [this, kind] { CoefficientsCalculateCommand_Click(kind); });
    onClick("TestCommand", [this] { TestCommand_Click(); });
}

}  // namespace varnholt

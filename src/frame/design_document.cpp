// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/design_document.h"

#include <array>
#include <utility>

#include "basis/file_system.h"
#include "forms/text_numbers/borehole.h"
#include "frame/varnmain.h"

namespace varnholt {
namespace {

struct InformationRow {
    const char* control;
    const char* label;
    int captionText;
    SharedText ProjectInformation::*member;
};

constexpr std::array<InformationRow, 11> informationRows{{
    {"INProjectNameText", "INProjectNameLabel", Text::projectName,
     &ProjectInformation::projectName},
    {"INDesignerNameText", "INDesignerNameLabel", Text::designerName,
     &ProjectInformation::designerName},
    {"INClientNameText", "INClientNameLabel", Text::clientName, &ProjectInformation::clientName},
    {"INAddressLine1Text", "INAddressLine1Label", Text::addressLine1,
     &ProjectInformation::addressLine1},
    {"INAddressLine2Text", "INAddressLine2Label", Text::addressLine2,
     &ProjectInformation::addressLine2},
    {"INCityText", "INCityLabel", Text::city, &ProjectInformation::city},
    {"INStateText", "INStateLabel", Text::state, &ProjectInformation::state},
    {"INZipText", "INZipLabel", Text::zip, &ProjectInformation::zip},
    {"INPhoneText", "INPhoneLabel", Text::phone, &ProjectInformation::phone},
    {"INFaxText", "INFaxLabel", Text::fax, &ProjectInformation::fax},
    {"INEmailText", "INEmailLabel", Text::email, &ProjectInformation::email},
}};

}  // namespace

DesignDocument::DesignDocument(std::string formName, DesignKind kind, Varnmain& main,
                               std::int16_t slot, ProjectInformation& information)
    : ChildWindow(std::move(formName), main),
      counter(slot),
      myID(main.windowCounter),
      kind_(kind),
      information_(information) {
    information_.currentDate = information_.projectStartDate = platform().today();
    registerValues();
}

void DesignDocument::registerValues() {
    Values& values = publicValues();
    addInformationValues(values, information_);
    values.add("FileName", &FileName);
    values.add("directoryName", &directoryName);
    values.add("currentFileCheck", &currentFileCheck);
    values.add("counter", &counter);
    values.add("myID", &myID);
    values.add("settingUnits", &settingUnits);
    values.add("settingItems", &settingItems);
    values.add("insideChange", &insideChange);
    values.add("updating", &updating);
    values.add("beenHere", &beenHere);
    values.add("samePumpUpdated", &samePumpUpdated);
    values.add("returningFromDetails", &returningFromDetails);
    values.add("selectingPump", &selectingPump);
}

void DesignDocument::setStale(bool stale) {
    stale_ = stale;
    control("CACalculateCommand").setBackcolor(stale ? colours::stale : colours::buttonFace);
}

void DesignDocument::countAsChanged() {
    startHistory(false);
    changed_ = true;
}

void DesignDocument::noteSaved() {
    markSaved();
    changed_ = false;
}

/// Every step that has brought the document into another state counts as a change.
void DesignDocument::stepRecorded() {
    if (!history().isAtSaved()) changed_ = true;
}

std::string DesignDocument::filePath() const {
    return FileName.empty() ? std::string() : joinPath(directoryName, FileName);
}

void DesignDocument::setFile(const std::string& path) {
    FileName = fileNameOf(path);
    directoryName = folderOf(path);
    currentFileCheck = true;
    setCaption(baseCaption() + " - " + FileName);
}

void DesignDocument::forgetFile() {
    FileName.clear();
    directoryName.clear();
    currentFileCheck = false;
    setCaption(baseCaption() + " #" + std::to_string(main().windowCounter));
}

void DesignDocument::addInformationControls() {
    add("INProjectFrame", ControlKind::frame, Text::projectInformation);
    for (const InformationRow& row : informationRows) {
        addLabel(row.label, row.captionText);
        add(row.control, ControlKind::text)
            .in("INProjectFrame")
            .captionedBy(row.label)
            .helpedBy("borehole#information");
        onChange(row.control, [this, member = row.member, name = std::string(row.control)] {
            information_.*member = control(name).sharedText();
        });
    }
    addDate("INDateDTPicker", "INDateLabel", Text::projectDate, &ProjectInformation::currentDate);
    addDate("INStartDateDTPicker", "INStartDateLabel", Text::projectStartDate,
            &ProjectInformation::projectStartDate);
    addLabel("INCommentsLabel", Text::projectComments);
    add("INCommentsRichTextBox", ControlKind::richText)
        .in("INProjectFrame")
        .captionedBy("INCommentsLabel");
    onChange("INCommentsRichTextBox",
             [this] { information_.comments = control("INCommentsRichTextBox").sharedText(); });
}

void DesignDocument::addLabel(const char* name, int captionText) {
    add(name, ControlKind::label, captionText).in("INProjectFrame");
}

void DesignDocument::addDate(const char* name, const char* label, int captionText,
                             Date ProjectInformation::*member) {
    addLabel(label, captionText);
    add(name, ControlKind::date).in("INProjectFrame").captionedBy(label);
    onClick(name, [this, name, member] { information_.*member = control(name).date(); });
}

void DesignDocument::showInformation() {
    for (const InformationRow& row : informationRows)
        control(row.control).setText(information_.*row.member);
    control("INDateDTPicker").setDate(information_.currentDate);
    control("INStartDateDTPicker").setDate(information_.projectStartDate);
    control("INCommentsRichTextBox").setText(information_.comments);
}

}  // namespace varnholt

// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/design_document.h"

#include <array>
#include <utility>

#include "basis/file_system.h"
#include "frame/varnmain.h"

namespace varnholt {
namespace {

struct InformationRow {
    const char* control;
    const char* label;
    int captionText;
    const char* value;
    std::string ProjectInformation::*member;
};

constexpr std::array<InformationRow, 11> informationRows{{
    {"INProjectNameText", "INProjectNameLabel", 2701, "projectName",
     &ProjectInformation::projectName},
    {"INDesignerNameText", "INDesignerNameLabel", 2702, "designerName",
     &ProjectInformation::designerName},
    {"INClientNameText", "INClientNameLabel", 2703, "clientName", &ProjectInformation::clientName},
    {"INAddressLine1Text", "INAddressLine1Label", 2704, "addressLine1",
     &ProjectInformation::addressLine1},
    {"INAddressLine2Text", "INAddressLine2Label", 2705, "addressLine2",
     &ProjectInformation::addressLine2},
    {"INCityText", "INCityLabel", 2706, "city", &ProjectInformation::city},
    {"INStateText", "INStateLabel", 2707, "state", &ProjectInformation::state},
    {"INZipText", "INZipLabel", 2708, "zip", &ProjectInformation::zip},
    {"INPhoneText", "INPhoneLabel", 2709, "phone", &ProjectInformation::phone},
    {"INFaxText", "INFaxLabel", 2710, "fax", &ProjectInformation::fax},
    {"INEmailText", "INEmailLabel", 2711, "email", &ProjectInformation::email},
}};

}  // namespace

DesignDocument::DesignDocument(std::string formName, DesignKind kind, Varnmain& main,
                               std::int16_t slot)
    : ChildWindow(std::move(formName), main), counter(slot), myID(main.windowCounter), kind_(kind) {
    information.currentDate = information.projectStartDate = platform().today();
    registerValues();
}

void DesignDocument::registerValues() {
    Values& values = publicValues();
    for (const InformationRow& row : informationRows)
        values.add(row.value, &(information.*row.member));
    values.add("country", &information.country);
    values.add("comments", &information.comments);
    values.add("currentDate", &information.currentDate);
    values.add("projectStartDate", &information.projectStartDate);
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

void DesignDocument::calculationNeeded() {
    control("CACalculateCommand").setBackcolor(colours::stale);
}

void DesignDocument::calculationDone() {
    control("CACalculateCommand").setBackcolor(colours::buttonFace);
}

bool DesignDocument::isStale() const {
    return control("CACalculateCommand").backcolor() == colours::stale;
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

void DesignDocument::addInformationControls() {
    add("INProjectFrame", ControlKind::frame, 2700);
    for (const InformationRow& row : informationRows) {
        add(row.label, ControlKind::label, row.captionText).in("INProjectFrame");
        add(row.control, ControlKind::text).in("INProjectFrame");
        onChange(row.control, [this, member = row.member, name = std::string(row.control)] {
            information.*member = control(name).text();
        });
    }
    add("INDateLabel", ControlKind::label, 2712).in("INProjectFrame");
    add("INDateDTPicker", ControlKind::date).in("INProjectFrame");
    onClick("INDateDTPicker",
            [this] { information.currentDate = control("INDateDTPicker").date(); });
    add("INStartDateLabel", ControlKind::label, 2713).in("INProjectFrame");
    add("INStartDateDTPicker", ControlKind::date).in("INProjectFrame");
    onClick("INStartDateDTPicker",
            [this] { information.projectStartDate = control("INStartDateDTPicker").date(); });
    add("INCommentsLabel", ControlKind::label, 2714).in("INProjectFrame");
    add("INCommentsRichTextBox", ControlKind::richText).in("INProjectFrame");
    onChange("INCommentsRichTextBox",
             [this] { information.comments = control("INCommentsRichTextBox").text(); });
}

void DesignDocument::showInformation() {
    for (const InformationRow& row : informationRows)
        control(row.control).setText(information.*row.member);
    control("INDateDTPicker").setDate(information.currentDate);
    control("INStartDateDTPicker").setDate(information.projectStartDate);
    control("INCommentsRichTextBox").setText(information.comments);
}

}  // namespace varnholt

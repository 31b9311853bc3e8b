// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "basis/date.h"
#include "frame/child_window.h"
#include "frame/design_slots.h"

namespace varnholt {

/// Who the project is for and who made it, as the information tab edits it.
struct ProjectInformation {
    std::string projectName, designerName, clientName;
    std::string addressLine1, addressLine2, city, state, zip, country;
    std::string phone, fax, email;
    Date currentDate, projectStartDate;
    /// Lines end in CR LF.
    std::string comments;

    friend bool operator==(const ProjectInformation&, const ProjectInformation&) = default;
};

/// What every design window has, whatever its ground loop: file identity, stale mark, unit switch,
/// project information.
class DesignDocument : public ChildWindow {
 public:
    DesignDocument(std::string formName, DesignKind kind, Varnmain& main, std::int16_t slot);

    DesignKind kind() const { return kind_; }
    bool isDesign() const override { return true; }

    /// Marks the results stale: the colour of the Calculate button alone tells it.
    void calculationNeeded();
    void calculationDone();
    bool isStale() const;

    /// The base text of the captions of such windows.
    virtual std::string baseCaption() const = 0;
    /// The file's full path; empty for a project without a file.
    std::string filePath() const;
    /// Records the project's file and puts its name into the caption.
    void setFile(const std::string& path);

    /// Place among the windows of its kind; moves when the slots are compacted.
    std::int16_t counter;
    /// The design's own number, never reused while any window is open.
    std::int16_t myID;
    std::string FileName;
    std::string directoryName;
    /// Whether the project has a file on disk yet.
    bool currentFileCheck = false;

    ProjectInformation information;

    bool settingItems = false, insideChange = false, updating = false, beenHere = false;
    bool samePumpUpdated = false, returningFromDetails = false, selectingPump = false;

 protected:
    /// Adds the controls of the information tab, inside the named frame or page.
    void addInformationControls();
    /// Writes the project information into its fields.
    void showInformation();

 private:
    void registerValues();

    DesignKind kind_;
};

}  // namespace varnholt

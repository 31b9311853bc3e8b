// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "frame/child_window.h"
#include "frame/design_slots.h"
#include "frame/project_information.h"

namespace varnholt {

/// What every design window has, whatever its ground loop: file identity, stale mark, unit switch,
/// project information.
class DesignDocument : public ChildWindow {
 public:
    /// @param information part of the project that the window holds, which outlives the call
    DesignDocument(std::string formName, DesignKind kind, Varnmain& main, std::int16_t slot,
                   ProjectInformation& information);

    DesignKind kind() const { return kind_; }
    bool isDesign() const override { return true; }

    /// Marks the results stale: the Calculate button takes the colour that tells it.
    void calculationNeeded() { setStale(true); }
    void calculationDone() { setStale(false); }
    bool isStale() const { return stale_; }
    /// The document is not as it was saved, or opened.
    bool isChanged() const { return changed_; }
    /// The document is no file's content, such as work that was brought back after a crash.
    void countAsChanged();
    /// The project has been written to its file.
    void noteSaved();

    /// The base text of the captions of such windows.
    virtual std::string baseCaption() const = 0;
    /// The file's full path; empty for a project without a file.
    std::string filePath() const;
    /// Records the project's file and puts its name into the caption.
    void setFile(const std::string& path);
    /// Makes it a project without a file, under the caption of a new one.
    void forgetFile();

    /// Place among the windows of its kind; moves when the slots are compacted.
    std::int16_t counter;
    /// The design's own number, never reused while any window is open.
    std::int16_t myID;
    std::string FileName;
    std::string directoryName;
    /// Whether the project has a file on disk yet.
    bool currentFileCheck = false;

    const ProjectInformation& information() const { return information_; }

    bool settingItems = false, insideChange = false, updating = false, beenHere = false;
    bool samePumpUpdated = false, returningFromDetails = false, selectingPump = false;

 protected:
    /// Adds the controls of the information tab, inside the named frame or page.
    void addInformationControls();
    /// Writes the project information into its fields.
    void showInformation();
    void setStale(bool stale);
    void savedStateReached(bool atSaved) override { changed_ = !atSaved; }
    void stepRecorded() override;
    /// By something else than a step. What fills a document that is being opened changes nothing.
    void documentChanged() { changed_ = changed_ || history().hasStarted(); }

 private:
    void registerValues();
    void addLabel(const char* name, int captionText);
    void addDate(const char* name, const char* label, int captionText,
                 Date ProjectInformation::*member);

    DesignKind kind_;
    ProjectInformation& information_;
    bool stale_ = false;
    bool changed_ = false;
};

}  // namespace varnholt

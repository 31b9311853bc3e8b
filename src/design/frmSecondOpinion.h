// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "design/result_values.h"
#include "design/second_opinion_pictures.h"
#include "frame/child_window.h"

namespace varnholt {

class frmBHDesign;

/// The second opinion of one borehole design: the lengths by g-functions beside the classical ones,
/// why the two differ, and the water over fifty years.
///
/// Its inputs belong to the design, and so do its units, its steps and its file: the window edits
/// and shows them. It closes with its design.
class frmSecondOpinion : public ChildWindow {
 public:
    /// @param design  outlives the window
    explicit frmSecondOpinion(frmBHDesign& design);

    void load() override;
    void unloaded() override;
    ChildWindow& owner() override;
    UnitSystem units() const override;
    void actionBegins() override;
    void actionDone() override;
    void windowsChanged() override { fallBehind(); }
    std::string descriptionOf(const std::string& image) const override;

    /// The design has switched its units.
    void showInUnits();
    /// Another state of the design has been put back.
    void showDocument();

    // What the pictures show.
    HistoryPicture historyPicture() const;
    YearPicture yearPicture() const;
    GFunctionPicture gFunctionPicture() const;

 protected:
    bool workLate(bool whole) override;
    std::vector<Notice> notices() override;

 private:
    /// A label with a caption for each system of units.
    struct UnitCaption {
        std::string control;
        UnitTexts caption;
    };

    // Controls, in their reading order.
    void addControls();
    void addSizes();
    void addParts();
    void addInputs();
    void addYear();
    void addMonth(std::size_t month);
    void addDepth();
    void addPictures();
    void addTable();
    Control& addOutput(const std::string& name, const std::string& frame);
    /// The captions 2 of the labels 0 and 1 with a mode's figures.
    void addSizeRow(const std::string& array, UnitTexts caption);
    void addUnitLabel(const std::string& name, const std::string& frame, UnitTexts caption);
    void hookInputs();
    void registerValues();
    void registerInputs(Values& values);
    void registerYear(ResultValues<SecondOpinion>& of);
    void registerSizes(ResultValues<SecondOpinion>& of);
    void registerShown(ResultValues<SecondOpinion>& of);

    // What they show.
    void showCaptions();
    void showInputs();
    void showDepthChoice();
    void showFigures();
    void showSizes();
    void showParts();
    void showTable();
    void showMessage();
    void showYearOfMonths();
    std::string titleNow() const;

    void typedMonth();
    void typedDepth();
    void SEPasteCommand_Click();
    void SECopyCommand_Click();

    const SecondOpinion& opinion() const;
    SecondOpinionInputs& inputs() const;
    OpinionScene scene() const;
    std::size_t yearsShown() const;

    frmBHDesign& design_;
    std::vector<UnitCaption> unitCaptions_;
    /// Why the last paste has changed nothing; empty where it has.
    std::string pasteFault_;
};

}  // namespace varnholt

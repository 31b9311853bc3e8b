// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "design/beside_design.h"
#include "design/result_values.h"
#include "design/second_opinion_pictures.h"

namespace varnholt {

/// The second opinion of one borehole design: the lengths by g-functions beside the classical ones,
/// why the two differ, and the water over fifty years.
class frmSecondOpinion : public BesideDesign {
 public:
    /// @param design  outlives the window
    explicit frmSecondOpinion(frmBHDesign& design);

    void unloaded() override;
    std::string descriptionOf(const std::string& image) const override;

    // What the pictures show.
    HistoryPicture historyPicture() const;
    YearPicture yearPicture() const;
    GFunctionPicture gFunctionPicture() const;

 protected:
    bool workLate(bool whole) override;
    std::vector<Notice> notices() override;
    void showInputs() override;
    void showFigures() override;

 private:
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
    /// The captions 2 of the labels 0 and 1 with a mode's figures.
    void addSizeRow(const std::string& array, UnitTexts caption);
    void hookInputs();
    void registerValues();
    void registerInputs(Values& values);
    void registerYear(ResultValues<SecondOpinion>& of);
    void registerSizes(ResultValues<SecondOpinion>& of);
    void registerShown(ResultValues<SecondOpinion>& of);

    // What they show.
    void showDepthChoice();
    void showSizes();
    void showParts();
    void showTable();
    void showMessage();
    void showYearOfMonths();

    void typedMonth();
    void typedDepth();
    void SEPasteCommand_Click();
    void SECopyCommand_Click();

    const SecondOpinion& opinion() const;
    SecondOpinionInputs& inputs() const;
    OpinionScene scene() const;
    std::size_t yearsShown() const;
};

}  // namespace varnholt

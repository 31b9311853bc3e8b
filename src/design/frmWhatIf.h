// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "design/beside_design.h"
#include "design/late_what_if.h"
#include "design/layout_finder.h"
#include "design/what_if_pictures.h"

namespace varnholt {

/// What decides the length of one borehole design, how sure it is, and which field, alternative or
/// tower is cheapest. Each page has a file of its own.
class frmWhatIf : public BesideDesign {
 public:
    /// Columns of the table of alternatives; the list has them all.
    static constexpr std::size_t alternativeColumns = 16;

    /// @param design  outlives the window
    explicit frmWhatIf(frmBHDesign& design);

    void unloaded() override;
    std::string descriptionOf(const std::string& image) const override;

    // What the pictures show.
    TornadoPicture tornadoPicture() const;
    SurePicture surePicture() const;
    LandPicture landPicture() const;
    FieldsPicture fieldsPicture() const;
    CostPicture costPicture() const;
    TowerPicture towerPicture() const;

    /// A bar of `imgTornado` is pressed: the keyboard goes to the field that it is of.
    void pointAtBar(std::size_t bar);
    /// A field of `imgFields` is pressed; those beyond the list are not to be chosen.
    void pointAtField(std::size_t field);

 protected:
    bool workLate(bool whole) override;
    void isRead(const Control& control) override;
    std::vector<Notice> notices() override;
    void showInputs() override;
    void showFigures() override;
    /// Names are there at once, figures when somebody reads them.
    void lookAgain() override;

 private:
    /// The pages in their order.
    enum Page { decidesPage, surePage, layoutPage, costPage, alternativesPage, towerPage };
    /// A numeric field over one of the inputs; limits and default are the input's own.
    struct NumberField {
        std::string control;
        std::string stored;  ///< as scripts know it
        std::string frame;
        UnitTexts caption;
        std::string_view format;
        const Quantity* quantity = &quantities::plain;
        UnitTexts unit{};
        std::string label{};  ///< where several fields share one
        int distinction = 0;
        std::function<void()> changed{};
    };

    // The window (frmWhatIf.cpp, frmWhatIf_figures.cpp, frmWhatIf_values.cpp).
    void addControls();
    void addTop();
    void addNumber(const NumberField& field, const std::string& help);
    void addOption(const std::string& array, std::size_t index, int caption,
                   const std::string& frame, const std::string& help);
    void showTop();
    void write(const std::string& label, const std::string& caption);
    Page page() const;
    /// The page that a control stands on; none for one that stands on every page.
    std::optional<Page> pageOf(const Control& control) const;
    WhatIfCase presentCase() const;
    std::string nameOfDesign() const;
    std::vector<Alternative> otherDesigns() const;
    const WhatIf& known() const { return late_.known(); }
    /// The figures of the inputs as they stand, computed first where they are not known.
    const WhatIf& figures(bool WhatIfWanted::*part = nullptr);
    WhatIfInputs& inputs() const;
    WhatIfTeller teller() const;
    /// One that says so while a part of the figures is still being found.
    WhatIfTeller tellerOf(bool WhatIfWanted::*part) const;
    void registerValues();
    void registerInputs();
    void registerFigures();
    void registerLayouts();
    void registerAlternatives();
    /// Lists the lines; what is chosen stays so by its place, as long as there is one.
    void showLines(const char* name, std::vector<std::string> lines);

    // What decides (frmWhatIf_decides.cpp).
    void addDecides();
    void addSpread(std::size_t quantity);
    void showDecides();
    void WIGroundOption_Click(GroundKnowledge knowledge);
    void typedGround();

    // How sure (frmWhatIf_sure.cpp).
    void addSure();
    void showSure();

    // Layout (frmWhatIf_layout.cpp, frmWhatIf_land.cpp).
    void addLayout();
    void addLand();
    void addSearch();
    void showLayout();
    void showList();
    void showLayoutCommands();
    void showCorners();
    void showCornerFields();
    std::string layoutMessageNow() const;
    std::optional<std::size_t> chosenField() const;
    void WLSearchCommand_Click();
    void WLTakeCommand_Click();
    void WLCopyCommand_Click();
    void WLPasteCommand_Click();
    void WLRectangleCommand_Click();
    WhatIfCase layoutQuestion() const;
    Point* corner(std::size_t index) const;
    std::size_t cornerCount() const;
    double cornerPart(double Point::*part) const;
    void typeCorner(double Point::*part, double value);
    void addCornerField(const char* control, int caption, double Point::*part);
    const Layouts& layouts();

    // Cost (frmWhatIf_cost.cpp).
    void addCost();
    void addPrices();
    void addPriceText(const char* control, int caption, std::string WhatIfInputs::*held);
    void showCost();

    // Alternatives (frmWhatIf_alternatives.cpp).
    void addAlternatives();
    void listAlternatives();
    void showAlternatives();
    void showAlternativeCommands();
    std::optional<std::size_t> chosenKept() const;
    void WVKeepCommand_Click();
    void WVRestoreCommand_Click();
    void WVRemoveCommand_Click();

    // Tower (frmWhatIf_tower.cpp).
    void addTower();
    void showTower();
    std::optional<std::size_t> bestTower() const;
    void WTTakeCommand_Click();

    /// How many controls there are before the first page, and up to the end of each.
    std::vector<std::size_t> pageEnds_;
    /// The page that somebody reads from, in front or not.
    std::optional<Page> read_;
    LateWhatIf late_;
    LayoutFinder finder_;
    /// How much of the finder's list is on show.
    int shownList_ = -1;
};

}  // namespace varnholt

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "basis/mode.h"
#include "design/design_tab.h"
#include "design/loads_roll_up.h"

namespace varnholt {

/// Element of a row's labels, behind those of the modes.
constexpr std::size_t captionElement = 2;

/// One row of the results: elements 0 and 1 of the label array are its values, element 2 its
/// caption, which carries the unit.
struct ResultRow {
    std::string label;
    UnitTexts caption;
    std::function<std::string(Mode)> value;
    bool isLength = false;  ///< black in the governing mode
    bool painted = true;    ///< follows the governing mode at all
};

/// The results by mode, and the Calculate button.
class ResultsTab : public DesignTab {
 public:
    /// @param addMore  adds what else stands between the rows and the Calculate button
    ResultsTab(GroundDesign& design, std::vector<ResultRow> rows, int frameCaption,
               const std::function<void()>& addMore = {});

    void setUnitLabels() override;
    /// Shows the figures of the last run. Their labels follow the units alone.
    void showFigures();
    /// Greys one mode's figures and paints the other's in its colour.
    void paintGoverning(Mode greyed);
    /// As before the first run.
    void paintPlain();

 private:
    /// A row and the labels of its values, which a run writes to without looking them up.
    struct ShownRow {
        ResultRow row;
        ByMode<Control*> labels;
    };

    Control& addValue(const std::string& label, Mode mode);
    void paint(const ByMode<Control*>& labels, Mode greyed, int governingColour);

    ByMode<Control*> top_{};
    std::vector<ShownRow> rows_;
};

/// The rows that every kind of design has below its lengths.
/// @param rollUp  the loads as the last run rolled them up
/// @param inputs  what that run took
std::vector<ResultRow> unitRows(const GroundDesign& design,
                                const std::function<const LoadsRollUp&()>& rollUp,
                                const std::function<LoadsInputs()>& inputs);
/// @param penalty  long-term drift of the ground, degF
ResultRow soilChangeRow(const GroundDesign& design, const std::function<double(Mode)>& penalty);

/// A figure as the results show it.
std::string shownAs(const Quantity& quantity, const GroundDesign& design, double value,
                    std::string_view format = "###0.0");
/// The same with the word of the unit behind it.
std::string shownWithUnit(const Quantity& quantity, const GroundDesign& design, double value,
                          UnitTexts unit, std::string_view format = "###0.0");

}  // namespace varnholt

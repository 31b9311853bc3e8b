// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "design/project_design.h"
#include "design/results_tab.h"
#include "design/tower_panel.h"
#include "forms/text_numbers/borehole.h"

namespace varnholt {

/// What the windows of pipe in the ground share: their results stand beside the optional cooling
/// tower, which wakes where cooling governs.
///
/// Beyond what ProjectDesign asks of Kind, its project has a `tower`, and its results are a
/// GroundRollUp with `lengths`.
template <class Kind>
class TowerDesign : public ProjectDesign<Kind> {
 public:
    using typename ProjectDesign<Kind>::Results;

    using GroundDesign::showGoverningMode;
    /// A tower that is on can be taken away again, though it has made the heating govern.
    void showGoverningMode(Mode greyed) override {
        resultsTab_->paintGoverning(greyed);
        if (greyed == heating || this->towerIsOn())
            towerPanel_->wake();
        else
            towerPanel_->rest();
    }

 protected:
    using ProjectDesign<Kind>::ProjectDesign;

    /// The first page: the rows, the Calculate button, the tower.
    void addResults(std::vector<ResultRow> rows, int frameCaption,
                    const std::function<void()>& addMore = {}) {
        resultsTab_ = std::make_unique<ResultsTab>(*this, std::move(rows), frameCaption, addMore);
        towerPanel_ = std::make_unique<TowerPanel>(*this, this->project_.tower, [this] {
            return modCalculations::TowerYear{this->results().cop.heatPumpCOP[cooling],
                                              this->results().annualTonHours[cooling],
                                              this->project_.tower.hybridPercent};
        });
    }

    template <class Tab, class... Values>
    void addTab(Values&... values) {
        inputTabs_.push_back(std::make_unique<Tab>(*this, values...));
    }

    std::vector<DesignTab*> tabs() override {
        std::vector<DesignTab*> all{resultsTab_.get(), towerPanel_.get()};
        for (const auto& tab : inputTabs_) all.push_back(tab.get());
        return all;
    }

    void resultsFound() override {
        const modCalculations::SettledLengths& lengths = this->results().lengths;
        if (lengths.failed)
            this->show(MessageIcon::plain,
                       this->text(Text::calculationFailed) + std::to_string(lengths.iterations));
        this->project_.tower.tower = this->results().tower;
        showGoverningMode();
        resultsTab_->showFigures();
        towerPanel_->showFigures();
    }

    void fillDefaults() override {
        this->project_.results.edit().outlet.outletTemp = this->project_.conditions.inletTemp;
        resetCoolingRange(this->project_);
    }

    void showNoGoverningMode() override {
        resultsTab_->paintPlain();
        towerPanel_->rest();
    }
    void dropTower() override { towerPanel_->drop(); }
    void showTower() override { towerPanel_->showFigures(); }
    void wakeTower() override { towerPanel_->wake(); }

 private:
    std::unique_ptr<ResultsTab> resultsTab_;
    std::unique_ptr<TowerPanel> towerPanel_;
    std::vector<std::unique_ptr<DesignTab>> inputTabs_;
};

}  // namespace varnholt

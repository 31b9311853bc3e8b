// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "tools/calculator.h"
#include "tools/full_load_hours.h"

namespace varnholt {

/// What the hours calculator hands over.
struct FullLoadHours {
    double fullLoad = 0;  ///< MBtu/hr
    double hours = 0;     ///< equivalent full-load hours a year
    double factor = 0;    ///< load factor of the peak month
};

/// The window that the calculator was opened from, and how it takes the hours of one mode.
struct HoursTaker {
    ChildWindow* window = nullptr;
    /// Throws RunTimeError 6, and takes nothing, for hours beyond 16 bits.
    std::function<void(const FullLoadHours&, Mode)> take;
};

/// The equivalent full-load hours of a year from a peak and twelve months' energies, and the peak
/// month's load factor.
class frmEqvHoursCalc : public Calculator {
 public:
    explicit frmEqvHoursCalc(Varnmain& main);

    /// Whoever opened it: a loads window, or the menu, which takes nothing.
    void openedBy(HoursTaker taker) { taker_ = std::move(taker); }
    /// The hours to start from.
    void startFrom(double hours);
    /// The importer's values of one mode, and the sum over them.
    void TransferValuesFromImport1ToCalc(const Months& energy, double peak, double hours);

    void windowsChanged() override;

 protected:
    void showValues() override;

 private:
    void addFields();
    void addHoursField();
    void addMonth(std::size_t month);
    void fieldKey(std::size_t index, const std::string& key);
    void paste(std::size_t first);
    void calculate();
    void setHours(double hours);
    void showHours();
    double factor() const;
    Mode modeOfTransfer() const;
    void cmdCalculate_Click();
    void cmdClear_Click();

    double fullLoad_ = 0;    // MBtu/hr
    Months monthlyLoads_{};  // MBtu
    double eqvHours_ = 0;
    bool cleared_ = false;  // no result stands
    HoursTaker taker_;
};

}  // namespace varnholt

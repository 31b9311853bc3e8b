// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "basis/number_text.h"

namespace varnholt {

/// The text of a simulation file, one group of numbers a line.
struct SampleYear {
    // First load: 20,000 to 31,000 MBtu, 306,000 a year; 50,000 Btu/hr, in July 80,000.
    // Second load: 32,000 down to 21,000 MBtu, 318,000 a year; 60,000 Btu/hr, in January 90,000.
    double energies[2][13], peaks[2][13];
    std::string title = "\"Energy, by month\"", secondTitle = "\"Peaks, by month\"";
    std::string gap = "\r\n\"\"\r\n";
    std::string separator = ",", lineEnd = "\r\n";

    SampleYear() {
        for (int i = 0; i < 12; ++i) {
            energies[0][i] = 20000 + 1000 * i;
            energies[1][i] = 32000 - 1000 * i;
            peaks[0][i] = i == 6 ? 80000 : 50000;
            peaks[1][i] = i == 0 ? 90000 : 60000;
        }
        energies[0][12] = 306000;
        energies[1][12] = 318000;
        peaks[0][12] = 80000;
        peaks[1][12] = 90000;
    }

    std::string group(const double (&values)[13]) const {
        std::string line;
        for (const double value : values)
            line += (line.empty() ? "" : separator) + shortestText(value);
        return line + lineEnd;
    }
    std::string text() const {
        return title + lineEnd + group(energies[0]) + group(energies[1]) + gap + secondTitle +
               lineEnd + group(peaks[0]) + group(peaks[1]);
    }
};

// What follows from it, by hand. July of the first load: 26,000 MBtu in 31 days with a peak of
// 80 MBtu/hr, a load factor of 26000/(80 * 24 * 31) = 0.436828; the rest of a day with the peak for
// four hours is (24 * 80 * 0.436828 - 320)/20 = (838.70968 - 320)/20 = 25.935484 MBtu/hr.
constexpr double firstFactor = 26000.0 / 59520.0;
constexpr double firstRest = 25.935483870967744;
constexpr double firstHours = 3825;  // 306000/80
// January of the second load: 32000/(90 * 24 * 31) = 0.477897; (1032.25806 - 360)/20 = 33.612903.
constexpr double secondFactor = 32000.0 / 66960.0;
constexpr double secondRest = 33.61290322580645;
constexpr double secondHours = 3533;  // 318000/90 = 3533.33

}  // namespace varnholt

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "loads/import/frmImport1.h"
#include "loads/import/sample_year.h"
#include "loads/loads_fixture.h"
#include "tools/frmEqvHoursCalc.h"
#include "tools/frmTransferOptions.h"
#include "tools/install.h"

namespace varnholt {

/// The importer beside the loads windows and the calculators.
class ImportTest : public LoadsTest {
 protected:
    ImportTest() {
        installTools(main);
        texts.known[1531] = "700";
        texts.known[1532] = "Analyzer";
        texts.known[1508] = "not %1";
    }
    frmImport1& importer() {
        main.click("mnuMonthlyLoadsImport");
        return dynamic_cast<frmImport1&>(*main.find("frmImport1"));
    }
    frmEqvHoursCalc& calculator() {
        main.click("mnuEqvHours");
        return dynamic_cast<frmEqvHoursCalc&>(*main.find("frmEqvHoursCalc"));
    }
    /// Writes the year as a file of that name and has the next dialog choose it.
    void pick(const std::string& name, const SampleYear& year = {}) {
        writeFile(zoneFile(name), year.text());
        platform.picks.emplace_back(zoneFile(name));
    }
    frmImport1& importerWithFile(const SampleYear& year = {}) {
        frmImport1& form = importer();
        pick("north.gt1", year);
        form.click("cmdImport(2)");
        return form;
    }
    /// Both modes have been on screen.
    static void lookAtBoth(frmImport1& form) {
        form.click("cmdCoolHeat(1)");
        form.click("cmdCoolHeat(0)");
    }
    static std::string caption(const Form& form, const std::string& name) {
        return form.control(name).caption();
    }
    static std::string shown(const Form& form, const std::string& name) {
        return form.control(name).text();
    }
    static bool enabled(const Form& form, const std::string& name) {
        return form.control(name).enabled();
    }
    static double value(const Form& form, const std::string& name) {
        return std::get<double>(form.values().read(name));
    }
    static void expectGains(const Zone& zone, Mode m, const DayLoads& expected) {
        for (std::size_t block = 0; block < timeBlocks; ++block)
            EXPECT_NEAR(zone.gains[block][m], expected[block], 1e-9) << m << " " << block;
    }
};

}  // namespace varnholt

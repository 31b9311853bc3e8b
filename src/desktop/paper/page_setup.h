// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPageLayout>
#include <QPageSize>
#include <optional>

#include "reports/report.h"

namespace varnholt {

/// The paper that a report is laid out for.
struct PageSetup {
    QPageSize size{QPageSize::A4};
    /// The user's choice; the report's own way without one.
    std::optional<QPageLayout::Orientation> orientation{};

    /// The sheet with its margins for a report.
    QPageLayout layoutFor(const Report& report) const;
    /// Takes a sheet that was chosen in place of that of an upright report. Reports keep their own
    /// way until the user turns the sheet.
    void take(const QPageLayout& chosen);
    bool operator==(const PageSetup&) const = default;
};

/// Letter in the countries that use it, A4 elsewhere.
/// @param localeNumber  of the language resource, 0x409 for the United States
PageSetup usualPage(unsigned localeNumber);

}  // namespace varnholt

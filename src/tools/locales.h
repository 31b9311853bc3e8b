// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace varnholt {

/// One locale that the platform can report.
struct Locale {
    const char* name;  ///< language and region, "de_AT"
    unsigned number;   ///< its locale number, 0xC07
    bool metric;       ///< its satellite names a font, and so windows start in metric units
};

/// English of the United States: what an unknown locale is taken for.
inline constexpr unsigned defaultLocale = 0x409;

/// All of them. Some share a number.
std::span<const Locale> locales();

/// The number of a locale by its name as environments and toolkits write it: "de_AT.UTF-8",
/// "de-AT", "de". A region without a row takes its language's first, an unknown language
/// defaultLocale.
unsigned localeNumber(std::string_view name);

/// The locale number of the user's environment: LC_ALL, else LC_MESSAGES, else LANG.
unsigned platformLocale();

}  // namespace varnholt

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

#include "forms/texts.h"
#include "tools/text_table.h"

namespace varnholt {

/// What every text reads without a satellite: the one sign of that state.
inline constexpr const char* noLocalData = "Error : No Local Data";

/// The texts and pictures of one locale, as its satellite file gives them.
///
/// A satellite is a small text file. Its first entry names the table of its language, a folder
/// beside it whose files hold the texts; what stands below replaces single texts of the table,
/// so that countries with one language share one table:
///
///     # English (United Kingdom)
///     table english
///     1101 Sans Serif
///
/// Pictures are numbered like texts. Their text is the picture's file, relative to the folder of
/// the satellites.
class Satellite {
 public:
    /// Throws RunTimeError or std::runtime_error when a file is missing or cannot be read.
    Satellite(const std::string& folder, const std::string& className);

    const std::string& GetResourceString(int number) const { return texts_.text(number); }
    /// The picture's file, empty when the satellite lacks it.
    std::string GetResourcePicture(int number) const;
    const TextTable& texts() const { return texts_; }

 private:
    std::string folder_;
    TextTable texts_;
};

/// The language resource: everything the user reads, by number, from the satellite of the
/// platform's locale.
class LanguageResource : public Texts {
 public:
    /// Takes the satellite of a locale out of the folder. False when there is none or it cannot
    /// be read: the resource then has no satellite, and every text is noLocalData.
    bool LoadSatellite(const std::string& folder, unsigned locale);

    /// Adds no check of its own: a number that the satellite lacks gives its empty text.
    std::string GetResourceText(int number) const;
    /// The picture's file; without a satellite the default picture, pictures/NUMBER.svg in the
    /// satellites' folder.
    std::string GetResourceImage(int number) const;

    std::string text(int number) const override { return GetResourceText(number); }
    std::string picture(int number) const override { return GetResourceImage(number); }

 private:
    std::string folder_;
    std::unique_ptr<const Satellite> satellite_;
};

/// "vhtSat" and the locale's number in upper-case hexadecimal digits without leading zeros.
std::string satelliteName(unsigned locale);

}  // namespace varnholt

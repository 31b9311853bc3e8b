// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/locales.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <set>
#include <sstream>

#include "tools/modResource.h"

namespace varnholt {
namespace {

const std::string languageFolder = VARNHOLT_RESOURCE_DIR "/language";

std::string contentOf(const std::filesystem::path& file) {
    std::ostringstream content;
    content << std::ifstream(file).rdbuf();
    return content.str();
}

TEST(Locales, AreFoundByTheNamesThatEnvironmentsWrite) {
    EXPECT_EQ(localeNumber("de_AT.UTF-8"), 0xC07u);
    EXPECT_EQ(localeNumber("de-AT"), 0xC07u);
    EXPECT_EQ(localeNumber("fr_BE@euro"), 0x80Cu);
    EXPECT_EQ(localeNumber("en_US"), 0x409u);
    EXPECT_EQ(localeNumber("pt_BR"), 0x416u);
}

TEST(Locales, ARegionWithoutARowTakesItsLanguagesFirst) {
    EXPECT_EQ(localeNumber("de"), 0x407u);
    EXPECT_EQ(localeNumber("de_BE.UTF-8"), 0x407u);
    EXPECT_EQ(localeNumber("es"), 0xC0Au);
    EXPECT_EQ(localeNumber("en_XX"), 0x409u);
}

TEST(Locales, AnUnknownLanguageIsTakenForEnglishOfTheUnitedStates) {
    for (const char* name : {"", "C", "POSIX", "C.UTF-8", "tlh_QQ", "_DE", ".UTF-8"})
        EXPECT_EQ(localeNumber(name), 0x409u) << name;
}

TEST(Locales, NamesStandOnce) {
    std::set<std::string> names;
    for (const Locale& locale : locales()) EXPECT_TRUE(names.insert(locale.name).second);
    EXPECT_GE(names.size(), 140u);
}

TEST(Locales, ThoseOfOneNumberAgreeAboutTheUnits) {
    std::map<unsigned, bool> metric;
    for (const Locale& locale : locales())
        EXPECT_EQ(metric.emplace(locale.number, locale.metric).first->second, locale.metric)
            << locale.name;
}

TEST(Locales, EveryOneHasASatelliteThatReadsAndNamesAFontWhereMetricIsUsed) {
    LanguageResource language;
    for (const Locale& locale : locales()) {
        SCOPED_TRACE(locale.name);
        ASSERT_TRUE(language.LoadSatellite(languageFolder, locale.number));
        EXPECT_EQ(language.text(1001), "Varnholt");
        EXPECT_EQ(!language.text(1101).empty(), locale.metric);
    }
}

TEST(Locales, EverySatelliteBelongsToOne) {
    std::set<std::string> expected;
    for (const Locale& locale : locales()) expected.insert(satelliteName(locale.number) + ".txt");
    for (const auto& entry : std::filesystem::directory_iterator(languageFolder)) {
        const std::string name = entry.path().filename();
        if (!name.starts_with("vhtSat")) continue;
        EXPECT_EQ(expected.count(name), 1u) << name;
    }
}

TEST(Locales, RegionsOfOneLanguageShareItsTable) {
    for (const Locale& locale : locales())
        if (std::string_view(locale.name).starts_with("en_")) {
            const std::string file = satelliteName(locale.number) + ".txt";
            EXPECT_NE(contentOf(languageFolder + "/" + file).find("\ntable english\n"),
                      std::string::npos)
                << file;
        }
}

/// Sets a variable of the environment, and puts it back in the end.
class Environment {
 public:
    Environment(const char* name, const char* value) : name_(name) {
        if (const char* old = std::getenv(name)) old_ = old;
        set(value);
    }
    ~Environment() { set(old_ ? old_->c_str() : nullptr); }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;

 private:
    void set(const char* value) {
        if (value != nullptr)
            setenv(name_, value, 1);
        else
            unsetenv(name_);
    }
    const char* name_;
    std::optional<std::string> old_;
};

TEST(PlatformLocale, IsThatOfTheFirstVariableThatIsSet) {
    const Environment all("LC_ALL", nullptr);
    const Environment messages("LC_MESSAGES", nullptr);
    const Environment lang("LANG", nullptr);
    EXPECT_EQ(platformLocale(), 0x409u);
    const Environment german("LANG", "de_DE.UTF-8");
    EXPECT_EQ(platformLocale(), 0x407u);
    const Environment empty("LC_ALL", "");
    EXPECT_EQ(platformLocale(), 0x407u);
    const Environment french("LC_MESSAGES", "fr_FR");
    EXPECT_EQ(platformLocale(), 0x40Cu);
    const Environment plain("LC_ALL", "C");
    EXPECT_EQ(platformLocale(), 0x409u);
}

}  // namespace
}  // namespace varnholt

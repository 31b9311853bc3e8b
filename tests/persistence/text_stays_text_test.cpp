// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/text_encoding.h"

#include <gtest/gtest.h>

#include "persistence/design_files.h"

namespace varnholt {
namespace {

/// Accents, and the folder of the zones under a name of another time, which is no UTF-8.
BoreholeProject projectOfLeon() {
    BoreholeProject project;
    project.information.projectName = "École à León";
    project.information.comments = "première\r\ndeuxième";
    project.loads.file = {"zones.zon", "/données de jadis/caf\xE9", false};
    return project;
}

TEST(TextOfAProject, IsUtf8WhateverItsFoldersAreCalled) {
    EXPECT_TRUE(isValidUtf8(projectText(projectOfLeon())));
}

TEST(TextOfAProject, ChangesNoByteInAHundredRounds) {
    const std::string first = projectText(projectOfLeon());
    std::string bytes = first;
    for (int round = 0; round < 100; ++round) {
        BoreholeProject read;
        readProjectText(bytes, read);
        bytes = projectText(read);
    }
    EXPECT_EQ(bytes, first);
    BoreholeProject last;
    readProjectText(bytes, last);
    EXPECT_EQ(last.information.projectName, "École à León");
    EXPECT_EQ(last.loads.file.folder, "/données de jadis/caf\xE9");
}

TEST(TextOfAProject, OfAnOldFileIsUtf8FromItsNextSavingOn) {
    std::string old = projectText(BoreholeProject{});
    const std::size_t name = old.find("Borehole Design\r\n") + 17;
    old.insert(name,
               "\xC9"
               "cole");  // as Windows-1252 writes it
    BoreholeProject project;
    readProjectText(old, project);
    EXPECT_EQ(project.information.projectName, "École");
    const std::string saved = projectText(project);
    EXPECT_TRUE(isValidUtf8(saved));
    BoreholeProject again;
    readProjectText(saved, again);
    EXPECT_EQ(again.information.projectName, "École");
}

TEST(CarriedText, BringsEveryByteBack) {
    std::string bytes;
    for (int byte = 255; byte > 0; --byte) bytes += static_cast<char>(byte);
    const std::string carried = carriedText(bytes);
    EXPECT_TRUE(isValidUtf8(carried));
    EXPECT_EQ(uncarriedText(carried), bytes);
    EXPECT_EQ(carriedText("École"), "École");
    EXPECT_EQ(uncarriedText("École"), "École");
}

}  // namespace
}  // namespace varnholt

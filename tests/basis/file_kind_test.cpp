// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/file_kind.h"

#include <gtest/gtest.h>

#include <string>

namespace varnholt {
namespace {

TEST(FileKinds, AreToldByTheFirstLine) {
    EXPECT_EQ(fileKind("Varnholt Data File Version 3.0\r\nBorehole"), FileKind::project);
    EXPECT_EQ(fileKind("\xEF\xBB\xBFZone Data File Version 1.0\n"), FileKind::zones);
    EXPECT_EQ(fileKind("Varnholt Initialization File Version 3.0"), FileKind::defaults);
    EXPECT_EQ(fileKind("Pump List File Version 3.0\r\n0"), FileKind::pumpList);
    EXPECT_EQ(fileKind("Brook Old Series List Version 1.0\r\n"), FileKind::pumpSeries);
}

TEST(FileKinds, OfUnknownTitlesAreUnknown) {
    for (const char* bytes : {"", "Some File Version 3.0", "\nZone Data File Version 3.0",
                              "zone data file version 3.0", " List Version 3.0"})
        EXPECT_EQ(fileKind(bytes), FileKind::unknown) << bytes;
    EXPECT_FALSE(isCertainlyOther(FileKind::unknown, FileKind::zones));
}

TEST(FileKinds, OfUtf16AndOfNulBytesAreNoText) {
    EXPECT_EQ(fileKind("\xFF\xFEZ"), FileKind::utf16);
    EXPECT_EQ(fileKind("\xFE\xFFZ"), FileKind::utf16);
    std::string zones = "Zone Data File Version 3.0\r\n40\r\n";
    zones += '\0';
    EXPECT_EQ(fileKind(zones), FileKind::binary);
}

}  // namespace
}  // namespace varnholt

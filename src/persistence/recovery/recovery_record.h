// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "basis/system/file_source.h"

namespace varnholt {

/// The unsaved work of one window, as it is kept for the case that the program ends without saving.
struct RecoveryRecord {
    std::string form;                ///< kind of the window: "frmBHDesign"
    std::string path;                ///< the document's file; empty without one
    std::string name;                ///< what the document is called: its file, or the caption
    std::int64_t changed = 0;        ///< ns since 1970
    std::optional<KnownFile> known;  ///< the file as the program knew it
    bool isStale = false;            ///< a design's results are older than it
    bool savesUnderNewName = false;  ///< a save by a click must not take the place of the file
    std::string document;            ///< the bytes of a file that holds it
};

/// The record as the bytes of a file, with its version and what goes with its bytes.
std::string recordBytes(const RecoveryRecord& record);

/// Nothing for bytes that are not exactly those of a record of this version.
std::optional<RecoveryRecord> readRecord(std::string_view bytes);

/// Whether the bytes are an intact record that another version of the program has written.
bool isOfAnotherVersion(std::string_view bytes);

}  // namespace varnholt

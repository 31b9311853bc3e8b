// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "basis/system/file_source.h"
#include "basis/system/lock_file.h"

namespace varnholt {

class Varnmain;

/// What is known of the file that a window has open.
struct OpenFile {
    std::optional<KnownFile> known;  ///< as this program has read or written it last
    FileLock lock;                   ///< tells other programs
    bool readOnly = false;           ///< it is open elsewhere: saving asks for a name
    bool asksForName = false;        ///< not all of it had been read: saving asks for a name
};

enum class OpenAs { itself, copy, notAtAll };

/// Before a file that has been read is shown: where its saving was once cut off, offers what it
/// held before, and reads it again; where another program has it open, asks what to do. Both only
/// where the main window guards its files. Throws as readFor.
/// @param content  what has been read of the file
OpenAs takeFile(Varnmain& main, const std::string& path, std::size_t mostBytes,
                FileSource::Content& content, OpenFile& file);
/// The same questions about a file that is read only after them; what is known of it stays as it
/// is. Throws as readFor.
OpenAs guardFile(Varnmain& main, const std::string& path, OpenFile& file);

enum class SavedAs {
    itself,     ///< the file has been written
    elsewhere,  ///< it has changed on the disk, and another name is wanted
    nothing     ///< the command has been cancelled
};

/// Writes a window's file, after a question where another program has changed it since it was read
/// or written here. Throws as replaceWholeFile.
/// @param file  what is known of it; nothing of one that gets a new name
SavedAs saveFile(Varnmain& main, const std::string& path, std::string_view bytes, OpenFile& file);

}  // namespace varnholt

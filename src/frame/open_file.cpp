// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/open_file.h"

#include <utility>

#include "basis/file_system.h"
#include "basis/system/fingerprint.h"
#include "basis/system/kept_copy.h"
#include "forms/patient_reading.h"
#include "forms/text_numbers/files.h"
#include "frame/varnmain.h"

namespace varnholt {
namespace {

Answer ask(Varnmain& main, int title, const std::string& text) {
    return main.platform().question(Buttons::yesNoCancel, main.text(title), text);
}

/// Whether the file holds again what it held before a save that was cut off.
bool isRestored(Varnmain& main, const std::string& path) {
    const std::optional<KeptCopy> copy = keptCopyOf(path);
    if (!copy) return false;
    const std::string question =
        filledIn(main.text(Text::saveWasCutOff),
                 {fileNameOf(path), main.platform().timeText(copy->modified)});
    const Answer answer = ask(main, Text::saveWasCutOffTitle, question);
    if (answer == Answer::yes) restoreKeptCopy(path, *copy);
    if (answer == Answer::no) removeFile(copy->path);
    return answer == Answer::yes;
}

OpenAs askAboutHolder(Varnmain& main, const std::string& path, const LockHolder& holder,
                      OpenFile& file) {
    const Answer answer = ask(main, Text::openElsewhereTitle,
                              filledIn(main.text(Text::openElsewhere),
                                       {fileNameOf(path), holder.process.host, holder.user,
                                        std::to_string(holder.process.number)}));
    file.readOnly = answer == Answer::no;
    if (answer == Answer::yes) return OpenAs::copy;
    return answer == Answer::no ? OpenAs::itself : OpenAs::notAtAll;
}

/// Tells other programs of the file, or asks what to do where one of them has it open.
OpenAs markFile(Varnmain& main, const std::string& path, OpenFile& file) {
    LockAttempt attempt = lockFile(path);
    if (attempt.holder) return askAboutHolder(main, path, *attempt.holder, file);
    file.lock = std::move(attempt.lock);
    return OpenAs::itself;
}

/// Whether the other program's change may go.
Answer askAboutChange(Varnmain& main, const std::string& path, const FileStamp& known,
                      const FileStamp& now) {
    Platform& platform = main.platform();
    return ask(main, Text::changedOnDiskTitle,
               filledIn(main.text(Text::changedOnDisk),
                        {fileNameOf(path), platform.timeText(known.modified),
                         platform.timeText(now.modified)}));
}

}  // namespace

OpenAs takeFile(Varnmain& main, const std::string& path, std::size_t mostBytes,
                FileSource::Content& content, OpenFile& file) {
    if (main.guardsFiles && isRestored(main, path))
        content = readFor(main.platform(), path, mostBytes);
    file.known = knownFile(content.stamp, content.bytes);
    return main.guardsFiles ? markFile(main, path, file) : OpenAs::itself;
}

OpenAs guardFile(Varnmain& main, const std::string& path, OpenFile& file) {
    if (!main.guardsFiles) return OpenAs::itself;
    static_cast<void>(isRestored(main, path));
    return markFile(main, path, file);
}

SavedAs saveFile(Varnmain& main, const std::string& path, std::string_view bytes, OpenFile& file) {
    for (;;) {
        const std::optional<FileStamp> saved =
            file.known ? replaceKnownFile(path, bytes, *file.known) : replaceWholeFile(path, bytes);
        if (saved) {
            file.known = knownFile(*saved, bytes);
            return SavedAs::itself;
        }
        const std::optional<FileStamp> now = changedStamp(path, *file.known);
        if (!now) continue;
        const Answer answer = askAboutChange(main, path, file.known->stamp, *now);
        if (answer == Answer::cancel) return SavedAs::nothing;
        if (answer == Answer::no) return SavedAs::elsewhere;
        // What was told of may go; a change that comes after it may not.
        file.known = KnownFile{*now, fingerprint(readOwnFile(path))};
    }
}

}  // namespace varnholt

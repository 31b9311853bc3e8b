// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/file_damage.h"

#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "forms/text_numbers/commands.h"
#include "forms/text_numbers/files.h"

namespace varnholt {
namespace {

constexpr int inputPastEnd = 62;

int nameOf(FileKind kind) {
    switch (kind) {
        case FileKind::project:
            return Text::kindProject;
        case FileKind::zones:
            return Text::kindZones;
        case FileKind::defaults:
            return Text::kindDefaults;
        case FileKind::pumpList:
            return Text::kindPumpList;
        case FileKind::pumpSeries:
            return Text::kindPumpSeries;
        case FileKind::utf16:
            return Text::kindUtf16;
        case FileKind::binary:
        case FileKind::unknown:
            break;
    }
    return Text::kindBinary;
}

/// Where the reading ended, and why.
std::string endOfReading(const Texts& texts, const ReadingReport& report) {
    constexpr int overflow = 6;
    // The lines of a part that cannot be read are left over with it.
    const bool ofPart = !report.unread.empty() && report.unread.back().line == report.line;
    if (report.leftover && !ofPart)
        return filledIn(texts.text(Text::noticeLeftoverLines), {std::to_string(report.line)});
    if (report.error == inputPastEnd)
        return filledIn(texts.text(Text::noticeEndsAtLine), {std::to_string(report.line)});
    if (report.error == overflow && report.line > 0)
        return filledIn(texts.text(Text::noticeNumberTooLarge), {std::to_string(report.line)});
    if (report.error == 0) return {};
    return filledIn(texts.text(Text::noticeReadingFailed), {RunTimeError(report.error).message()});
}

int wordsFor(Entries entries) {
    switch (entries) {
        case Entries::pumps:
            return Text::noticePumpsRead;
        case Entries::manufacturers:
            return Text::noticeManufacturersRead;
        case Entries::zones:
            break;
    }
    return Text::noticeZonesRead;
}

}  // namespace

std::string damageText(const Texts& texts, const FileDamage& damage) {
    if (damage.other != FileKind::unknown)
        return filledIn(texts.text(Text::noticeOtherKind),
                        {damage.name, texts.text(nameOf(damage.other))});
    const ReadingReport& report = damage.report;
    if (damage.isNone())
        return filledIn(texts.text(Text::noticeOpenLine),
                        {damage.name, std::to_string(report.openLine)});
    std::string told = filledIn(texts.text(Text::noticeFileIncomplete), {damage.name});
    const auto append = [&](const std::string& sentence) {
        if (!sentence.empty()) told += " " + sentence;
    };
    for (const UnreadPart& part : report.unread)
        append(
            filledIn(texts.text(Text::noticeUnreadPart), {part.name, std::to_string(part.line)}));
    append(endOfReading(texts, report));
    if (report.shortenedLine != 0)
        append(filledIn(texts.text(Text::noticeShortenedLine),
                        {std::to_string(report.shortenedLine)}));
    if (report.stated != report.found && report.leftOut == 0)
        append(filledIn(texts.text(wordsFor(report.entries)),
                        {std::to_string(report.found), std::to_string(report.stated)}));
    if (report.leftOut > 0)
        append(filledIn(texts.text(Text::noticeZonesLeftOut), {std::to_string(report.leftOut)}));
    return told;
}

std::string unreadableText(const Texts& texts, const std::string& path, int error) {
    if (error == RunTimeError::fileNotFound)
        return filledIn(texts.text(Text::noticeFileNotFound), {path});
    if (error == inputPastEnd)
        return filledIn(texts.text(Text::noticeEndsAtOnce), {fileNameOf(path)});
    // Of the disk or the right to it, not of what the file holds: then its place matters.
    const bool ofPlace = error == 57 || error == 70 || error == 75 || error == 76;
    const RunTimeError told = ofPlace ? RunTimeError(error, path) : RunTimeError(error);
    return filledIn(texts.text(Text::noticeFileIncomplete), {fileNameOf(path)}) + " " +
           filledIn(texts.text(Text::noticeReadingFailed), {told.message()});
}

}  // namespace varnholt

// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/recovery/recovery_record.h"

#include <fmt/format.h>

#include <charconv>

#include "basis/system/fingerprint.h"

namespace varnholt {
namespace {

constexpr std::string_view titleOfRecords = "Varnholt Recovery Version ";
constexpr std::string_view recordTitle = "Varnholt Recovery Version 1";

/// A text with a line end in it would be two lines.
std::string oneLine(std::string text) {
    for (char& c : text)
        if (c == '\n' || c == '\r') c = ' ';
    return text;
}

std::string stampText(const std::optional<KnownFile>& known) {
    if (!known) return "-";
    const FileStamp& stamp = known->stamp;
    return fmt::format("{} {} {} {} {}", stamp.device, stamp.inode, stamp.size, stamp.modified,
                       known->fingerprint);
}

/// Takes the lines of a record apart. What is no record of this form makes it fail for good.
class Lines {
 public:
    explicit Lines(std::string_view text) : left_(text) {}

    std::string_view take(char end = '\n') {
        const std::size_t at = left_.find(end);
        if (at == std::string_view::npos) {
            failed_ = true;
            return {};
        }
        const std::string_view taken = left_.substr(0, at);
        left_.remove_prefix(at + 1);
        return taken;
    }
    template <class Number>
    Number number(char end = '\n') {
        const std::string_view text = take(end);
        Number value{};
        const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
        if (read.ec != std::errc{} || read.ptr != text.data() + text.size()) failed_ = true;
        return value;
    }
    bool hasFailed() const { return failed_; }
    std::string_view left() const { return left_; }

 private:
    std::string_view left_;
    bool failed_ = false;
};

std::optional<KnownFile> takeStamp(Lines& lines) {
    if (lines.left().starts_with("-\n")) {
        lines.take();
        return std::nullopt;
    }
    KnownFile known;
    known.stamp.device = lines.number<std::uint64_t>(' ');
    known.stamp.inode = lines.number<std::uint64_t>(' ');
    known.stamp.size = lines.number<std::int64_t>(' ');
    known.stamp.modified = lines.number<std::int64_t>(' ');
    known.fingerprint = lines.number<std::uint64_t>();
    return known;
}

/// Whether what is left goes with the number on the line before it.
bool isIntact(Lines& lines) {
    const auto expected = lines.number<std::uint64_t>();
    return !lines.hasFailed() && fingerprint(lines.left()) == expected;
}

}  // namespace

std::string recordBytes(const RecoveryRecord& record) {
    const std::string head =
        fmt::format("{}\n{}\n{}\n{}\n{}\n{} {}\n{}\n", record.form,
                    // A path that one line does not hold leads nowhere.
                    record.path == oneLine(record.path) ? record.path : "", oneLine(record.name),
                    record.changed, stampText(record.known), int{record.isStale},
                    int{record.savesUnderNewName}, record.document.size());
    std::string bytes =
        fmt::format("{}\n{}\n", recordTitle, fingerprint(record.document, fingerprint(head)));
    // A document may be long: it stands here once.
    bytes.reserve(bytes.size() + head.size() + record.document.size());
    bytes += head;
    bytes += record.document;
    return bytes;
}

std::optional<RecoveryRecord> readRecord(std::string_view bytes) {
    Lines lines(bytes);
    if (lines.take() != recordTitle || !isIntact(lines)) return std::nullopt;
    RecoveryRecord record;
    record.form = lines.take();
    record.path = lines.take();
    record.name = lines.take();
    record.changed = lines.number<std::int64_t>();
    record.known = takeStamp(lines);
    record.isStale = lines.number<int>(' ') != 0;
    record.savesUnderNewName = lines.number<int>() != 0;
    const auto size = lines.number<std::size_t>();
    record.document = lines.left();
    if (lines.hasFailed() || record.document.size() != size) return std::nullopt;
    return record;
}

bool isOfAnotherVersion(std::string_view bytes) {
    Lines lines(bytes);
    const std::string_view title = lines.take();
    return title.starts_with(titleOfRecords) && title != recordTitle && isIntact(lines);
}

}  // namespace varnholt

// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/system/temporary_names.h"

#include <fmt/format.h>
#include <unistd.h>

#include <charconv>
#include <filesystem>
#include <vector>

#include "basis/file_system.h"
#include "basis/system/fingerprint.h"

namespace varnholt {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view prefix = ".varnholt-save-";

/// A computer's name may be longer than a file's: eight digits stand for it.
std::string digitsOf(const std::string& host) {
    return fmt::format("{:08x}", static_cast<std::uint32_t>(fingerprint(host)));
}

/// Reads the number up to the next hyphen, and goes behind it.
template <class Number>
bool takeNumber(std::string_view& text, Number& number, int base) {
    const std::size_t end = std::min(text.find('-'), text.size());
    const auto read = std::from_chars(text.data(), text.data() + end, number, base);
    if (end == 0 || read.ec != std::errc{} || read.ptr != text.data() + end) return false;
    text.remove_prefix(std::min(end + 1, text.size()));
    return true;
}

}  // namespace

std::string temporaryPath(const std::string& folder) {
    const ProcessIdentity self = thisProcess();
    return joinPath(folder, fmt::format("{}{}-{}-{:x}-{:016x}", prefix, digitsOf(self.host),
                                        self.number, self.begun, unguessableNumber()));
}

std::optional<ProcessIdentity> makerOfTemporary(std::string_view name) {
    if (!name.starts_with(prefix)) return std::nullopt;
    name.remove_prefix(prefix.size());
    const std::string host(name.substr(0, name.find('-')));
    std::uint32_t hostDigits = 0;
    std::uint64_t random = 0;
    ProcessIdentity maker;
    if (!takeNumber(name, hostDigits, 16) || !takeNumber(name, maker.number, 10) ||
        !takeNumber(name, maker.begun, 16) || !takeNumber(name, random, 16) || !name.empty())
        return std::nullopt;
    const ProcessIdentity self = thisProcess();
    maker.host = host == digitsOf(self.host) ? self.host : host;
    return maker;
}

void removeLeftovers(const std::string& folder) {
    std::error_code error;
    fs::directory_iterator entries(folder, error);
    std::vector<std::string> left;
    for (; !error && entries != fs::directory_iterator(); entries.increment(error)) {
        const auto maker = makerOfTemporary(entries->path().filename().native());
        if (maker && hasEnded(*maker)) left.push_back(entries->path().native());
    }
    for (const std::string& path : left) ::unlink(path.c_str());
}

}  // namespace varnholt

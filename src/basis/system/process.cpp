// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/system/process.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <pwd.h>
#include <signal.h>
#include <sys/random.h>
#include <unistd.h>

#include <array>
#include <charconv>
#include <cstdlib>
#include <filesystem>
#include <random>

#include "basis/system/descriptor.h"

namespace varnholt {
namespace {

std::string hostName() {
    std::array<char, 256> name{};
    if (::gethostname(name.data(), name.size() - 1) != 0) return {};
    return name.data();
}

/// The word at the place, from 0, of what the system tells of a process behind its name.
std::uint64_t wordOfStatus(std::string_view status, int place) {
    for (; place > 0; --place) status.remove_prefix(std::min(status.find(' ') + 1, status.size()));
    std::uint64_t number = 0;
    std::from_chars(status.data(), status.data() + status.size(), number);
    return number;
}

/// Clock ticks from the start of the computer to that of the process; 0 where the system does not
/// tell.
std::uint64_t beginOf(int process) {
    const std::string path = fmt::format("/proc/{}/stat", process);
    const Descriptor file(
        uninterrupted([&] { return ::open(path.c_str(), O_RDONLY | O_CLOEXEC); }));
    std::array<char, 1'024> status{};
    if (!file.isOpen()) return 0;
    const ssize_t got =
        uninterrupted([&] { return ::read(file.number(), status.data(), status.size()); });
    if (got <= 0) return 0;
    const std::string_view text(status.data(), static_cast<std::size_t>(got));
    // The program's name stands in brackets and may hold anything; the begin is word 22 of the
    // line, which is the 20th behind the brackets.
    constexpr int begin = 19;
    const std::size_t bracket = text.rfind(") ");
    return bracket == std::string_view::npos ? 0 : wordOfStatus(text.substr(bracket + 2), begin);
}

}  // namespace

std::string executablePath() {
    std::error_code ignored;
    return std::filesystem::read_symlink("/proc/self/exe", ignored).string();
}

int processNumber() { return ::getpid(); }

ProcessIdentity thisProcess() { return {hostName(), processNumber(), beginOf(processNumber())}; }

bool hasEnded(const ProcessIdentity& process) {
    if (process.host != hostName() || process.number <= 0) return false;
    if (::kill(process.number, 0) != 0) return errno == ESRCH;
    const std::uint64_t begun = beginOf(process.number);
    return begun != 0 && process.begun != 0 && begun != process.begun;
}

std::string userName() {
    passwd entry{};
    passwd* found = nullptr;
    std::array<char, 4'096> texts{};
    if (::getpwuid_r(::geteuid(), &entry, texts.data(), texts.size(), &found) == 0 &&
        found != nullptr)
        return found->pw_name;
    return std::to_string(::geteuid());
}

std::optional<std::string> environmentVariable(const char* name) {
    const char* value = std::getenv(name);
    if (value == nullptr) return std::nullopt;
    return value;
}

void secureStandardStreams() {
    // The lowest free number is the closed one, as those below it have been seen to.
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (::fcntl(stream, F_GETFD) < 0)
            static_cast<void>(::open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY));
    ::signal(SIGPIPE, SIG_IGN);
}

std::uint64_t unguessableNumber() {
    std::uint64_t number = 0;
    const auto wanted = static_cast<ssize_t>(sizeof number);
    if (uninterrupted([&] { return ::getrandom(&number, sizeof number, 0); }) == wanted)
        return number;
    std::random_device device;
    return (std::uint64_t{device()} << 32) | device();
}

}  // namespace varnholt

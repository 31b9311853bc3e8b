// SPDX-License-Identifier: GPL-3.0-or-later
#include "monkey/session.h"

#include <fmt/format.h>
#include <unistd.h>

#include <charconv>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>

#include "tools/program_folder.h"

namespace varnholt {
namespace {

namespace fs = std::filesystem;

constexpr const char* usage =
    " [--seed N] [--presses N] [--undone N] [--trace FILE] [--aloud]\n"
    "A random user of every window, who now and then undoes a document to its beginning and\n"
    "redoes it to its end. Plays on until at least so many steps are undone and redone. The\n"
    "last session, which is the failed one after a failure, is written to FILE as a script.\n";

struct Options {
    std::uint64_t seed = 1;
    std::size_t presses = 2000;
    std::size_t undone = 0;
    std::string trace;
    bool aloud = false;
};

std::uint64_t readWhole(const std::string& text) {
    std::uint64_t number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    if (result.ec != std::errc{} || result.ptr != text.data() + text.size())
        throw std::invalid_argument(text + " is not a whole number");
    return number;
}

Options readOptions(const std::vector<std::string>& arguments) {
    Options options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& name = arguments[i];
        const auto value = [&] { return i + 1 < arguments.size() ? arguments[++i] : ""; };
        if (name == "--seed")
            options.seed = readWhole(value());
        else if (name == "--presses")
            options.presses = readWhole(value());
        else if (name == "--undone")
            options.undone = readWhole(value());
        else if (name == "--trace")
            options.trace = value();
        else if (name == "--aloud")
            options.aloud = true;
        else
            throw std::invalid_argument(name + " is no option; there are" + usage);
    }
    return options;
}

/// A program folder of one session, which goes with it.
class SessionFolder {
 public:
    explicit SessionFolder(std::uint64_t seed)
        : path_(fs::temp_directory_path() / fmt::format("varnholt-monkey-{}-{}", seed, getpid())) {
        fs::remove_all(path_);
        fillProgramFolder(path_.string(), installedFiles());
    }
    SessionFolder(const SessionFolder&) = delete;
    SessionFolder& operator=(const SessionFolder&) = delete;
    ~SessionFolder() {
        std::error_code ignored;
        fs::remove_all(path_, ignored);
    }
    std::string path() const { return path_.string(); }

 private:
    fs::path path_;
};

void writeTrace(const std::string& path, const MonkeyLog& log) {
    if (path.empty()) return;
    std::ofstream file(path);
    for (const std::string& line : log.lines()) file << line << '\n';
}

/// A session in a folder that goes with it.
Played playNext(const Options& options, std::size_t presses, Dice& dice, MonkeyLog& log,
                const PlaySession& play) {
    const SessionFolder folder(options.seed);
    const unsigned locale = dice.chance(70) ? 0x409 : 0x407;
    log.clear();
    log.action(fmt::format("# --today 2026-01-15 --locale {:x}", locale));
    return play({presses, folder.path(), locale, dice, log});
}

int playSessions(const Options& options, const PlaySession& play) {
    Dice dice(options.seed);
    MonkeyLog log(options.aloud);
    Played done;
    std::size_t sessions = 0;
    try {
        for (; done.presses < options.presses || done.undone < options.undone; ++sessions) {
            std::size_t presses = 200 + dice.below(1800);
            if (done.presses < options.presses)
                presses = std::min(presses, options.presses - done.presses);
            const Played more = playNext(options, presses, dice, log, play);
            done.presses += more.presses;
            done.undone += more.undone;
        }
    } catch (const std::exception& exception) {
        writeTrace(options.trace, log);
        std::cerr << fmt::format("seed {}, after {} presses: {}\n", options.seed, done.presses,
                                 exception.what());
        return 1;
    }
    writeTrace(options.trace, log);
    std::cout << fmt::format("{} presses in {} sessions, {} steps undone and redone\n",
                             done.presses, sessions, done.undone);
    return 0;
}

}  // namespace

int playAsAsked(const std::string& name, const std::vector<std::string>& arguments,
                const PlaySession& play) {
    try {
        return playSessions(readOptions(arguments), play);
    } catch (const std::exception& exception) {
        std::cerr << name << ": " << exception.what() << '\n';
        return 2;
    }
}

}  // namespace varnholt

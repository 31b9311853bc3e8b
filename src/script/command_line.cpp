// SPDX-License-Identifier: GPL-3.0-or-later
#include "script/command_line.h"

#include <fmt/format.h>

#include <charconv>
#include <stdexcept>

#include "basis/system/folders.h"
#include "frame/program_version.h"

namespace varnholt {
namespace {

struct UsageError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

const char* nameOf(Program program) {
    return program == Program::script ? "varnholt-script" : "varnholt";
}

unsigned readLocale(const std::string& text) {
    std::string_view digits = text;
    if (digits.substr(0, 2) == "0x" || digits.substr(0, 2) == "0X") digits.remove_prefix(2);
    unsigned number = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), number, 16);
    if (result.ec != std::errc{} || result.ptr != digits.data() + digits.size())
        throw UsageError(fmt::format("{} is not a locale number such as 409", text));
    return number;
}

std::string readBrowser(const std::string& text) {
    if (text != "text" && text != "web")
        throw UsageError(fmt::format("{} is no engine for pages: text or web", text));
    return text;
}

Date readToday(const std::string& text) {
    const std::optional<Date> date = readIsoDate(text);
    if (!date) throw UsageError(fmt::format("{} is not a date of the form YYYY-MM-DD", text));
    return *date;
}

/// Walks the arguments; "--option value" and "--option=value" mean the same.
class Parser {
 public:
    Parser(const std::vector<std::string>& arguments, Program program)
        : arguments_(arguments), program_(program) {}

    CommandLine parse() {
        try {
            while (next_ < arguments_.size()) take(arguments_[next_++]);
        } catch (const UsageError& error) {
            line_.error = error.what();
        }
        if (program_ == Program::script && !line_.script) line_.script = "-";
        return line_;
    }

 private:
    void take(const std::string& argument) {
        const bool option = !optionsEnded_ && argument.size() > 1 && argument.front() == '-';
        if (!option) return takeFile(argument);
        if (argument == "--") {
            optionsEnded_ = true;
            return;
        }
        const std::size_t equals = argument.find('=');
        takeOption(argument.substr(0, equals), equals == std::string::npos
                                                   ? std::optional<std::string>{}
                                                   : argument.substr(equals + 1));
    }

    void takeOption(const std::string& name, const std::optional<std::string>& joined) {
        const auto value = [&] {
            if (joined) return *joined;
            if (next_ == arguments_.size()) throw UsageError(name + " needs a value");
            return arguments_[next_++];
        };
        if (name == "--program-folder")
            line_.programFolder = folder(value());
        else if (name == "--locale")
            line_.localeNumber = readLocale(value());
        else if (name == "--today")
            line_.today = readToday(value());
        else if (name == "--script" && program_ == Program::windows)
            line_.script = value();
        else if (name == "--browser" && program_ == Program::windows)
            line_.browser = readBrowser(value());
        else if (name == "--help" && !joined)
            line_.help = true;
        else if (name == "--version" && !joined)
            line_.version = true;
        else
            throw UsageError("unknown option " + name);
    }

    static std::string folder(const std::string& text) {
        if (text.empty()) throw UsageError("--program-folder needs a folder");
        return absolutePath(text);
    }

    void takeFile(const std::string& file) {
        if (program_ == Program::windows) {
            line_.files.push_back(absolutePath(file));
            return;
        }
        if (line_.script) throw UsageError("more than one script: " + file);
        line_.script = file;
    }

    const std::vector<std::string>& arguments_;
    Program program_;
    CommandLine line_;
    std::size_t next_ = 0;
    bool optionsEnded_ = false;
};

constexpr const char* commonOptions =
    "  --program-folder DIR  the program's folder, used as it stands\n"
    "                        (default: the user's own, filled on first start)\n"
    "  --locale HEX          the locale number of the language, such as 409\n"
    "  --today YYYY-MM-DD    the date that new documents take\n"
    "  --help                show this text\n"
    "  --version             show the program's version\n";

}  // namespace

CommandLine parseCommandLine(const std::vector<std::string>& arguments, Program program) {
    return Parser(arguments, program).parse();
}

std::string usageOf(Program program) {
    if (program == Program::script)
        return fmt::format(
            "varnholt-script [options] [FILE]\n"
            "Works the windows of Varnholt by a script, without a screen.\n"
            "FILE absent or - is standard input.\n\n{}",
            commonOptions);
    return fmt::format(
        "varnholt [options] [FILE ...]\n"
        "Sizes ground heat exchangers. Opens the project and zone files that are named.\n\n"
        "  --script FILE         let a script work the windows; - is standard input\n"
        "  --browser text|web    what shows reference pages (default: web where it is installed,\n"
        "                        text for a script)\n{}",
        commonOptions);
}

std::string versionOf(Program program) {
    return fmt::format("{} {}\n", nameOf(program), programVersion);
}

}  // namespace varnholt

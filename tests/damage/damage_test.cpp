// SPDX-License-Identifier: GPL-3.0-or-later
// Both programs read files that were cut off or have a wrong byte, and files as large as they may
// be: they go on, soon, and take no more than 200 MB of memory beyond the file's size.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>

#include "damage/damaged_files.h"
#include "damage/program_at_work.h"
#include "persistence/temporary_folder.h"

namespace varnholt {
namespace {

namespace fs = std::filesystem;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

#ifdef VARNHOLT_SANITIZED
// The sanitizers take their own time and memory.
constexpr milliseconds most(30'000);
constexpr bool memoryCounts = false;
#else
constexpr milliseconds most(2'000);
constexpr bool memoryCounts = true;
#endif
constexpr double mostBeyondTheFile = 200;  // MB of 10^6 bytes
// A giant is read in as long as any other file, on a processor of its own.
constexpr double mostProcessorSeconds = 2;
constexpr milliseconds mostForAGiant(60'000);

std::vector<std::string> programs() {
    std::vector<std::string> names{"varnholt-script"};
    if (fs::exists(VARNHOLT_BIN_DIR "/varnholt")) names.push_back("varnholt");
    return names;
}

struct Case {
    std::string program;
    FileOfAKind kind;
};

/// A program in a folder of its own, which is started again whenever it has ended.
class Reading : public testing::Test {
 protected:
    void begin(const std::string& program) {
        program_ = program;
        for (const char* name : {"work files", "zones", "Data", "OnlineHelp"})
            fs::create_directories(folder / name);
        fs::copy(VARNHOLT_SOURCE_DIR "/resources/pumps", folder / "pumps",
                 fs::copy_options::recursive);
        // One that writes PDF files and pages asks for these.
        fs::copy(VARNHOLT_RESOURCE_DIR "/tables", folder / "tables", fs::copy_options::recursive);
        start();
    }
    void start() {
        atWork_ = std::make_unique<ProgramAtWork>(program_, folder.path());
        // The first window brings what all of them need.
        atWork_->run({"click Varnmain.NewBorehole"}, milliseconds(60'000));
        closeAll();
        before_ = atWork_->mostMegabytes();
    }

    /// Has the program read the bytes; false, with a failure, when it did not stand them.
    bool stands(const FileOfAKind& kind, const std::string& bytes, milliseconds time = most) {
        std::ofstream(folder / kind.place, std::ios::binary) << bytes;
        // The questions of a window whose file could not be read whole are answered with no.
        std::vector<std::string> lines{"answer no", "answer no", "answer no"};
        lines.insert(lines.end(), kind.lines.begin(), kind.lines.end());
        const auto begun = steady_clock::now();
        const double worked = atWork_->processorSeconds();
        atWork_->run(lines, time);
        processor_ = std::max(processor_, atWork_->processorSeconds() - worked);
        longest_ = std::max(longest_, steady_clock::now() - begun);
        if (atWork_->isRunning()) {
            largest_ = std::max(largest_, atWork_->mostMegabytes() - before_ -
                                              static_cast<double>(bytes.size()) / 1e6);
            closeAll();
        }
        EXPECT_TRUE(atWork_->isRunning()) << atWork_->end();
        if (memoryCounts) {
            EXPECT_LE(largest_, mostBeyondTheFile);
        }
        return atWork_->isRunning() && (!memoryCounts || largest_ <= mostBeyondTheFile);
    }
    void closeAll() {
        // The last opened goes first.
        std::vector<std::string> open = atWork_->run({"forms"}, most);
        std::vector<std::string> lines;
        for (auto form = open.rbegin(); form != open.rend(); ++form)
            if (form->starts_with("frm"))
                lines.insert(lines.end(),
                             {"answer no", "close " + form->substr(0, form->find(' '))});
        if (atWork_->isRunning() && !lines.empty()) atWork_->run(lines, most);
    }
    /// Its status is 3 where fewer questions were asked than answers given.
    void end() {
        const int status = atWork_->finish();
        EXPECT_TRUE(status == 0 || status == 3) << atWork_->end();
        RecordProperty(
            "longestMilliseconds",
            static_cast<int>(std::chrono::duration_cast<milliseconds>(longest_).count()));
        RecordProperty("mostProcessorMilliseconds", static_cast<int>(1000 * processor_));
        RecordProperty("mostMegabytesBeyondTheFile", static_cast<int>(largest_ + 1));
    }

    TemporaryFolder folder;
    std::unique_ptr<ProgramAtWork> atWork_;
    double before_ = 0, largest_ = 0, processor_ = 0;
    steady_clock::duration longest_{};

 private:
    std::string program_;
};

class Damaged : public Reading, public testing::WithParamInterface<Case> {};

TEST_P(Damaged, FilesAreReadByAProgramThatGoesOn) {
    const FileOfAKind& kind = GetParam().kind;
    begin(GetParam().program);
    const std::string whole = bytesOf(VARNHOLT_SOURCE_DIR "/" + kind.sample);
    ASSERT_FALSE(whole.empty());
    // What a whole file needs is asked of the damaged ones too.
    ASSERT_TRUE(stands(kind, whole));
    const std::size_t tried =
        forEachDamage(whole, damageChosen(GetParam().program == "varnholt"),
                      [&](const std::string& bytes, const std::string& damage) {
                          SCOPED_TRACE(damage);
                          return stands(kind, bytes);
                      });
    RecordProperty("tried", static_cast<int>(tried));
    end();
}

std::vector<Case> allCases() {
    std::vector<Case> cases;
    for (const std::string& program : programs())
        for (const FileOfAKind& kind : filesOfAllKinds()) cases.push_back({program, kind});
    return cases;
}

std::string nameOf(const testing::TestParamInfo<Case>& each) {
    return each.param.kind.name + (each.param.program == "varnholt" ? "InWindows" : "InScripts");
}

INSTANTIATE_TEST_SUITE_P(AllKinds, Damaged, testing::ValuesIn(allCases()), nameOf);

/// A file as large as a file of its kind may be, and one that is larger.
class Giant : public Reading, public testing::WithParamInterface<Case> {
 protected:
    /// So many bytes of short lines behind the head of a file that states more entries than there
    /// can be.
    static std::string ofSize(std::string head, std::size_t size) {
        while (head.size() + 3 <= size) head += "1\r\n";
        head.resize(size, '1');
        return head;
    }

    /// The file with its first label or name made so long that it has this size.
    static std::string withLongName(const FileOfAKind& kind, const std::string& whole, char letter,
                                    std::size_t size) {
        const std::map<std::string, int> lines{
            {"Borehole", 68}, {"Zones", 26}, {"Index", 4}, {"Series", 4}};
        std::size_t start = 0;
        for (int line = 1; line < lines.at(kind.name); ++line) start = whole.find('\n', start) + 1;
        const std::size_t end = whole.find_first_of("\r\n", start);
        return whole.substr(0, start) + std::string(size - whole.size(), letter) +
               whole.substr(end);
    }
};

TEST_P(Giant, FilesAreReadOrRefusedByAProgramThatGoesOn) {
    const FileOfAKind& kind = GetParam().kind;
    begin(GetParam().program);
    const std::string whole = bytesOf(VARNHOLT_SOURCE_DIR "/" + kind.sample);
    const std::size_t megabytes = kind.place.ends_with(".zon") ? 256 : 64;
    // The sanitizers make everything ten times as long.
    const std::size_t largest = (memoryCounts ? megabytes : megabytes / 16) << 20;
    const std::string title = whole.substr(0, whole.find('\n') + 1);
    const bool isProject = kind.place.ends_with(".vht") && kind.place.starts_with("work files/");
    const std::string head = isProject ? whole : title;
    for (const char* count : {"32767\r\n", "99999999\r\n"}) {
        SCOPED_TRACE(count);
        ASSERT_TRUE(stands(kind, ofSize(head + count, largest), mostForAGiant));
    }
    ASSERT_TRUE(stands(kind, title + std::string(largest - title.size(), 'x'), mostForAGiant));
    ASSERT_TRUE(stands(kind, ofSize(head, (megabytes << 20) + 1), mostForAGiant));
    // The last is a byte of Windows-1252 that is three of UTF-8.
    for (const char letter : {'x', '\x80'})
        ASSERT_TRUE(stands(kind, withLongName(kind, whole, letter, largest), mostForAGiant))
            << "a long name";
    if (memoryCounts) {
        EXPECT_LE(processor_, mostProcessorSeconds);
    }
    end();
}

/// A project whose name, or whose comment, is as long as the file may be.
class LongText : public Reading, public testing::WithParamInterface<std::string> {};

TEST_P(LongText, OfAProjectIsHeldOnce) {
    const FileOfAKind& kind = filesOfAllKinds().front();
    ASSERT_EQ(kind.name, "Borehole");
    begin(GetParam());
    const std::string whole = bytesOf(VARNHOLT_SOURCE_DIR "/" + kind.sample);
    const std::size_t largest = std::size_t{memoryCounts ? 64 : 4} << 20;
    const std::size_t length = largest - whole.size() - 100;
    const auto lineAt = [&](std::size_t number) {
        std::size_t at = 0;
        for (std::size_t i = 1; i < number; ++i) at = whole.find('\n', at) + 1;
        return at;
    };
    const auto instead = [&](std::size_t first, std::size_t behind, const std::string& text) {
        return whole.substr(0, lineAt(first)) + text + "\r\n" + whole.substr(lineAt(behind));
    };
    // Line 3 is the project's name, line 17 the number of the comment's lines.
    constexpr std::size_t name = 3, comment = 17;
    const std::size_t afterComment = comment + 1 + std::stoul(whole.substr(lineAt(comment)));
    // Bytes of Windows-1252 that are two and three of UTF-8.
    const std::string two(length, '\xE9'), three(length, '\x80');
    ASSERT_TRUE(stands(kind, instead(name, name + 1, std::string(length, 'n')), mostForAGiant));
    ASSERT_TRUE(stands(kind, instead(name, name + 1, two), mostForAGiant));
    ASSERT_TRUE(stands(kind, instead(name, name + 1, three), mostForAGiant));
    ASSERT_TRUE(stands(kind, instead(comment, afterComment, "1\r\n" + three), mostForAGiant));
    ASSERT_TRUE(stands(kind, instead(comment, afterComment, "1\r\n" + std::string(length, 'c')),
                       mostForAGiant));
    ASSERT_TRUE(stands(kind, instead(comment, afterComment, "1\r\n" + two), mostForAGiant));
    ASSERT_TRUE(stands(kind,
                       instead(comment, afterComment,
                               std::to_string(length + 1) + "\r\n" + std::string(length, '\n')),
                       mostForAGiant));
    end();
}

INSTANTIATE_TEST_SUITE_P(InBoth, LongText, testing::ValuesIn(programs()), [](const auto& each) {
    return each.param == "varnholt" ? "InWindows" : "InScripts";
});

std::vector<Case> giantCases() {
    std::vector<Case> cases;
    for (const Case& each : allCases())
        for (const char* name : {"Borehole", "Zones", "Index", "Series"})
            if (each.kind.name == name) cases.push_back(each);
    return cases;
}

INSTANTIATE_TEST_SUITE_P(OfLargeKinds, Giant, testing::ValuesIn(giantCases()), nameOf);

}  // namespace
}  // namespace varnholt

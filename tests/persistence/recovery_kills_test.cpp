// SPDX-License-Identifier: GPL-3.0-or-later
// A program is killed in the midst of typing: what it had typed more than a moment before is there.
#include <signal.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <random>
#include <thread>

#include "basis/line_file.h"
#include "basis/number_text.h"
#include "persistence/project_fixture.h"
#include "persistence/recovery/recovery.h"

namespace varnholt {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

/// Ten times as fast as for a person, so that ten seconds become one.
constexpr milliseconds pace = Recovery::usualPace / 10;
constexpr milliseconds mostLost(1000);

/// When each number was typed, seen by both processes.
struct Typed {
    static constexpr int most = 100'000;
    std::atomic<int> last;
    steady_clock::time_point at[most];
};

class RandomEditing : public ProjectTest {
 protected:
    RandomEditing()
        : typed_(static_cast<Typed*>(::mmap(nullptr, sizeof(Typed), PROT_READ | PROT_WRITE,
                                            MAP_SHARED | MAP_ANONYMOUS, -1, 0))) {}
    ~RandomEditing() override { ::munmap(typed_, sizeof(Typed)); }

    [[noreturn]] void typeWithoutEnd(unsigned seed) {
        Recovery recovery(main, pace);
        std::mt19937 random(seed);
        frmBHDesign& d = newDesign();
        for (int number = 1; number < Typed::most; ++number) {
            d.type("INProjectNameText", std::to_string(number));
            if (random() % 3 == 0) d.type("SOGroundTempText", std::to_string(40 + random() % 40));
            typed_->at[number] = steady_clock::now();
            typed_->last = number;
            recovery.tick(steady_clock::now());
            std::this_thread::sleep_for(milliseconds(random() % 3));
        }
        ::_exit(1);
    }

    /// The number that was kept last; 0 for none.
    int kept() {
        const RecoveryFolder::Taken taken = RecoveryFolder(folder.path()).take();
        int number = 0;
        for (const auto& found : taken.found) {
            LineFileReader file(found.record.document);
            file.skipLines(2);
            number = std::max(number, static_cast<int>(leadingNumber(file.line())));
        }
        EXPECT_TRUE(taken.setAside.empty());
        EXPECT_TRUE(taken.left.empty());
        std::filesystem::remove_all(folder / "recovery");
        return number;
    }

    Typed* typed_;
};

TEST_F(RandomEditing, LosesAtMostTheLastMomentsWhenTheProgramIsKilled) {
    const char* wanted = std::getenv("VARNHOLT_KILLS");
    const int kills = wanted == nullptr ? 10 : std::atoi(wanted);
    std::mt19937 random(20261122);
    milliseconds worst(0);
    int found = 0;
    for (int round = 0; round < kills; ++round) {
        typed_->last = 0;
        const auto seed = static_cast<unsigned>(random());
        const pid_t child = ::fork();
        if (child == 0) typeWithoutEnd(seed);
        while (typed_->last == 0) std::this_thread::sleep_for(milliseconds(1));
        std::this_thread::sleep_for(milliseconds(random() % 2000));
        ::kill(child, SIGKILL);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status)) << "the typing ended by itself";
        const int last = typed_->last, kept = this->kept();
        found += kept > 0 ? 1 : 0;
        // The first number that is lost was typed so long before the last one.
        const auto lost =
            kept >= last
                ? milliseconds(0)
                : std::chrono::duration_cast<milliseconds>(typed_->at[last] - typed_->at[kept + 1]);
        worst = std::max(worst, lost);
        EXPECT_LE(lost, mostLost) << "round " << round << ": " << kept << " of " << last;
    }
    EXPECT_GT(found, 0);
    RecordProperty("kills", kills);
    RecordProperty("mostLostMilliseconds", static_cast<int>(worst.count()));
}

}  // namespace
}  // namespace varnholt

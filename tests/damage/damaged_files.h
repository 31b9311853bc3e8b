// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace varnholt {

/// A kind of file that the programs read, and how they come to read it.
struct FileOfAKind {
    std::string name;
    std::string sample;  ///< a whole one, from the root of the tree
    std::string place;   ///< where the program finds it, from its folder
    /// Lines of a script that have it read. What they open is closed afterwards.
    std::vector<std::string> lines;
};

const std::vector<FileOfAKind>& filesOfAllKinds();

/// How much of what can be wrong with a file is tried.
struct DamageChosen {
    /// All cuts and changes of every byte to so many values each; 0 for a sample that takes
    /// seconds.
    int values = 0;
    /// Cuts and changed bytes of a sample.
    std::size_t sampled = 60;
    /// Of larger files not every byte is taken.
    std::size_t small = 2'000;
};
/// As the environment tells: VARNHOLT_DAMAGE is the number of values. The program with windows
/// reads by the same code as the other one and is slower: it gets one value a byte, and a smaller
/// sample.
DamageChosen damageChosen(bool inWindows);

/// Calls `attempt` with each damaged version of the bytes and what was done to them, as long as it
/// returns true. Returns how many there were.
std::size_t forEachDamage(
    const std::string& whole, const DamageChosen& chosen,
    const std::function<bool(const std::string&, const std::string&)>& attempt);

}  // namespace varnholt

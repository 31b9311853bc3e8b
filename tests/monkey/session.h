// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "monkey/dice.h"
#include "monkey/monkey_log.h"

namespace varnholt {

/// What has been done: by hand, and to prove that it can be undone.
struct Played {
    std::size_t presses = 0, undone = 0;
};

/// A session that is to be played.
struct SessionToPlay {
    std::size_t presses = 0;    ///< at most
    std::string programFolder;  ///< filled, and the session's own
    unsigned locale = 0x409;
    Dice& dice;
    MonkeyLog& log;
};

/// Plays the program from its start to its end, or to so many presses. Throws std::exception when
/// something does not hold.
using PlaySession = std::function<Played(const SessionToPlay&)>;

/// Plays sessions as the command line asks; the program's exit status.
/// @param name       of the program
/// @param arguments  without the program's name
int playAsAsked(const std::string& name, const std::vector<std::string>& arguments,
                const PlaySession& play);

}  // namespace varnholt

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <span>

namespace varnholt {

/// One entry of the menu bar, in the order of the bar. A row without a menu is a menu itself.
struct MenuRow {
    const char* control;
    const char* menu;          ///< control of the menu that holds the entry; null for a menu
    int captionText;           ///< 0 for a separator
    int hintText;              ///< the status bar's line; 0 for none
    bool opensWindow = false;  ///< the start picture goes before the command runs
};

/// One button of the toolbar `tbrMain`, in its order.
struct ToolRow {
    const char* command;  ///< the menu entry whose command it runs
    int tipText;
    bool dividerBefore;
};

std::span<const MenuRow> menuTable();
std::span<const ToolRow> toolTable();

}  // namespace varnholt

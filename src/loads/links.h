// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace varnholt {

class ChildWindow;
class LinkedDesign;
class LoadsWindow;
class Varnmain;

/// Registers the commands mnuLink and mnuUnlink.
void installLinks(Varnmain& main);

/// Links the active window with a partner: an unlinked design with the loads window (the user
/// chooses when both are open), or a loads window with the one design that has no link. Does
/// nothing in every other case.
void mnuLink_Click(Varnmain& main);

/// Ends the links of the active window, whichever side it is.
void mnuUnlink_Click(Varnmain& main);

/// A window is closing: ends the links that name it. The other side stays open, and a design keeps
/// its copy of the zones.
void cleanupLinks(ChildWindow& closing);

/// The design has switched its units: the linked loads window follows, and the designs linked to
/// that; the same for every kind of design (LinkedBHSetMetric and its siblings).
void linkedSetMetric(LinkedDesign& design, LoadsWindow& loads);

/// The design's file has another name: its caption follows, and with it the title of a loads
/// window that names the design.
void renameDesign(LinkedDesign& design, const std::string& path);

/// The loads window of that form, opened if it is not; null when there is no such window.
LoadsWindow* openLoadsWindow(Varnmain& main, const std::string& formName);

/// Runs the TransferLoadsVariablesIn of the design with that number; 0 is none.
void TransferCall(Varnmain& main, std::int16_t designLinkID);

/// The title that the loads window carries while it is linked to this design.
std::string linkedCaption(const LoadsWindow& loads, const LinkedDesign& design);

/// The linkable designs in the order of their kinds and slots.
std::vector<LinkedDesign*> linkableDesigns(const Varnmain& main);

}  // namespace varnholt

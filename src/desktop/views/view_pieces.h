// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>

#include "desktop/binding/binder.h"
#include "desktop/widgets/layout.h"
#include "desktop/widgets/pages.h"

namespace varnholt {

// Pieces that several views are made of.

/// The widget of a control that not every form has; null where it is missing.
QWidget* ifAny(Binder& bind, const std::string& name);

/// A line that tells what to do first, shown while the condition holds.
QWidget* hint(Binder& bind, int text, std::function<bool()> condition);

/// What an engineer would look at, a line each, behind a sign; unseen while there is nothing.
QWidget* warningLines(Binder& bind, std::function<std::vector<std::string>()> source);

/// What a person must know of the window, and what can be done about it; unseen while there is
/// nothing. It stands between what else is above the pages, where its place costs none.
QWidget* noticeBar(Binder& bind);
/// The same where it takes room only while it has something to tell: nobody types where what is
/// below moves down.
QWidget* passingNoticeBar(Binder& bind);
/// What to do first in an empty window, with the buttons for it behind the words.
QWidget* firstSteps(QWidget* words, const std::vector<QWidget*>& commands);
/// The units, the notice and what ends their bar, in the line of the pages' tabs or above them.
QWidget* headedTabs(Binder& bind, QWidget* pages, const std::vector<QWidget*>& ends);

/// The lights of a window's link, side by side; the form shows those that matter.
QWidget* linkLights(Binder& bind);

}  // namespace varnholt

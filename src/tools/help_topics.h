// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "forms/form.h"

namespace varnholt {

/// The page of the help about a control, with its section: "borehole.html#soil". A control without
/// a topic of its own takes that of a frame around it, then that of its kind of name (the "SO" of
/// "SOSoilCommand"), then its window's page. A tab that several kinds of windows share is told on
/// each window's own page. An empty name asks for the window's page.
std::string helpPageOf(const Form& form, const std::string& control);

/// What a page says in its section, as plain text: the element of that name with what it holds, the
/// caption of a table's row set apart by a colon; of a heading the paragraph below it as well; of a
/// page without a section the first paragraph. Empty when there is no such section.
std::string sectionText(const std::string& page, const std::string& section);

}  // namespace varnholt

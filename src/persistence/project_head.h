// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

#include "frame/project_information.h"
#include "persistence/file_items.h"

namespace varnholt {

/// The comments as so many lines: one more than they have line feeds, so that no comment at all is
/// one empty line.
template <class File, class Text>
void describeComments(File& file, Text& comments) {
    const std::string& text = comments;
    const auto feeds = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
    const std::size_t lines = file.count(feeds + 1, 1);
    if constexpr (File::reading)
        file.lines(lines, comments);
    else
        file.lines(lines, text);
}

/// The head that project files of every kind share: version, kind, who and for whom, comments.
template <class File, class Information>
void describeHead(File& file, std::string_view kindTitle, Information& about) {
    file.title("Varnholt Data File Version ");
    file.fixed(kindTitle);
    items(file, about.projectName, about.designerName, about.currentDate, about.projectStartDate);
    items(file, about.clientName, about.addressLine1, about.addressLine2, about.city, about.state,
          about.zip, about.country, about.phone, about.fax, about.email);
    describeComments(file, about.comments);
}

/// The first two lines of every defaults file. Its version is never looked at.
template <class File>
void describeDefaultsHead(File& file, std::string_view kindTitle) {
    file.title("Varnholt Initialization File Version ");
    file.fixed(kindTitle);
}

}  // namespace varnholt

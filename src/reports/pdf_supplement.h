// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace varnholt {

/// An entry of the outline that a reader of a file shows beside its pages.
struct PdfBookmark {
    std::string title;
    std::size_t page = 0;  ///< from 0
    double top = 0;        ///< of what it names, points from the foot of the page
};

/// A PDF file with an author and an outline, which the toolkit's writer does not write: they are
/// appended as an incremental update, so that every byte of the file stays where it is.
/// Source: ISO 32000-1, 7.5.6 (incremental updates), 12.3.3 (document outline), 14.3.3 (document
/// information).
///
/// @param pdf  with a classic cross-reference table
/// @throws std::invalid_argument for a file that is put together otherwise
std::string withAuthorAndOutline(const std::string& pdf, const std::string& author,
                                 const std::vector<PdfBookmark>& bookmarks);

}  // namespace varnholt

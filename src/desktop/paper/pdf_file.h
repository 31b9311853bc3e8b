// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "desktop/paper/page_layout.h"
#include "forms/texts.h"

namespace varnholt {

/// The bytes of a PDF: text as text, fonts embedded, title and author named, a bookmark for each
/// zone. The same report gives the same bytes but for the time of their making.
/// Empty when it was broken off.
std::string pdfOf(const PageLayout& layout, const QPageLayout& paper, const Texts& texts,
                  const PageLayout::Progress& progress = {});

}  // namespace varnholt
